#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

/// `viewWillAppear:` of the Albums tab: its tiles are laid out anew, so that each shows what has come to be
/// true of its album while the tab was not on screen.
void albumsTabWillAppear(PUAlbumsGadgetViewController tab, Replaced<void(bool)> host, bool animated);

}  // namespace velvault12
