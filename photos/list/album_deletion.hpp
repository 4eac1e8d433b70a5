#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

/// A locked album is deleted only once its owner is known.
void deleteAlbum(PUAlbumListViewController list, Replaced<void(PUAlbumListCellContentView, Object)> host,
                 PUAlbumListCellContentView tile, Object action);

}  // namespace velvault12
