#include "photos/list/photo_move.hpp"

#include <string_view>

#include "photos/list/controller_registry.hpp"
#include "photos/list/photo_selection.hpp"

namespace velvault12 {

namespace {

/// On any thread; its error is nil when all went well.
void logRemoval(bool success, Object error) {
  log("Finished removing asset from the album. %@", success ? NSString::from("Success").get() : error.get());
}

/// The camera roll is left to the hiding alone, and an album that a computer keeps cannot be changed here.
bool canLoseItsPhotos(PHAssetCollection album) {
  return album && album.subtype() != PHAssetCollection::Subtype::userLibrary && album.allowsRemovingAssets();
}

void removeFromAlbum(const PhotoSelection& selection) {
  if (!canLoseItsPhotos(selection.album.get())) return;
  PHPhotoLibrary::sharedPhotoLibrary().performChanges(
      block<void()>([album = selection.album, photos = selection.photos] {
        const auto present = PHAsset::fetchInAssetCollection(album.get(), PHFetchOptions());
        PHAssetCollectionChangeRequest::change(album.get(), present).removeAssets(photos.get());
      }),
      block<void(bool, Object)>(logRemoval));
}

void reloadCameraRoll(Object controller, bool move, std::string_view format) {
  log(format, controller.get(), static_cast<int>(move), NSString::from("reloading camera roll").get());
  if (!move) return;
  const PhotoSelection selection = photoSelection();
  if (!selection.photos) return;
  removeFromAlbum(selection);
  PUAssetHidingHelper::apply(true, selection.photos.get());
}

}  // namespace

void stripReloadCameraRoll(PUHorizontalAlbumListGadget strip, bool move) {
  reloadCameraRoll(strip, move, "-[<PUHorizontalAlbumListGadget: %p> reloadCameraRollWithMove:%d]: %@");
}

void listReloadCameraRoll(PUAlbumListViewController list, bool move) {
  reloadCameraRoll(list, move, "-[<PUAlbumListViewController: %p> reloadCameraRollWithMove:%d]: %@");
}

void returnSelectedPhotos(PUAlbumListViewController list, bool move) {
  const PhotoSelection selection = photoSelection();
  if (selection.photos) {
    PUAssetHidingHelper::apply(false, selection.photos.get());
    if (move) removeFromAlbum(selection);
  }
  list.done();
  list.setEditing(false, true);
  selection.controller->trySend<"setEditing:animated:", void(bool, bool)>(false, true);
}

void handleCameraTap(PUAlbumListViewController list, Object sender) {
  if (!controllerRegistry().albumView) return;
  const auto sheet = UIAlertController::make("Move photos", "Move photos back to camera roll?",
                                             UIAlertController::Style::actionSheet);
  const Ref<PUAlbumListViewController> owner(list);
  sheet.addAction("Move", [owner] { returnSelectedPhotos(owner.get(), true); });
  sheet.addAction("Copy", [owner] { returnSelectedPhotos(owner.get(), false); });
  sheet.addCancelAction();
  if (const auto button = sender.as<UIBarButtonItem>()) {
    sheet.setPopoverSource(button);
  } else {
    sheet.setPopoverSource(list.view());
  }
  list.present(sheet, true);
}

}  // namespace velvault12
