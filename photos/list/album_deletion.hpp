#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

/// A locked album, or a folder with one in it, is deleted only once its owner is known. Photos that are in no
/// other album are shown again before: moved out of the camera roll, they would be out of reach.
void deleteAlbum(PUAlbumListViewController list, Replaced<void(PUAlbumListCellContentView, Object)> host,
                 PUAlbumListCellContentView tile, Object action);

/// Photos are deleted without asking when the settings say so.
bool skipDeleteConfirmation(PUDeletePhotosActionController controller, Replaced<bool()> host);

}  // namespace velvault12
