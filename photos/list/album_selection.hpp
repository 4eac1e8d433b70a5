#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// A locked album that is chosen stays closed until its owner is known. The list of locked albums is the one
// in memory: choosing an album reads no file.

void selectInStrip(PUHorizontalAlbumListGadget strip, Replaced<void(UICollectionView, NSIndexPath)> host,
                   UICollectionView view, NSIndexPath path);

void selectInList(PUAlbumListViewController list, Replaced<void(NSIndexPath)> host, NSIndexPath path);

}  // namespace velvault12
