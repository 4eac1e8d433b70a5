// The Photos app's own classes as code inside the app meets them.

#include "host/photos_ui.hpp"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {

extern "C" {
Class class_getSuperclass(Class type);
const char* method_getTypeEncoding(objc_method* method);
}

namespace {

// Each class with its superclass, and methods of it with their types on an iPhone. Those marked ~ are
// inherited, those marked ? are its own or inherited, those marked - it does not have at all; + marks a class
// method.
constexpr const char* kClasses = R"(
PLPhotosApplication : UIApplication {}
PhotosApplication : PLPhotosApplication {
  applicationDidEnterBackground: v@:@   ~_tabbedLibraryViewController @@: }
FBSystemApp : UIApplication {}
SpringBoard : FBSystemApp { applicationDidFinishLaunching: v@:@ }
PUTabbedLibraryViewController : UITabBarController { selectedNavigationController @@: }
UINavigationController : UIViewController { popToRootViewControllerAnimated: @@:B }
PUNavigationController : UINavigationController { ~navigationBar @@: }
UIView : UIResponder { _viewControllerForAncestor @@: }
UITabBar : UIView { layoutSubviews v@:   items @@:   -hidden }
PXUIButton : UIButton { ~layoutSubviews v@:   -viewidLoad }
PXHorizontalCollectionGadget : PXGadgetViewController {}
PUHorizontalAlbumListGadget : PXHorizontalCollectionGadget {
  ~viewWillAppear: v@:B   ~collectionView:cellForItemAtIndexPath: @@:@@   ~collectionView @@:
  collectionView:didSelectItemAtIndexPath: v@:@@   ~_gadgetAtIndexPath: @@:@   -reloadContentView
  -showPeople   -showPlaces   -titleForCollection:   -subtitleForCollection:   -albumListCellContentView }
PUAlbumGadget : NSObject { albumListCellContentView @@:   title @@:   -provider }
PUAlbumListCell : UICollectionViewCell { albumListCellContentView @@: }
PUAlbumListCellContentViewHelper : NSObject { albumCellSize {CGSize=dd}@: }
PUAlbumListCellContentView : UIView {
  layoutSubviews v@:   setEditing:animated: v@:BB   title @@:   subtitle @@:   setSubtitle: v@:@
  stackView @@:   _deleteButton @@:   _titleTextField @@:   _subtitleLabel @@:
  gestureRecognizerShouldBegin: B@:@ }
PUAlbumListViewController : UIViewController {
  viewWillAppear: v@:B   viewDidLayoutSubviews v@:   setEditing:animated: v@:BB   reloadContentView v@:
  collectionView:cellForItemAtIndexPath: @@:@@   didSelectItemAtIndexPath: v@:@   _handleDoneButton: v@:@
  albumListCellContentView:performDeleteAction: v@:@@   subtitleForCollection: @@:@   collectionView @@:
  _mainCollectionView @@:   _mainTableView @@:   _pickerBannerView @@:   collectionAtIndexPath: @@:@
  _preparedAlbumListCellContentViewAtIndexPath: @@:@   indexPathForAlbumListCellContentView: @@:@
  isPlaceholderAtIndexPath: B@:@   ~pu_wantsTabBarVisible B@:   -alwaysHideTabBar
  -scrollViewWillBeginDragging:   -titleForCollection:   -provider }
PUAlbumsGadgetViewController : PXGadgetViewController {
  viewWillAppear: v@:B   ~collectionView @@:   _handleDoneButton: v@:@   -reloadContentView }
PUPhotosGridViewController : UICollectionViewController {}
PUPhotosAlbumViewController : PUPhotosGridViewController {
  setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults: v@:@@@@
  assetCollection @@:   ?setEditing:animated: v@:BB   ~pu_wantsTabBarVisible B@:   -_handleDoneButton: }
PUZoomableGridViewController : PUPhotosGridViewController {
  viewWillAppear: v@:B   -assetCollection   -_handleDoneButton:   -reloadContentView }
PHCollection : PHObject { localizedTitle @@:   -isTrashBin }
PHCollectionList : PHCollection {
  collections @@:   ?localizedTitle @@:   -title   -assetCollectionType   -assetCollectionSubtype   -isTrashBin }
PHAssetCollection : PHCollection {
  estimatedAssetCount Q@:   startsAtEnd B@:   keyAssetsAtEnd B@:   title @@:   ?localizedTitle @@:
  isTrashBin B@:   assetCollectionType q@:   assetCollectionSubtype q@:
  +fetchAssetCollectionsWithType:subtype:options: @@:qq@ }
PHAsset : PHObject {
  +fetchAssetsInAssetCollection:options: @@:@@   +fetchKeyAssetsInAssetCollection:options: @@:@@ }
PHFetchResult : NSObject { fetchedObjects @@: }
UIDevice : NSObject { _tapticEngine @@: }
_UITapticEngine : NSObject { actuateFeedback: v@:q }
)";

/// Without names of structures and places of arguments; BOOL as an iPhone has it.
std::string plainEncoding(std::string encoding) {
  encoding = std::regex_replace(encoding, std::regex("[A-Za-z]+=|[0-9]+"), "");
  return std::regex_replace(encoding, std::regex("C"), "B");
}

void checkMethod(Class type, std::string method, std::istream& table) {
  const char mark = std::string_view("~?-+").find(method[0]) == std::string_view::npos ? ' ' : method[0];
  if (mark != ' ') method.erase(0, 1);
  Class super = class_getSuperclass(type);
  if (mark == '+') {
    type = object_getClass(reinterpret_cast<id>(type));
    super = object_getClass(reinterpret_cast<id>(super));
  }
  const SEL name = sel_registerName(method.c_str());
  objc_method* const found = class_getInstanceMethod(type, name);
  EXPECT_EQ(found == nullptr, mark == '-') << method;
  if (mark == '-') return;
  std::string encoding;
  table >> encoding;
  if (found == nullptr) return;
  EXPECT_EQ(plainEncoding(method_getTypeEncoding(found)), plainEncoding(encoding)) << method;
  if (mark != '?') EXPECT_EQ(found == class_getInstanceMethod(super, name), mark == '~') << method;
}

TEST(PhotosUIClasses, HaveTheMethodsOfAnIPhoneAndLackWhatItLacks) {
  std::istringstream table(kClasses);
  int classes = 0;
  for (std::string name, colon, super, word; table >> name >> colon >> super >> word; ++classes) {
    SCOPED_TRACE(name);
    const Class type = objc_getClass(name.c_str());
    ASSERT_NE(type, nullptr);
    EXPECT_EQ(class_getName(class_getSuperclass(type)), super);
    while (word.back() != '}' && table >> word && word != "}") checkMethod(type, word, table);
  }
  EXPECT_EQ(classes, 28);
}

class PhotosUI : public PlainPhone {
 protected:
  PhotosUI() {
    auto library = phone_.photoLibrary();
    for (int i = 0; i < 30; ++i) library.addAlbum("Album " + std::to_string(i));
    phone_.launchHere(device::kPhotos);
  }

  static UIViewController top() {
    const auto stack = PhotosApplication(UIApplication::sharedApplication().get())
                           .tabbedLibraryViewController()
                           .selectedNavigationController();
    return ask<"topViewController", UIViewController>(stack);
  }

  const device::User me_ = device::User::here();
};

TEST_F(PhotosUI, TheListKnowsItsTilesWhileTheyAreInSight) {
  me_.tap("See All");
  const auto list = top().as<PUAlbumListViewController>();
  ASSERT_TRUE(list);
  const auto tile = list.tileAtIndexPath(pathTo(3));
  EXPECT_EQ(tile.title().utf8(), "Album 3");
  const auto place = [&] { return ask<"indexPathForAlbumListCellContentView:", NSIndexPath>(list, tile); };
  EXPECT_TRUE((ask<"isEqual:", bool>(place(), pathTo(3))));
  EXPECT_EQ((ask<"_viewControllerForAncestor", UIViewController>(tile)), list);
  EXPECT_FALSE(list.tileAtIndexPath(pathTo(29)));
  me_.tap("Album 29");
  EXPECT_EQ((ask<"title", NSString>(top()).utf8()), "Album 29");
  me_.back();
  EXPECT_TRUE(list.tileAtIndexPath(pathTo(29))) << "it is where it was left";
  EXPECT_FALSE(list.tileAtIndexPath(pathTo(3)));
  EXPECT_EQ(list.collectionAtIndexPath(pathTo(3)).localizedTitle().utf8(), "Album 3");
}

TEST_F(PhotosUI, NoIndexPathRaises) {
  const auto strip =
      ask<"childViewControllers", NSArray>(top()).objectAtIndex(0).as<PUHorizontalAlbumListGadget>();
  EXPECT_EQ(albumTile(strip.gadgetAtIndexPath(pathTo(1))).title().utf8(), "Album 1");
  const NSIndexPath none;
  EXPECT_TRUE(raises([&] { strip.gadgetAtIndexPath(none); }));
  EXPECT_TRUE(raises([&] { strip.select(none); }));
  me_.tap("See All");
  const auto list = top().as<PUAlbumListViewController>();
  EXPECT_TRUE(raises([&] { list.tileAtIndexPath(none); }));
  EXPECT_TRUE(raises([&] { list.collectionAtIndexPath(none); }));
  EXPECT_TRUE(raises([&] { list.select(none); }));
  EXPECT_TRUE(raises([&] { list.performDelete(PUAlbumListCellContentView(), Object()); }));
  EXPECT_TRUE(raises([&] { list.collectionAtIndexPath(pathTo(30)); })) << "past the end";
  EXPECT_EQ(phone_.photoLibrary().allAlbums().size(), 30u);
}

}  // namespace
}  // namespace velvault12
