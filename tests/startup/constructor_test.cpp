// What the library does to each kind of host as it is loaded, with the switch on and off.

#include <gtest/gtest.h>

#include "device/frameworks/installed_hooks.hpp"
#include "device/system/loader.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

using Names = std::vector<std::string>;

/// What one class of a host gets: methods that are replaced, in their order, and new ones.
struct Change {
  std::string_view bundleIdentifier;
  std::string className;
  Names replaced;
  Names added;
};
const Names kChoosing{"chooseAlbum", "createNewAlbum", "adjustRotationToSize:"};
const Change kChanges[] = {
    {device::kCamera,
     "CAMCaptureEngine",
     {"captureOutput:didFinishCaptureForResolvedSettings:error:"},
     {"movePhoto"}},
    {device::kCamera, "CAMMetalView", {"layoutSubviews"}, kChoosing},
    {device::kCamera, "CAMBottomBar", {"layoutSubviews"}, kChoosing},
    {device::kCamera, "CAMImageWell", {"thumbnailImage"}, {}},
    {device::kSpringBoard,
     "SpringBoard",
     {"applicationDidFinishLaunching:"},
     {"handleMessageNamed:withUserInfo:", "authenticate:withUserInfo:"}},
    {device::kPhotos, "PhotosApplication", {"applicationDidEnterBackground:"}, {"returnToMainView"}},
    {device::kPhotos,
     "PUHorizontalAlbumListGadget",
     {"viewWillAppear:", "collectionView:cellForItemAtIndexPath:",
      "collectionView:didSelectItemAtIndexPath:"},
     {"handleLongPress:", "unlockAlbum:withAlbum:", "requestPassword:", "unlockAuthorised:",
      "reloadCameraRollWithMove:"}},
    {device::kPhotos,
     "PUAlbumListViewController",
     {"viewWillAppear:", "viewDidLayoutSubviews", "collectionView:cellForItemAtIndexPath:",
      "didSelectItemAtIndexPath:", "albumListCellContentView:performDeleteAction:", "setEditing:animated:"},
     {"handleLongPress:", "unlockAlbum:withAlbum:", "handleCameraTap:", "returnSelectedPhotos:",
      "requestPassword:", "unlockAuthorised:", "reloadCameraRollWithMove:"}},
    {device::kPhotos, "PUDeletePhotosActionController", {"shouldSkipDeleteConfirmation"}, {}},
    {device::kPhotos,
     "PUAlbumListCellContentView",
     {"layoutSubviews", "setEditing:animated:", "title"},
     {"createButtons", "askToMoveAlbum", "moveAlbum", "lockAlbum",
      "unlockAlbum:withAlbum:", "requestPassword:", "unlockAuthorised:"}},
    {device::kPhotos,
     "PUPhotosAlbumViewController",
     {"setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults:"},
     {}},
    {device::kPhotos, "PUZoomableGridViewController", {"viewWillAppear:"}, {}},
    {device::kPhotos, "PXPhotosContentController", {"contentViewWillAppear:"}, {}},
    {device::kPhotos, "PXCuratedLibraryUIViewController", {"viewWillAppear:"}, {}}};

using Host = std::tuple<std::string_view, bool>;
class Constructor : public PhoneTest, public ::testing::WithParamInterface<Host> {};
const std::string_view kHosts[] = {device::kSpringBoard,    device::kPhotos,  device::kCamera,
                                   "com.apple.store.Jolly", device::kGallery, ""};
INSTANTIATE_TEST_SUITE_P(On, Constructor, ::testing::Combine(::testing::ValuesIn(kHosts), ::testing::Bool()));

TEST_P(Constructor, DoesWhatTheHostIsToGetAndNothingElse) {
  const auto& [host, enabled] = GetParam();
  phone_.writePreferences({{"enabled", enabled}});
  // As far as the loader brings it: before the app's own code.
  become(host);
  device::loadInjectedLibraries();

  Names replaced;
  for (const auto& hook : device::installedHooks()) replaced.push_back(hook.className + " " + hook.selector);
  Names expected;
  for (const Change& change : kChanges) {
    const bool isMade = enabled && change.bundleIdentifier == host;
    for (const auto& name : change.replaced) {
      if (isMade) expected.push_back(change.className + " " + name);
    }
    for (const auto& name : change.added) {
      const Class type = objc_getClass(change.className.c_str());
      EXPECT_EQ(class_getInstanceMethod(type, sel_registerName(name.c_str())) != nullptr, isMade) << name;
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
