#include "camera/capture_move.hpp"

#include "camera/capture_album.hpp"
#include "camera/newest_photo.hpp"
#include "host/dispatch.hpp"
#include "host/photos.hpp"
#include "host/photos_ui.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

/// By then the host has stored what it captured.
constexpr double kSecondsToStore = 1.5;

void scheduleMove(CAMCaptureEngine engine) {
  if (isPickerOn()) NSTimer::scheduledOnce(kSecondsToStore, engine, selector<"movePhoto">());
}

// Any thread.

/// The first album of that title that takes photos; nil for none. One that a computer keeps is passed over.
PHAssetCollection albumTitled(NSString title) {
  for (const auto album : PHAssetCollection::userAlbums(title)) {
    if (album.allowsAddingAssets()) return album;
  }
  return {};
}

/// Without a photo or an album nothing is added.
void add(const Ref<PHAsset>& photo, PHAssetCollection album) {
  if (!photo || !album) return;
  const Ref assets(PHAsset::fetchAllInAssetCollection(album));
  PHPhotoLibrary::sharedPhotoLibrary().performChanges(
      block<void()>([photo, assets, into = Ref(album)] {
        PHAssetCollectionChangeRequest::change(into.get(), assets.get()).addAssets(NSArray::of(photo.get()));
      }),
      Block<void(bool, Object)>());
}

void addToNewAlbum(const Ref<PHAsset>& photo, NSString title) {
  const Ref<NSString> name(title);
  // The change writes the new album's identifier here, the completion reads it.
  const Ref<NSMutableArray> created = makeObject<NSMutableArray>();
  PHPhotoLibrary::sharedPhotoLibrary().performChanges(
      block<void()>([name, created] {
        // The capture before this one may have had it made while this change waited for its turn.
        if (albumTitled(name.get())) return;
        created->addObject(PHAssetCollectionChangeRequest::create(name.get()).createdIdentifier());
      }),
      block<void(bool, Object)>([photo, name, created](bool, Object) {
        const bool isNew = created->count() > 0;
        add(photo, isNew ? PHAssetCollection::fetchWithLocalIdentifiers(created.get()).firstObject()
                         : albumTitled(name.get()));
      }));
}

void addToAlbum(const Ref<PHAsset>& photo, NSString title) {
  if (!PHPhotoLibrary::sharedPhotoLibrary()) return;
  if (const auto album = albumTitled(title)) {
    add(photo, album);
  } else {
    addToNewAlbum(photo, title);
  }
}

}  // namespace

void captureFinished(CAMCaptureEngine engine, Replaced<void(Object, Object, Object)> host, Object output,
                     Object resolvedSettings, Object error) {
  host(output, resolvedSettings, error);
  if (NSThread::isMainThread()) return scheduleMove(engine);
  // A queue of the host's has no run loop that would fire a timer.
  runOnMainQueue([engine = Ref(engine)] { scheduleMove(engine.get()); });
}

void movePhoto(CAMCaptureEngine) {
  if (captureAlbum().isCameraRoll()) return;
  // Once for both steps: by the time that a new album takes its photo, the photo has been hidden.
  const Ref<PHAsset> photo = newestPhoto();
  addToAlbum(photo, NSString::from(captureAlbum().title()));
  if (photo && settings()->pickerMovePhotos) PUAssetHidingHelper::apply(true, NSArray::of(photo.get()));
}

}  // namespace velvault12
