// The Photos app's own classes as code inside the app meets them.

#include "host/photos_ui.hpp"

#include <gtest/gtest.h>

#include <vector>

#include "tests/device/frameworks/plain_phone.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {

namespace {

struct Lacking {
  const char* className;
  std::vector<const char*> selectors;
};
// A stand-in with one of these methods would forgive a message that was not asked for.
const Lacking kLacking[] = {
    {"UITabBar", {"hidden"}},
    {"PXUIButton", {"viewidLoad"}},
    {"PXNavigationListGadget", {"provider", "albumListCellContentView"}},
    {"PXCollectionsDataSourceManager", {"_containsAnyAssets:", "canReorderCollection:"}},
    {"PXHorizontalCollectionGadget", {"provider"}},
    {"PUHorizontalAlbumListGadget",
     {"reloadContentView", "showPeople", "showPlaces",
      "titleForCollection:", "subtitleForCollection:", "albumListCellContentView"}},
    {"PUAlbumGadget", {"provider"}},
    {"PUAlbumListViewController",
     {"alwaysHideTabBar", "scrollViewWillBeginDragging:", "titleForCollection:", "provider"}},
    {"PUAlbumsGadgetViewController", {"reloadContentView"}},
    {"UICollectionViewLayout", {"itemSize"}},
    {"PUPhotosGridViewController", {"assetCollection", "shouldShowSectionHeaders"}},
    {"PUPhotosAlbumViewController", {"_handleDoneButton:"}},
    {"PUZoomableGridViewController", {"assetCollection", "_handleDoneButton:", "reloadContentView"}},
    {"PUOneUpViewController", {"selectedAssets", "assetCollection"}},
    {"PXPhotosUIViewController", {"viewProvider", "selectedAssets"}},
    {"PXPhotosContentController", {"viewProvider"}},
    {"PXCuratedLibraryUIViewController", {"viewModel", "_handleDoneButton:", "selectedAssets"}},
    {"PHCollection", {"isTrashBin"}},
    {"PHCollectionList", {"title", "assetCollectionType", "assetCollectionSubtype", "isTrashBin"}},
};

TEST(PhotosUIClasses, LackWhatAnIPhoneLacks) {
  for (const auto& [className, selectors] : kLacking) {
    const Class type = objc_getClass(className);
    ASSERT_TRUE(type) << className;
    for (const char* selector : selectors) {
      EXPECT_FALSE(class_getInstanceMethod(type, sel_registerName(selector))) << className << ' ' << selector;
    }
  }
}

class PhotosUI : public PlainPhone {
 protected:
  static constexpr auto pathTo = &PhotosApp::pathTo;

  device::PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(PhotosUI, StripAndListRaiseForMissingPaths) {
  library_.addAlbum("Pets");
  phone_.launchHere(device::kPhotos);
  const auto strip = PhotosApp::strip();
  me_.tap("See All");
  const auto list = PhotosApp::albumList();
  const NSIndexPath none;
  const std::function<void()> mistakes[] = {
      [&] { strip.gadgetAtIndexPath(none); },
      [&] { strip.select(none); },
      [&] { list.tileAtIndexPath(none); },
      [&] { list.collectionAtIndexPath(none); },
      [&] { list.collectionAtIndexPath(pathTo(1)); },
      [&] { list.select(none); },
      [&] { list.performDelete({}, {}); },
  };
  for (const auto& mistake : mistakes) EXPECT_TRUE(raises(mistake)) << &mistake - mistakes;
}

/// In the grid of an album, and in that of the whole library.
class Selection : public PhotosUI, public ::testing::WithParamInterface<std::string> {};
INSTANTIATE_TEST_SUITE_P(PhotosUI, Selection, ::testing::Values("Pets", "Photos"),
                         [](const auto& grid) { return grid.param; });

TEST_P(Selection, IsReadWhenTheAlbumIsChosen) {
  constexpr std::string_view kFirst = "Photo, 1970-01-01 00:00:01", kSecond = "Photo, 1970-01-01 00:00:02";
  const auto pets = library_.addAlbum("Pets"),
             inner = library_.addAlbum("Inner", library_.addFolder("Folder"));
  const auto first = library_.addAsset({.creationDate = 1}), second = library_.addAsset({.creationDate = 2});
  for (const auto photo : {first, second}) library_.addToAlbum(photo, pets);
  phone_.launchHere(device::kPhotos);
  tap({GetParam(), "Select"});
  EXPECT_EQ(me_.sees("Remove"), GetParam() == "Pets");
  me_.tap("Add To");
  EXPECT_FALSE(me_.sees("Add 0 Photos to an album"));
  tap({kFirst, kSecond});
  const Object grid = ask<"_currentToolbarViewController", Object>(PhotosApp::navigation());
  EXPECT_TRUE((ask<"selectedAssets", Object>(grid).isKindOf(objc_getClass("NSSet"))));
  tap({"Add To", "Folder"});
  ask<"collectionView:didSelectItemAtIndexPath:">(grid, Object(), pathTo(0));
  me_.tap("Inner");
  EXPECT_TRUE(me_.sees("Select") && !me_.sees("Inner"));
  ASSERT_TRUE(soon([&] { return library_.assetsInAlbum(inner).size() == 1; }));
  EXPECT_EQ(library_.assetsInAlbum(inner).front().identifier, second);
}

TEST_F(PhotosUI, TheTopLevelsListEndsWithPeopleAndPlaces) {
  library_.addFolder("Trips");
  library_.addAsset({.creationDate = 1, .smartSubtype = 200});
  phone_.launchHere(device::kPhotos);
  me_.tap("See All");
  EXPECT_EQ(PhotosApp::albumList().collectionAtIndexPath(pathTo(1)).localizedTitle().utf8(), "People");
  EXPECT_FALSE(me_.sees("Places"));
  me_.tap("Trips");
  EXPECT_FALSE(me_.sees("People"));
  tap({"Photos", "Select", "Photo, 1970-01-01 00:00:01", "Add To"});
  EXPECT_TRUE(me_.sees("Trips") && !me_.sees("People")) << "nothing can be added there";
}

}  // namespace
}  // namespace velvault12
