#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

/// Chooses an album in the list, whose lock is no longer in the way. Where photos are being picked into one
/// that takes them, it first asks whether they are to be moved or copied there.
void chooseAlbum(PUAlbumListViewController list, NSIndexPath path, Replaced<void(NSIndexPath)> host);

}  // namespace velvault12
