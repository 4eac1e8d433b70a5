#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// Holding a finger on an album locks it at once; on a locked one it asks for the owner, and then removes the
// lock.

/// `handleLongPress:` of the strip and the list.
void handleLongPress(UIViewController controller, UIGestureRecognizer recognizer);

/// Has a long press on the tile handled by the target, which is not retained. A tile that has any gesture
/// recognizer is left alone.
void makePressable(PUAlbumListCellContentView tile, UIViewController target);

// Make each tile pressable that they show.
UICollectionViewCell stripCell(PUHorizontalAlbumListGadget strip,
                               Replaced<UICollectionViewCell(UICollectionView, NSIndexPath)> host,
                               UICollectionView view, NSIndexPath path);
UICollectionViewCell listCell(PUAlbumListViewController list,
                              Replaced<UICollectionViewCell(UICollectionView, NSIndexPath)> host,
                              UICollectionView view, NSIndexPath path);

}  // namespace velvault12
