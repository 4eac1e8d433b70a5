#include "photos/cells/move_sheet.hpp"

#include <string_view>

#include "photos/list/album_move.hpp"

namespace velvault12 {

namespace {

constexpr std::string_view kTitle = "Move Album Photos";

void askToReturnAll(PUAlbumListViewController list, UIView source) {
  const auto sheet =
      UIAlertController::make(kTitle,
                              "Reset photo albums by returning all photos to the camera roll? "
                              "Photos will remain in folders but also appear in the camera roll.",
                              UIAlertController::Style::actionSheet);
  sheet.addAction("Return all", [] { returnAllPhotos(); });
  sheet.addCancelAction();
  sheet.setPopoverSource(source);
  list.present(sheet, true);
}

}  // namespace

void syncAlbums(PUNavigationController navigation) {
  const UIViewController top = navigation.currentToolbarViewController();
  if (const auto list = top.as<PUAlbumListViewController>()) {
    askToReturnAll(list, navigation.navigationBar());
  } else if (const auto album = top.as<PUPhotosAlbumViewController>()) {
    askWhereAlbumGoes(album.assetCollection().localizedTitle(), kTitle,
                      "Move photos into or move them out of the camera roll?", album,
                      navigation.navigationBar());
  }
}

}  // namespace velvault12
