#include "photos/cells/album_view.hpp"

#include "host/reference.hpp"
#include "photos/list/album_title.hpp"
#include "photos/list/tab_rules.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

bool isInSeveralAlbums(PHAsset photo) {
  // Thousands may be selected.
  const AutoreleasePool fetched;
  return PHAssetCollection::fetchContaining(photo, PHAssetCollection::Type::album).count() >= 2;
}

/// In one album, or, chosen elsewhere, in none.
void showPhotosInOneAlbum(NSArray photos) {
  const auto shown = makeObject<NSMutableArray>();
  for (const Object photo : photos) {
    if (!isInSeveralAlbums(PHAsset(photo.get()))) shown->addObject(photo);
  }
  if (shown->count() > 0) PUAssetHidingHelper::apply(false, shown.get());
}

}  // namespace

bool shouldShowSectionHeaders(PUPhotosAlbumViewController view, Replaced<bool()> host) {
  return !isCameraRoll(view.assetCollection()) && host();
}

bool initiallyScrolledToBottom(PUPhotosAlbumViewController, Replaced<bool()>) { return true; }

void removeSelectedPhotos(PUPhotosAlbumViewController view, Replaced<void(Block<void()>)> host,
                          Block<void()> completion) {
  log("-[<PUPhotosAlbumViewController: %p> _removeSelectedAssetsWithCompletion:%@]: %@", view.get(),
      NSValue::ofPointer(completion.get()).get(), NSString::from("removing").get());
  showPhotosInOneAlbum(selectedPhotos(view).get());
  host(completion);
}

bool albumWantsTabBar(PUPhotosAlbumViewController, Replaced<bool()> host) {
  const auto chosen = settings();
  return (chosen->enabled && hasOneTab(*chosen)) || host();
}

}  // namespace velvault12
