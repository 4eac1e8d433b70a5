// What the library does to each kind of host as it is loaded, with the switch on and off.

#include <gtest/gtest.h>

#include <cctype>
#include <sstream>

#include "device/frameworks/installed_hooks.hpp"
#include "device/system/loader.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

// What each [host] gets, and [] all of them: classes, behind each its methods that are replaced, in their
// order, and new ones (+). A class's own methods begin with a dot.
constexpr const char* kMethods = R"(
[com.apple.camera]
    CAMCaptureEngine captureOutput:didFinishCaptureForResolvedSettings:error: +movePhoto
    CAMMetalView layoutSubviews +chooseAlbum +createNewAlbum +adjustRotationToSize:
    CAMBottomBar layoutSubviews +chooseAlbum +createNewAlbum +adjustRotationToSize:
    CAMImageWell thumbnailImage
[com.apple.springboard]
    SpringBoard applicationDidFinishLaunching:
        +handleMessageNamed:withUserInfo: +authenticate:withUserInfo:
[com.apple.mobileslideshow]
    PhotosApplication applicationDidEnterBackground: +returnToMainView
    PUHorizontalAlbumListGadget viewWillAppear:
        collectionView:cellForItemAtIndexPath: collectionView:didSelectItemAtIndexPath:
        +handleLongPress: +unlockAlbum:withAlbum: +requestPassword: +unlockAuthorised:
        +reloadCameraRollWithMove:
    PUAlbumListViewController viewWillAppear: viewDidLayoutSubviews
        collectionView:cellForItemAtIndexPath: didSelectItemAtIndexPath:
        albumListCellContentView:performDeleteAction: setEditing:animated:
        +handleLongPress: +unlockAlbum:withAlbum: +requestPassword: +unlockAuthorised:
        +reloadCameraRollWithMove: +handleCameraTap: +returnSelectedPhotos:
    PUDeletePhotosActionController shouldSkipDeleteConfirmation
    PHCollectionList collections
    PUAlbumListCellContentView layoutSubviews setEditing:animated: title
        +unlockAlbum:withAlbum: +requestPassword: +unlockAuthorised:
        +createButtons +askToMoveAlbum +moveAlbum +lockAlbum
    PUPhotosAlbumViewController
        setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults:
    PUZoomableGridViewController viewWillAppear:
    PXPhotosContentController contentViewWillAppear:
    PXCuratedLibraryUIViewController viewWillAppear:
    PXGadgetDataSource gadgets
    PXPhotoKitCollectionsDataSourceManager _containsAnyAssets: canReorderCollection:
[]
    PHCollectionList collections
    PHFetchResult fetchedObjects
    PHAsset .fetchAssetsInAssetCollection:options: .fetchKeyAssetsInAssetCollection:options:
    PHAssetCollection .fetchAssetCollectionsWithType:subtype:options:
        estimatedAssetCount startsAtEnd keyAssetsAtEnd)";

using Host = std::tuple<std::string_view, bool>;
class Constructor : public PhoneTest, public ::testing::WithParamInterface<Host> {};
const std::string_view kHosts[] = {device::kSpringBoard, device::kPhotos,  device::kCamera,
                                   device::kShopDemo,    device::kGallery, ""};
INSTANTIATE_TEST_SUITE_P(On, Constructor, ::testing::Combine(::testing::ValuesIn(kHosts), ::testing::Bool()));

TEST_P(Constructor, DoesWhatTheHostIsToGetAndNothingElse) {
  const auto& [host, enabled] = GetParam();
  phone_.writePreferences({{"enabled", enabled}});
  // As far as the loader brings it: before the app's own code.
  become(host);
  device::loadInjectedLibraries();

  std::vector<std::string> replaced, expected;
  for (const auto& hook : device::installedHooks())
    replaced.push_back(hook.className + (hook.isClassMethod ? " ." : " ") + hook.selector);
  std::istringstream words(kMethods);
  std::string owner, className;
  for (std::string word; words >> word;) {
    const bool isOfAll = owner == "[]" && host != device::kShopDemo;
    const bool isMade = enabled && (isOfAll || owner == "[" + std::string(host) + "]");
    if (word.front() == '[') {
      owner = word;
    } else if (std::isupper(word.front())) {
      className = word;
    } else if (word.front() == '+') {
      const Class type = objc_getClass(className.c_str());
      const SEL added = sel_registerName(word.c_str() + 1);
      EXPECT_EQ(class_getInstanceMethod(type, added) != nullptr, isMade) << className << word;
    } else if (isMade) {
      expected.push_back(className + " " + word);
    }
  }
  EXPECT_EQ(replaced, expected);
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
