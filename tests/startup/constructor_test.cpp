// What the library does to each kind of host as it is loaded, with the switch on and off.

#include <gtest/gtest.h>

#include <cctype>
#include <sstream>

#include "device/frameworks/installed_hooks.hpp"
#include "device/system/loader.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

// What each [host] gets, and [] all of them, in that order: behind each class its methods that are replaced,
// and new ones (+), with their types. A class's own methods begin with a dot.
constexpr const char* kMethods = R"(
[com.apple.camera]
  CAMCaptureEngine captureOutput:didFinishCaptureForResolvedSettings:error: v@:@@@   +movePhoto v@:
  CAMMetalView layoutSubviews v@:   +chooseAlbum v@:   +createNewAlbum v@:
    +adjustRotationToSize: v@:{CGSize=dd}
  CAMBottomBar layoutSubviews v@:   +chooseAlbum v@:   +createNewAlbum v@:
    +adjustRotationToSize: v@:{CGSize=dd}
  CAMImageWell thumbnailImage @@:
[com.apple.mobileslideshow]
  PhotosApplication applicationDidEnterBackground: v@:@   +returnToMainView v@:
  PUTabbedLibraryViewController excludedContentModes @@:
  UITabBar layoutSubviews v@:   hidden B@:   items @@:
  PUHorizontalAlbumListGadget viewWillAppear: v@:B   collectionView:cellForItemAtIndexPath: @@:@@
    collectionView:didSelectItemAtIndexPath: v@:@@   +handleLongPress: v@:@   +unlockAlbum:withAlbum: v@:i@
    +requestPassword: v@:i   +unlockAuthorised: v@:i   +reloadCameraRollWithMove: v@:B   showPeople B@:
    showPlaces B@:   titleForCollection: @@:@   subtitleForCollection: @@:@
  PUAlbumListCellContentViewHelper albumCellSize {CGSize=dd}@:
  PUAlbumListCellContentViewHelperConfiguration stackSize {CGSize=dd}@:
  PXPhotosUIViewController viewDidAppear: v@:B
  PUSectionedGridLayout itemSize {CGSize=dd}@:
  PUPhotoViewContentHelper imageContentFrame {CGRect={CGPoint=dd}{CGSize=dd}}@:
  PUAlbumListViewController viewWillAppear: v@:B   viewDidLayoutSubviews v@:
    scrollViewWillBeginDragging: v@:@   collectionView:cellForItemAtIndexPath: @@:@@
    didSelectItemAtIndexPath: v@:@   +handleLongPress: v@:@   +unlockAlbum:withAlbum: v@:i@
    +handleCameraTap: v@:@   +returnSelectedPhotos: v@:B   +requestPassword: v@:i   +unlockAuthorised: v@:i
    +reloadCameraRollWithMove: v@:B   showPeople B@:   showPlaces B@:
    albumListCellContentView:performDeleteAction: v@:@@   setEditing:animated: v@:BB
    titleForCollection: @@:@   subtitleForCollection: @@:@   alwaysHideTabBar B@:
    pu_wantsTabBarVisible B@:
  PUDeletePhotosActionController shouldSkipDeleteConfirmation B@:
  PUAlbumsGadgetViewController viewWillAppear: v@:B
  PHCollectionList collections @@:
  PUNavigationController navigationBar @@:   +syncAlbums v@:
  PUAlbumListCellContentView layoutSubviews v@:   setEditing:animated: v@:BB   +createButtons v@:
    +askToMoveAlbum v@:   +moveAlbum v@:   +lockAlbum v@:   +unlockAlbum:withAlbum: v@:i@
    +requestPassword: v@:i   +unlockAuthorised: v@:i   title @@:
  PUPhotosAlbumViewController shouldShowSectionHeaders B@:
    setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults: v@:@@@@
    initiallyScrolledToBottom B@:   _removeSelectedAssetsWithCompletion: v@:@?   pu_wantsTabBarVisible B@:
  PXUIButton viewidLoad v@:   layoutSubviews v@:
  PUZoomableGridViewController viewWillAppear: v@:B
  PXPhotosContentController contentViewWillAppear: v@:B
  PXCuratedLibraryUIViewController viewWillAppear: v@:B
  PXGadgetDataSource gadgets @@:
  PXPhotoKitCollectionsDataSourceManager _containsAnyAssets: B@:@   canReorderCollection: B@:@
  PUAssetViewModel wantsIrisBadgeVisible B@:
  PUOneUpSettings setDefaultMaximumZoomFactor: v@:d
[com.apple.springboard]
  SpringBoard applicationDidFinishLaunching: v@:@   +handleMessageNamed:withUserInfo: v@:@@
    +authenticate:withUserInfo: v@:@@
[]
  PHCollectionList collections @@:
  PHFetchResult fetchedObjects @@:
  PHAsset .fetchAssetsInAssetCollection:options: @@:@@   .fetchKeyAssetsInAssetCollection:options: @@:@@
  PHAssetCollection .fetchAssetCollectionsWithType:subtype:options: @@:qq@   estimatedAssetCount Q@:
    startsAtEnd B@:   keyAssetsAtEnd B@:)";

std::string nameOf(const device::InstalledHook& hook) {
  const bool isAdded = hook.kind == device::InstalledHook::Kind::added;
  return hook.className +
         (isAdded              ? " +"
          : hook.isClassMethod ? " ."
                               : " ") +
         hook.selector + " " + hook.encoding;
}

void nothing() {}

using Host = std::tuple<std::string_view, bool>;
class Constructor : public PhoneTest, public ::testing::WithParamInterface<Host> {};
const std::string_view kHosts[] = {device::kSpringBoard, device::kPhotos,  device::kCamera,
                                   device::kShopDemo,    device::kGallery, ""};
INSTANTIATE_TEST_SUITE_P(On, Constructor, ::testing::Combine(::testing::ValuesIn(kHosts), ::testing::Bool()));

TEST_P(Constructor, DoesWhatTheHostIsToGetAndNothingElse) {
  const auto& [host, enabled] = GetParam();
  phone_.writePreferences({{"enabled", enabled}});
  std::vector<std::string> expected;
  std::istringstream words(kMethods);
  std::string owner, className, encoding;
  for (std::string word; words >> word;) {
    if (word.front() == '[') {
      owner = word;
    } else if (std::isupper(word.front())) {
      className = word;
    } else {
      words >> encoding;
      const bool isOfAll = owner == "[]" && host != device::kShopDemo;
      if (enabled && (isOfAll || owner == "[" + std::string(host) + "]"))
        expected.push_back(className + " " + word + " " + encoding);
      // An app that has them all: no version does.
      const Class type = objc_getClass(className.c_str());
      const SEL selector = sel_registerName(word.c_str());
      if (std::isalpha(word.front()) && !class_getInstanceMethod(type, selector))
        ASSERT_TRUE(class_addMethod(type, selector, nothing, encoding.c_str()));
    }
  }

  // As far as the loader brings it: before the app's own code.
  become(host);
  device::loadInjectedLibraries();
  std::vector<std::string> installed;
  for (const auto& hook : device::installedHooks()) installed.push_back(nameOf(hook));
  EXPECT_EQ(installed, expected);
  EXPECT_EQ(hasFile(kStateFolder), host == device::kSpringBoard);
  EXPECT_EQ(observers(kReload), 1);
  EXPECT_EQ(observers(kAnswered), host == device::kPhotos ? 1 : 0);
}

using StateFolder = PhoneTest;

TEST_F(StateFolder, IsLeftAsItIsAndAFileInItsPlaceStopsNobody) {
  writeStrings(kLockedAlbums, {"Holidays"});
  EXPECT_NO_THROW(phone_.launch(device::kSpringBoard));
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  remove(kStateFolder);
  write(kStateFolder, "in the way");
  EXPECT_NO_THROW(phone_.launch(device::kSpringBoard));
}

}  // namespace
}  // namespace velvault12
