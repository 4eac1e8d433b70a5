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
  if (isTold(shown) || list.isPlaceholderAtIndexPath(path)) return shown;
  return list.collectionAtIndexPath(path).localizedTitle();
}

NSString titleOf(PUAlbumListViewController list, PUAlbumListCellContentView tile) {
  const NSString shown = tile.title();
  return isTold(shown) ? shown : list.collectionOf(tile).localizedTitle();
}

bool isCameraRoll(PHCollection collection) {
  const NSString title = collection.localizedTitle();
  return title && title.isEqualToString(NSString::from("Camera Roll"));
}

}  // namespace velvault12
