#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// What the strip and the list do as they come on screen: they read the locked albums afresh, having an empty
// list saved where there is none, and are recorded as those that an answer can be for. Switched off, the
// library leaves the albums alone; the list is still recorded, since what was asked before may yet be
// answered.

void stripWillAppear(PUHorizontalAlbumListGadget strip, Replaced<void(bool)> host, bool animated);
void listWillAppear(PUAlbumListViewController list, Replaced<void(bool)> host, bool animated);
void listDidLayoutSubviews(PUAlbumListViewController list, Replaced<void()> host);

}  // namespace velvault12
