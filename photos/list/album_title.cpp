#include "photos/list/album_title.hpp"

namespace velvault12 {

namespace {

bool isTold(NSString title) { return title && !title.isEqualToString(NSString::from("")); }

}  // namespace

NSString titleAt(PUHorizontalAlbumListGadget strip, NSIndexPath path) {
  const Object gadget = strip.gadgetAtIndexPath(path);
  const NSString shown = albumTile(gadget).title();
  return isTold(shown) ? shown : gadget.trySend<"title", NSString()>();
}

NSString titleAt(PUAlbumListViewController list, NSIndexPath path) {
  const NSString shown = list.tileAtIndexPath(path).title();
  return isTold(shown) ? shown : list.collectionAtIndexPath(path).localizedTitle();
}

NSString titleOf(PUAlbumListViewController list, PUAlbumListCellContentView tile) {
  const PHCollection shown = list.collectionOf(tile);
  return shown ? shown.localizedTitle() : tile.title();
}

}  // namespace velvault12
