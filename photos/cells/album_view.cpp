#include "photos/cells/album_view.hpp"

#include "host/reference.hpp"
#include "photos/list/album_title.hpp"
#include "photos/list/tabs.hpp"

namespace velvault12 {

namespace {

bool isInSeveralAlbums(PHAsset photo) {
  // Thousands may be selected.
  const AutoreleasePool fetched;
  return PHAssetCollection::fetchContaining(photo, PHAssetCollection::Type::album).count() >= 2;
}

/// Shows those that are in no other album than this one, or in none at all.
void showPhotosOfOneAlbum(NSArray photos) {
  const auto shown = makeObject<NSMutableArray>();
  for (const Object photo : photos) {
    if (!isInSeveralAlbums(PHAsset(photo.get()))) shown->addObject(photo);
  }
  if (shown->count() > 0) PUAssetHidingHelper::apply(false, shown.get());
}

/// What a log tells of a block. Nil stays nil.
Object described(Block<void()> block) {
  if (kBlocksAreObjects) return Object(static_cast<id>(block.get()));
  return block.get() == nullptr ? Object() : NSValue::ofPointer(block.get());
}

}  // namespace

bool shouldShowSectionHeaders(PUPhotosAlbumViewController view, Replaced<bool()> host) {
  return !isCameraRoll(view.assetCollection()) && host();
}

bool initiallyScrolledToBottom(PUPhotosAlbumViewController, Replaced<bool()>) { return true; }

void removeSelectedPhotos(PUPhotosAlbumViewController view, Replaced<void(Block<void()>)> host,
                          Block<void()> completion) {
  log("-[<PUPhotosAlbumViewController: %p> _removeSelectedAssetsWithCompletion:%@]: %@", view.get(),
      described(completion).get(), NSString::from("removing").get());
  showPhotosOfOneAlbum(selectedPhotos(view).get());
  host(completion);
}

bool albumWantsTabBar(PUPhotosAlbumViewController, Replaced<bool()> host) {
  return isOneTabChosen() || host();
}

}  // namespace velvault12
