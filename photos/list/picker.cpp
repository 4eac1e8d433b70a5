#include "photos/list/picker.hpp"

#include "host/reference.hpp"
#include "photos/list/album_title.hpp"
#include "photos/list/photo_move.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

/// Whether choosing what is there puts the picked photos into it. A folder is opened, a new album is asked
/// for first, an album that a computer keeps takes nothing, and the camera roll has them all.
bool takesPhotos(PUAlbumListViewController list, NSIndexPath path) {
  if (list.isPlaceholderAtIndexPath(path)) return false;
  const auto album = list.collectionAtIndexPath(path).as<PHAssetCollection>();
  return album && album.allowsAddingAssets() && !isCameraRoll(album);
}

/// What a pad's sheet points to. The list may show its albums as a table, which has no such cells.
UIView sourceAt(PUAlbumListViewController list, NSIndexPath path) {
  const UIView content = list.collectionView().cellForItemAtIndexPath(path).contentView();
  return content ? content : list.view();
}

}  // namespace

void chooseAlbum(PUAlbumListViewController list, NSIndexPath path, Replaced<void(NSIndexPath)> host) {
  if (!isEnabled() || !list.pickerBannerView() || !takesPhotos(list, path)) {
    host(path);
    return;
  }
  const auto sheet = UIAlertController::make("Add photos to album", "Move or copy photos to the album?",
                                             UIAlertController::Style::actionSheet);
  const auto pick = [owner = Ref(list), at = Ref(path), host](bool move) {
    listReloadCameraRoll(owner.get(), move);
    host(at.get());
  };
  sheet.addAction("Move", [pick] { pick(true); });
  sheet.addAction("Copy", [pick] { pick(false); });
  sheet.addCancelAction();
  sheet.setPopoverSource(sourceAt(list, path));
  list.present(sheet, true);
}

}  // namespace velvault12
