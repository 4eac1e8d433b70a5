// The Photos app's own classes as code inside the app meets them.

#include "host/photos_ui.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <sstream>

#include "tests/device/frameworks/plain_phone.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {

extern "C" {
void MSHookMessageEx(Class type, SEL selector, IMP implementation, IMP* replaced);
}

namespace {

// Classes, each with methods that an iPhone's does not have: a stand-in with one of them would forgive a
// message that was not asked for.
constexpr const char* kLacking =
    R"(UITabBar hidden PXUIButton viewidLoad PXNavigationListGadget provider albumListCellContentView
PXCollectionsDataSourceManager _containsAnyAssets: canReorderCollection: PXHorizontalCollectionGadget
provider PUHorizontalAlbumListGadget reloadContentView showPeople showPlaces titleForCollection:
subtitleForCollection: albumListCellContentView PUAlbumGadget provider PUAlbumListViewController
alwaysHideTabBar scrollViewWillBeginDragging: titleForCollection: provider PUAlbumsGadgetViewController
reloadContentView UICollectionViewLayout itemSize PUPhotosGridViewController assetCollection
shouldShowSectionHeaders PUPhotosAlbumViewController _handleDoneButton: PUZoomableGridViewController
assetCollection _handleDoneButton: reloadContentView PUOneUpViewController selectedAssets assetCollection
PXPhotosUIViewController viewProvider selectedAssets PXPhotosContentController viewProvider
PXCuratedLibraryUIViewController viewModel _handleDoneButton: selectedAssets PHCollection isTrashBin
PHCollectionList title assetCollectionType assetCollectionSubtype isTrashBin)";

TEST(PhotosUIClasses, LackWhatAnIPhoneLacks) {
  std::istringstream words(kLacking);
  Class type = nullptr;
  for (std::string word; words >> word;) {
    if (std::isupper(word.front())) {
      type = objc_getClass(word.c_str());
      ASSERT_NE(type, nullptr) << word;
    } else {
      EXPECT_EQ(class_getInstanceMethod(type, sel_registerName(word.c_str())), nullptr) << word;
    }
  }
}

class PhotosUI : public PlainPhone {
 protected:
  static constexpr auto pathTo = &PhotosApp::pathTo;

  device::PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(PhotosUI, StripAndListRaiseWhereAPathLeadsNowhere) {
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

TEST_F(PhotosUI, TheAlbumsTabShowsWhatHoldsSomethingByItsKind) {
  phone_.launchHere(device::kPhotos);
  const auto gadgets = [] { return ask<"childViewControllers", NSArray>(PhotosApp::top()).count(); };
  EXPECT_EQ(gadgets(), 0u);
  library_.addAlbum("Pets");
  library_.addSyncedAlbum("Synced");
  library_.addCollection({.title = "Family", .subtype = 101});
  library_.addAsset({.mediaType = device::MediaType::video, .creationDate = 1});
  library_.addAsset({.creationDate = 2, .isHidden = true});
  library_.addAsset({.creationDate = 3, .smartSubtype = 200});
  tap({"Photos", "Albums"});
  EXPECT_EQ(gadgets(), 5u);
  const std::string screen = me_.screen();
  EXPECT_EQ(screen.find("See All"), screen.rfind("See All")) << screen;
  for (const std::string_view empty : {"Selfies", "Places", "Imports"})
    EXPECT_NE(refusal([&] { me_.tap(empty); }), "") << empty;
  for (const std::string_view held : {"Videos", "Hidden"}) {
    me_.tap(held);
    me_.back();
  }
  me_.tap("See All");
  EXPECT_FALSE((ask<"collectionView:canMoveItemAtIndexPath:", bool>(PhotosApp::top(), Object(), pathTo(0))))
      << "while nothing is edited";
}

TEST_F(PhotosUI, ABarShowsTheFirstOfItsItemsOnTheOutside) {
  phone_.launchHere(device::kPhotos);
  const auto picture = ask<"_imageOfColor:size:name:", UIImage>(hostType<"UIImage">(), Object(),
                                                                CGSize{100, 50}, NSString::from("picture"));
  const auto items = makeObject<NSMutableArray>();
  items->addObject(UIBarButtonItem::withImage(picture, {}, {}).get());
  items->addObject(UIBarButtonItem::camera({}, {}).get());
  PhotosApp::top().navigationItem().setRightBarButtonItems(items.get());
  const std::string screen = me_.screen();
  for (const char* const line : {"UIButton (315 0 44 44)", "UIImageView \"picture\" (8 15 28 14)",
                                 "UIButton \"Camera\" (235 0 80 44)"}) {
    EXPECT_NE(screen.find(line), std::string::npos) << screen;
  }
}

/// In the grid of an album, and in that of the whole library.
class Selection : public PhotosUI, public ::testing::WithParamInterface<std::string> {
 protected:
  static constexpr std::string_view kSelect = "Select";
  static constexpr std::string_view kFirst = "Photo, 1970-01-01 00:00:01";
  static constexpr std::string_view kSecond = "Photo, 1970-01-01 00:00:02";
  static constexpr std::string_view kFirstSelected = "Photo, 1970-01-01 00:00:01, selected";

  Selection() {
    for (const auto photo : {first_, second_}) library_.addToAlbum(photo, pets_);
    library_.addSyncedAlbum("Synced");
    phone_.launchHere(device::kPhotos);
  }

  static Object grid() { return ask<"_currentToolbarViewController", Object>(PhotosApp::navigation()); }
  static NSUInteger selected() { return ask<"count", NSUInteger>(ask<"selectedAssets", Object>(grid())); }

  const std::int64_t pets_ = library_.addAlbum("Pets");
  const std::int64_t inner_ = library_.addAlbum("Inner", library_.addFolder("Folder"));
  const std::int64_t first_ = library_.addAsset({.creationDate = 1});
  const std::int64_t second_ = library_.addAsset({.creationDate = 2});
};
INSTANTIATE_TEST_SUITE_P(PhotosUI, Selection, ::testing::Values("Pets", "Photos"),
                         [](const auto& grid) { return grid.param; });

TEST_P(Selection, IsMadeByTouchingPhotosAndEndsAddedToAnAlbumOrCancelled) {
  tap({GetParam(), kFirst});
  EXPECT_FALSE(me_.sees(kSelect)) << "it is shown alone";
  me_.back();
  EXPECT_EQ(selected(), 0u);
  me_.tap(kSelect);
  EXPECT_EQ(me_.sees("Remove"), GetParam() == "Pets");
  tap({"Delete", "Add To"});
  EXPECT_FALSE(me_.hasAlert() || me_.sees("Add 0 Photos to an album")) << "nothing is selected";
  tap({kFirst, kSecond});
  EXPECT_TRUE((ask<"selectedAssets", Object>(grid()).isKindOf(objc_getClass("NSSet"))));
  EXPECT_EQ(selected(), 2u);
  me_.tap("Add To");
  EXPECT_FALSE(me_.sees("Edit") || me_.sees(kFirstSelected));
  tap({"Synced", "Folder"});
  // What counts is what is selected when the album is chosen.
  ask<"collectionView:didSelectItemAtIndexPath:">(grid(), Object(), pathTo(0));
  me_.tap("Inner");
  EXPECT_TRUE(me_.sees("Select") && !me_.sees("Inner"));
  ASSERT_TRUE(soon([&] { return library_.assetsInAlbum(inner_).size() == 1; }));
  EXPECT_EQ(library_.assetsInAlbum(inner_).front().identifier, second_);

  tap({kSelect, kFirst, kFirstSelected});
  EXPECT_TRUE(me_.sees(kFirst));
  me_.tap(kFirst);
  library_.setHidden(second_, true);
  me_.tap("Cancel");
  EXPECT_TRUE(me_.sees(kFirst) && !me_.sees(kSecond)) << "fetched again";
  EXPECT_EQ(selected(), 0u);
  EXPECT_FALSE(me_.sees("Add To"));
}

TEST_F(Selection, IsDeletedOnceThatIsConfirmed) {
  tap({"Pets", kSelect, kFirst, "Delete"});
  EXPECT_EQ(me_.alert().buttons, (Titles{"Delete 1 Photo", "Cancel"}));
  me_.tap("Cancel");
  EXPECT_EQ(selected(), 1u);
  tap({"Delete", "Delete 1 Photo"});
  me_.waitUntilGone(kFirstSelected);
  EXPECT_TRUE(me_.sees("Select") && !me_.sees(kFirst));
  EXPECT_EQ(library_.allAssets().front().identifier, second_);
}

TEST_F(PhotosUI, AHeaderLiesAboveThePhotosOfAnAlbumThatHoldsSome) {
  library_.addToAlbum(library_.addAsset({}), library_.addAlbum("Pets"));
  library_.addAlbum("Empty");
  phone_.launchHere(device::kPhotos);
  me_.tap("Pets");
  EXPECT_NE(me_.screen().find("PUPhotosGridCell (1 45 92 92)"), std::string::npos) << me_.screen();
  me_.back();
  me_.tap("Empty");
  EXPECT_EQ(me_.screen().find("PUPhotosSectionHeaderView"), std::string::npos) << me_.screen();
}

TEST_F(PhotosUI, AGridOpensAtItsEndWhereItIsToldSoAndStaysWhereItWasLeft) {
  for (double second = 0; second < 60; ++second) library_.addAsset({.creationDate = second});
  const std::string_view first = "Photo, 1970-01-01 00:00:00", last = "Photo, 1970-01-01 00:00:59";
  phone_.launchHere(device::kPhotos);
  const auto isAtEnd = [&] { return me_.sees(last) && !me_.sees(first); };
  const auto opensAtEnd = [&](Object collection) {
    const auto grid = makeObject<PUPhotosAlbumViewController>();
    ask<"setAssetCollection:">(grid.get(), collection);
    ask<"pushViewController:animated:">(PhotosApp::navigation(), UIViewController(grid.get()), true);
    return isAtEnd();
  };
  EXPECT_TRUE(opensAtEnd(ask<"_cameraRoll", Object>(hostType<"PHAssetCollection">())));
  EXPECT_FALSE(opensAtEnd(
      PHAssetCollection::fetch(PHAssetCollection::Type::moment, PHAssetCollection::Subtype::any, {})
          .firstObject()));
  me_.tap("Photos");
  EXPECT_TRUE(isAtEnd());
  me_.tap(first);
  me_.back();
  tap({"Albums", "Photos"});
  EXPECT_TRUE(me_.sees(first) && !me_.sees(last)) << "it was scrolled there";
}

/// Puts an answer in the place of a method that takes no arguments.
template <class Result>
void answerInstead(const char* className, const char* selector, Result (*answer)(id, SEL)) {
  MSHookMessageEx(objc_getClass(className), sel_registerName(selector), reinterpret_cast<IMP>(answer), {});
}

TEST_F(PhotosUI, APhotoIsShownAsLargeAsItFitsAndZoomedAndALiveOneMayBearABadge) {
  const std::string_view plain = "Photo, 1970-01-01 00:00:01", live = "Photo, 1970-01-01 00:00:02";
  library_.addAsset({.creationDate = 1});
  library_.addAsset({.creationDate = 2, .smartSubtype = 213});
  answerInstead<bool>("PUAssetViewModel", "wantsIrisBadgeVisible", [](id, SEL) { return true; });
  phone_.launchHere(device::kPhotos);
  tap({"Photos", live});
  EXPECT_TRUE(me_.sees("LIVE") && !me_.sees(plain));
  const auto liesAt = [&](std::string_view frame) {
    return me_.picture().find("00:00:02\" data-frame=\"" + std::string(frame)) != std::string::npos;
  };
  EXPECT_TRUE(liesAt("0 158.5 375 500"));
  for (int again = 0; again < 2; ++again) {
    me_.zoomIn(live);
    EXPECT_TRUE(liesAt("-937.5 -1091.5 2250 3000")) << "around its middle, " << again;
  }
  me_.back();
  me_.tap(plain);
  EXPECT_FALSE(me_.sees("LIVE"));
}

TEST_F(PhotosUI, TheTabBarComesAndGoesWithTheControllersOnTop) {
  library_.addAlbum("Pets");
  answerInstead<bool>("PUPhotosAlbumViewController", "pu_wantsTabBarVisible", [](id, SEL) { return false; });
  phone_.launchHere(device::kPhotos);
  const UIView content = ask<"view", UIView>(PhotosApp::navigation());
  const auto height = [&] { return me_.screen().empty() ? 0 : content.frame().size.height; };
  EXPECT_EQ(height(), 729);
  me_.tap("Pets");
  EXPECT_EQ(height(), 812);
  me_.back();
  EXPECT_EQ(height(), 729);
}

TEST_F(PhotosUI, TilesFollowBothOfTheirSizesWhenTheyAppear) {
  library_.addAlbum("Pets");
  phone_.launchHere(device::kPhotos);
  me_.tap("See All");
  answerInstead(
      "PUAlbumListCellContentViewHelperConfiguration", "stackSize", +[](id, SEL) {
        return CGSize{100, 120};
      });
  answerInstead(
      "PUAlbumListCellContentViewHelper", "albumCellSize", +[](id, SEL) {
        return CGSize{200, 300};
      });
  me_.back();
  const std::string screen = me_.screen();
  for (const char* const line :
       {"(0 0 375 376)", "(16 16 200 300)", "PUStackView (0 0 100 120)", "\"Pets\" (0 124 200 20)"})
    EXPECT_NE(screen.find(line), std::string::npos) << line << screen;
}

TEST_F(PhotosUI, TheTopLevelsListEndsWithPeopleAndPlacesUnlessTheyAreEmpty) {
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
