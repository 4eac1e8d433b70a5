#include "photos/list/album_move.hpp"

#include <string_view>

#include "host/dispatch.hpp"
#include "host/photos_ui.hpp"
#include "host/reference.hpp"
#include "photos/list/notice_banner.hpp"

namespace velvault12 {

namespace {

struct Notices {
  std::string_view nothingToDo;
  std::string_view begins;
  std::string_view finished;
};

constexpr Notices kReturning{"No photos to return.", "Returning photos", "Finished returning"};
constexpr Notices kReturningAll{"No photos to return.", "Returning all albums", "Finished returning"};
constexpr Notices kMoving{"No photos to move", "Moving photos", "Finished moving"};

void setAllHidden(bool hidden, PHAssetCollection album, const Notices& notices) {
  const auto photos = album ? elementsOf(PHAsset::fetchAllInAssetCollection(album)) : Ref<NSArray>();
  if (photos->count() == 0) {
    showNotice(notices.nothingToDo);
    return;
  }
  showNotice(notices.begins);
  PUAssetHidingHelper::apply(hidden, photos.get(), block<void()>([finished = notices.finished] {
                               runOnMainQueue([finished] { showNotice(finished); });
                             }));
}

}  // namespace

void moveAlbumPhotos(NSString title, AlbumMove move) {
  const bool hides = move == AlbumMove::moveOut;
  setAllHidden(hides, PHAssetCollection::userAlbums(title).firstObject(), hides ? kMoving : kReturning);
}

void askWhereAlbumGoes(NSString album, std::string_view title, std::string_view message,
                       UIViewController presenter, UIView source) {
  const Ref<NSString> kept(album);
  const auto sheet = UIAlertController::make(title, message, UIAlertController::Style::actionSheet);
  sheet.addAction("Return to camera roll",
                  [kept] { moveAlbumPhotos(kept.get(), AlbumMove::returnToCameraRoll); });
  sheet.addAction("Move out of camera roll", [kept] { moveAlbumPhotos(kept.get(), AlbumMove::moveOut); });
  sheet.addCancelAction();
  sheet.setPopoverSource(source);
  presenter.present(sheet, true);
}

void returnAllPhotos() {
  const auto hidden = PHAssetCollection::fetch(PHAssetCollection::Type::smartAlbum,
                                               PHAssetCollection::Subtype::allHidden, PHFetchOptions());
  setAllHidden(false, hidden.firstObject(), kReturningAll);
}

}  // namespace velvault12
