#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// Holding a finger on an album locks it at once; on a locked one it asks for the owner, and then removes the
// lock.

/// `handleLongPress:` of the strip and the list.
void handleLongPress(UIViewController controller, UIGestureRecognizer recognizer);

// Gives each album tile that has no gesture recognizer one for the long press.
UICollectionViewCell stripCell(PUHorizontalAlbumListGadget strip,
                               Replaced<UICollectionViewCell(UICollectionView, NSIndexPath)> host,
                               UICollectionView view, NSIndexPath path);
UICollectionViewCell listCell(PUAlbumListViewController list,
                              Replaced<UICollectionViewCell(UICollectionView, NSIndexPath)> host,
                              UICollectionView view, NSIndexPath path);

}  // namespace velvault12
