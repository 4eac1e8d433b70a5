// The Photos app's own classes as code inside the app meets them.

#include "host/photos_ui.hpp"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "tests/device/frameworks/plain_phone.hpp"
#include "tests/photos/photos_app.hpp"

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
UIViewController : UIResponder { toolbarItems @@: }
UINavigationController : UIViewController {
  popToRootViewControllerAnimated: @@:B   toolbar @@:   setToolbarHidden:animated: v@:BB
  isToolbarHidden B@: }
PUNavigationController : UINavigationController {
  ~navigationBar @@:   _currentToolbarViewController @@: }
UIBarItem : NSObject { title @@:   image @@:   tag q@:   setTag: v@:q   setEnabled: v@:B }
UIBarButtonItem : UIBarItem {
  initWithTitle:style:target:action: @@:@q@:   initWithImage:style:target:action: @@:@q@:
  initWithBarButtonSystemItem:target:action: @@:q@: }
UITabBarItem : UIBarItem {}
UINavigationItem : NSObject {
  leftBarButtonItems @@:   setLeftBarButtonItems: v@:@   leftBarButtonItem @@:
  rightBarButtonItems @@:   setRightBarButtonItems: v@:@   rightBarButtonItem @@: }
UIToolbar : UIView { items @@: }
UIView : UIResponder { _viewControllerForAncestor @@: }
UITabBar : UIView { layoutSubviews v@:   items @@:   -hidden }
PXUIButton : UIButton { ~layoutSubviews v@:   -viewidLoad }
PXGadgetDataSource : PXSectionedDataSource { gadgets @@: }
PXGadgetProvider : NSObject {}
PUAlbumsGadgetProvider : PXGadgetProvider { albumListType Q@: }
PXNavigationListGadget : PXNavigationListController { gadgetType Q@:   -provider   -albumListCellContentView }
PXCollectionsDataSourceManager : PXSectionedDataSourceManager {
  -_containsAnyAssets:   -canReorderCollection: }
PXPhotoKitCollectionsDataSourceManager : PXCollectionsDataSourceManager {
  _containsAnyAssets: B@:@   canReorderCollection: B@:@ }
PXHorizontalCollectionGadget : PXGadgetViewController { -provider }
PUHorizontalAlbumListGadget : PXHorizontalCollectionGadget {
  ~viewWillAppear: v@:B   ~collectionView:cellForItemAtIndexPath: @@:@@   ~collectionView @@:
  collectionView:didSelectItemAtIndexPath: v@:@@   ~_gadgetAtIndexPath: @@:@   -reloadContentView
  -showPeople   -showPlaces   -titleForCollection:   -subtitleForCollection:   -albumListCellContentView
  provider @@:   ?gadgetType Q@: }
PUAlbumGadget : NSObject { albumListCellContentView @@:   title @@:   gadgetType Q@:   -provider }
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
  collectionView:canMoveItemAtIndexPath: B@:@@   isPlaceholderAtIndexPath: B@:@
  ~pu_wantsTabBarVisible B@:   -alwaysHideTabBar   -scrollViewWillBeginDragging:   -titleForCollection:
  -provider }
PUAlbumsGadgetViewController : PXGadgetViewController {
  viewWillAppear: v@:B   ~collectionView @@:   _handleDoneButton: v@:@   -reloadContentView }
PUPhotosGridViewController : UICollectionViewController { selectedAssets @@:   -assetCollection }
PUPhotosAlbumViewController : PUPhotosGridViewController {
  setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults: v@:@@@@
  assetCollection @@:   ?setEditing:animated: v@:BB   ~pu_wantsTabBarVisible B@:   -_handleDoneButton:
  ~selectedAssets @@:   ~_removeSelectedAssetsWithCompletion: v@:@? }
PUZoomableGridViewController : PUPhotosGridViewController {
  viewWillAppear: v@:B   -assetCollection   -_handleDoneButton:   -reloadContentView   ~selectedAssets @@: }
PUDeletePhotosActionController : NSObject { shouldSkipDeleteConfirmation B@: }
PUAssetHidingHelper : NSObject {
  assets @@:   setAssets: v@:@   applyHiddenState:completionHandler: v@:B@? }
PXPhotosUIViewController : UIViewController {
  viewModel @@:   viewDidAppear: v@:B   -viewProvider   -selectedAssets }
PXPhotosContentController : NSObject { viewModel @@:   contentViewWillAppear: v@:B   -viewProvider }
PXPhotosViewModel : NSObject { selectionManager @@: }
PXCuratedLibraryUIViewController : UIViewController {
  viewProvider @@:   viewWillAppear: v@:B   -viewModel   -_handleDoneButton:   -selectedAssets }
PXCuratedLibraryViewProvider : NSObject { viewModel @@: }
PXCuratedLibraryViewModel : NSObject { selectionManager @@: }
PXSectionedSelectionManager : NSObject { selectionSnapshot @@: }
PXSelectionSnapshot : NSObject { fetchSelectedObjects @@: }
PHAssetChangeRequest : PHChangeRequest { +deleteAssets: v@:@ }
PHAssetCollectionChangeRequest : PHChangeRequest {
  addAssets: v@:@   removeAssets: v@:@   +deleteAssetCollections: v@:@
  +changeRequestForAssetCollection:assets: @@:@@ }
PHCollectionListChangeRequest : PHChangeRequest { +deleteCollectionLists: v@:@ }
PHCollection : PHObject { localizedTitle @@:   -isTrashBin }
PHCollectionList : PHCollection {
  collections @@:   ?localizedTitle @@:   -title   -assetCollectionType   -assetCollectionSubtype
  -isTrashBin }
PHAssetCollection : PHCollection {
  estimatedAssetCount Q@:   startsAtEnd B@:   keyAssetsAtEnd B@:   title @@:   ?localizedTitle @@:
  isTrashBin B@:   assetCollectionType q@:   assetCollectionSubtype q@:
  +fetchAssetCollectionsWithType:subtype:options: @@:qq@   +fetchMomentsWithOptions: @@:@
  +transientAssetCollectionWithAssets:title: @@:@@ }
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
  std::string encoding;
  if (mark != '-') table >> encoding;
  ASSERT_EQ(found == nullptr, mark == '-') << method;
  if (mark == '-') return;
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
  EXPECT_EQ(classes, 53);
}

class PhotosUI : public PlainPhone {
 protected:
  static constexpr auto pathTo = &PhotosApp::pathTo;

  device::PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(PhotosUI, TheListKnowsItsTilesWhileTheyAreInSight) {
  for (int i = 0; i < 30; ++i) library_.addAlbum("Album " + std::to_string(i));
  phone_.launchHere(device::kPhotos);
  const auto strip = PhotosApp::strip();
  me_.tap("See All");
  const auto list = PhotosApp::albumList();
  EXPECT_EQ(list.collectionOf(list.tileAtIndexPath(pathTo(3))).localizedTitle().utf8(), "Album 3");
  EXPECT_FALSE(list.tileAtIndexPath(pathTo(29)));
  me_.tap("Album 29");
  me_.back();
  EXPECT_TRUE(list.tileAtIndexPath(pathTo(29))) << "it is where it was left";
  EXPECT_FALSE(list.tileAtIndexPath(pathTo(3)));

  const NSIndexPath none;
  const std::function<void()> mistakes[] = {
      [&] { strip.gadgetAtIndexPath(none); },
      [&] { strip.select(none); },
      [&] { list.tileAtIndexPath(none); },
      [&] { list.collectionAtIndexPath(none); },
      [&] { list.collectionAtIndexPath(pathTo(30)); },
      [&] { list.select(none); },
      [&] { list.performDelete({}, {}); },
  };
  for (const auto& mistake : mistakes) EXPECT_TRUE(raises(mistake)) << &mistake - mistakes;
}

TEST_F(PhotosUI, TheAlbumsTabShowsWhatHoldsSomethingByItsKind) {
  phone_.launchHere(device::kPhotos);
  const auto gadgets = [] { return ask<"childViewControllers", NSArray>(PhotosApp::top()); };
  EXPECT_EQ(gadgets().count(), 0u);
  library_.addAlbum("Pets");
  library_.addSyncedAlbum("Synced");
  library_.addCollection({.title = "Family", .subtype = 101});
  library_.addAsset({.mediaType = device::MediaType::video, .creationDate = 1});
  library_.addAsset({.creationDate = 2, .isHidden = true});
  library_.addAsset({.creationDate = 3, .smartSubtype = 200});
  for (const std::string_view tab : {"Photos", "Albums"}) me_.tap(tab);

  const std::string screen = me_.screen();
  EXPECT_EQ(screen.find("See All"), screen.rfind("See All")) << screen;
  for (const std::string_view empty : {"Selfies", "Places", "Imports"})
    EXPECT_NE(refusal([&] { me_.tap(empty); }), "") << empty;
  EXPECT_EQ(gadgets().count(), 5u);
  for (const std::string_view held : {"Videos", "Hidden"}) {
    me_.tap(held);
    me_.back();
  }
  me_.tap("See All");
  const auto canMove = [&](NSInteger item) {
    return ask<"collectionView:canMoveItemAtIndexPath:", bool>(PhotosApp::top(), Object(), pathTo(item));
  };
  EXPECT_FALSE(canMove(0));
  me_.tap("Edit");
  EXPECT_TRUE(canMove(0));
  EXPECT_FALSE(canMove(1)) << "a computer's";
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
  me_.tap(GetParam());
  me_.tap(kFirst);
  EXPECT_EQ(selected(), 0u);
  me_.tap(kSelect);
  EXPECT_EQ(me_.sees("Remove"), GetParam() == "Pets");
  for (const std::string_view button : {"Delete", "Add To"}) me_.tap(button);
  EXPECT_FALSE(me_.hasAlert() || me_.sees("Add 0 Photos to an album")) << "nothing is selected";
  for (const std::string_view photo : {kFirst, kSecond}) me_.tap(photo);
  EXPECT_TRUE((ask<"selectedAssets", Object>(grid()).isKindOf(objc_getClass("NSSet"))));
  EXPECT_EQ(selected(), 2u);
  me_.tap("Add To");
  EXPECT_FALSE(me_.sees("Edit") || me_.sees(kFirstSelected));
  me_.tap("Synced");
  me_.tap("Folder");
  // What counts is what is selected when the album is chosen.
  ask<"collectionView:didSelectItemAtIndexPath:">(grid(), Object(), pathTo(0));
  me_.tap("Inner");
  EXPECT_TRUE(me_.sees("Select") && !me_.sees("Inner"));
  ASSERT_TRUE(soon([&] { return library_.assetsInAlbum(inner_).size() == 1; }));
  EXPECT_EQ(library_.assetsInAlbum(inner_).front().identifier, second_);

  for (const std::string_view text : {kSelect, kFirst, kFirstSelected}) me_.tap(text);
  EXPECT_TRUE(me_.sees(kFirst));
  me_.tap(kFirst);
  library_.setHidden(second_, true);
  me_.tap("Cancel");
  EXPECT_TRUE(me_.sees(kFirst) && !me_.sees(kSecond)) << "fetched again";
  EXPECT_EQ(selected(), 0u);
  EXPECT_FALSE(me_.sees("Add To"));
}

TEST_F(Selection, IsTakenOutOfItsAlbumOrDeletedOnceThatIsConfirmed) {
  me_.tap("Pets");
  for (const auto text : {kSelect, kSecond}) me_.tap(text);
  me_.tap("Remove");
  me_.waitToSee("Select");
  EXPECT_TRUE(me_.sees(kFirst) && !me_.sees(kSecond));
  EXPECT_EQ(library_.assetsInAlbum(pets_).size(), 1u);
  EXPECT_EQ(library_.allAssets().size(), 2u);

  for (const auto text : {kSelect, kFirst}) me_.tap(text);
  me_.tap("Delete");
  EXPECT_EQ(me_.alert().buttons, (Titles{"Delete 1 Photo", "Cancel"}));
  me_.tap("Cancel");
  EXPECT_EQ(selected(), 1u);
  me_.tap("Delete");
  me_.tap("Delete 1 Photo");
  me_.waitUntilGone(kFirstSelected);
  EXPECT_TRUE(me_.sees("Select") && !me_.sees(kFirst));
  EXPECT_EQ(library_.allAssets().front().identifier, second_);
}

}  // namespace
}  // namespace velvault12
