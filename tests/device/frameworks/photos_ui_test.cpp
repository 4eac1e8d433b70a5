// The Photos app's own classes as code inside the app meets them.

#include "host/photos_ui.hpp"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>
#include <tuple>

#include "device/frameworks/installed_hooks.hpp"
#include "host/hook.hpp"
#include "tests/device/frameworks/plain_phone.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {

extern "C" {
Class class_getSuperclass(Class type);
const char* method_getTypeEncoding(objc_method* method);
void MSHookMessageEx(Class type, SEL selector, IMP implementation, IMP* replaced);
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
PUTabbedLibraryViewController : UITabBarController {
  selectedNavigationController @@:   excludedContentModes @@: }
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
UITabBar : UIView { layoutSubviews v@:   items @@:   setHidden: v@:B   ~isHidden B@:   -hidden }
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
PUAlbumListCellContentViewHelperConfiguration : NSObject { stackSize {CGSize=dd}@: }
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
  showPeople B@:   showPlaces B@:   ~pu_wantsTabBarVisible B@:   -alwaysHideTabBar
  -scrollViewWillBeginDragging:   -titleForCollection:   -provider }
PUAlbumsGadgetViewController : PXGadgetViewController {
  viewWillAppear: v@:B   ~collectionView @@:   _handleDoneButton: v@:@   -reloadContentView }
UICollectionViewLayout : NSObject { -itemSize }
PUSectionedGridLayout : UICollectionViewLayout { itemSize {CGSize=dd}@: }
PUPhotosGridViewController : UICollectionViewController {
  selectedAssets @@:   initiallyScrolledToBottom B@:   setInitiallyScrolledToBottom: v@:B
  -assetCollection   -shouldShowSectionHeaders }
PUPhotosAlbumViewController : PUPhotosGridViewController {
  setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults: v@:@@@@
  assetCollection @@:   ?setEditing:animated: v@:BB   ~pu_wantsTabBarVisible B@:   -_handleDoneButton:
  ~selectedAssets @@:   ~_removeSelectedAssetsWithCompletion: v@:@?   shouldShowSectionHeaders B@:
  ~initiallyScrolledToBottom B@:   ~setInitiallyScrolledToBottom: v@:B }
PUZoomableGridViewController : PUPhotosGridViewController {
  viewWillAppear: v@:B   -assetCollection   -_handleDoneButton:   -reloadContentView   ~selectedAssets @@: }
PUOneUpViewController : UIViewController { -selectedAssets   -assetCollection }
PUPhotoViewContentHelper : NSObject { imageContentFrame {CGRect={CGPoint=dd}{CGSize=dd}}@: }
PUAssetViewModel : PUViewModel { wantsIrisBadgeVisible B@: }
PUOneUpSettings : PXSettings {
  +sharedInstance @@:   defaultMaximumZoomFactor d@:   setDefaultMaximumZoomFactor: v@:d }
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
  EXPECT_EQ(classes, 60);
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
  EXPECT_FALSE(me_.sees(kSelect)) << "it is shown alone";
  me_.back();
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

TEST_F(PhotosUI, AnAlbumTellsTheDaysOfItsPhotosAboveThem) {
  constexpr double kEndOfDay = 1'700'092'799, kDay = 86'400;
  const auto pets = library_.addAlbum("Pets");
  const auto first = library_.addAsset({.creationDate = kEndOfDay});
  const auto last = library_.addAsset({.creationDate = kEndOfDay + kDay + 1});
  for (const auto photo : {first, last}) library_.addToAlbum(photo, pets);
  phone_.launchHere(device::kPhotos);
  me_.tap("Pets");
  EXPECT_TRUE(me_.sees("2023-11-15 \u2013 2023-11-17"));
  EXPECT_NE(me_.screen().find("PUPhotosGridCell (1 45 92 92)"), std::string::npos) << me_.screen();
  const auto withoutOne = [&](std::int64_t photo) {
    library_.removeFromAlbum(photo, pets);
    for (const std::string_view tab : {"Photos", "Albums"}) me_.tap(tab);
    return me_.screen();
  };
  EXPECT_NE(withoutOne(last).find("UILabel \"2023-11-15\""), std::string::npos);
  EXPECT_EQ(withoutOne(first).find("PUPhotosSectionHeaderView"), std::string::npos);
  me_.tap("Photos");
  EXPECT_EQ(me_.screen().find("PUPhotosSectionHeaderView"), std::string::npos);
}

TEST_F(PhotosUI, AGridOpensWhereItStartsAndStaysWhereItWasLeft) {
  for (double second = 0; second < 60; ++second) library_.addAsset({.creationDate = second});
  const std::string_view first = "Photo, 1970-01-01 00:00:00", last = "Photo, 1970-01-01 00:00:59";
  const auto isAtEnd = [&] { return me_.sees(last) && !me_.sees(first); };
  phone_.launchHere(device::kPhotos);
  const auto camera = ask<"_cameraRoll", Object>(hostType<"PHAssetCollection">());
  const auto day =
      PHAssetCollection::fetch(PHAssetCollection::Type::moment, PHAssetCollection::Subtype::any, {});
  for (const auto& [collection, isToldSo, opensAtEnd] : {std::tuple{camera, false, true},
                                                         {day.firstObject(), true, true},
                                                         {day.firstObject(), false, false}}) {
    const auto grid = makeObject<PUPhotosAlbumViewController>();
    ask<"setAssetCollection:">(grid.get(), collection);
    ask<"setInitiallyScrolledToBottom:">(grid.get(), isToldSo);
    ask<"pushViewController:animated:">(PhotosApp::navigation(), UIViewController(grid.get()), true);
    EXPECT_EQ(isAtEnd(), opensAtEnd) << isToldSo;
  }
  me_.tap("Photos");
  EXPECT_TRUE(isAtEnd());
  me_.tap(first);
  me_.back();
  for (const std::string_view tab : {"Albums", "Photos"}) me_.tap(tab);
  EXPECT_TRUE(me_.sees(first) && !me_.sees(last)) << "it was scrolled there";
}

bool wantsBadge(Object, Replaced<bool()>) { return true; }

TEST_F(PhotosUI, APhotoIsShownAsLargeAsItFitsAndZoomed) {
  const std::string_view plain = "Photo, 1970-01-01 00:00:01", live = "Photo, 1970-01-01 00:00:02";
  library_.addAsset({.creationDate = 1});
  library_.addAsset({.creationDate = 2, .smartSubtype = 213});
  phone_.launchHere(device::kPhotos);
  me_.tap("Photos");
  me_.tap(live);
  EXPECT_FALSE(me_.sees("LIVE") || me_.sees(plain));
  const auto liesAt = [&](std::string_view frame) {
    return me_.picture().find("00:00:02\" data-frame=\"" + std::string(frame)) != std::string::npos;
  };
  EXPECT_TRUE(liesAt("0 158.5 375 500"));
  for (int again = 0; again < 2; ++again) {
    me_.zoomIn(live);
    EXPECT_TRUE(liesAt("-937.5 -1091.5 2250 3000")) << "around its middle, " << again;
  }
  me_.back();
  const HookRow row[] = {replace<wantsBadge>("PUAssetViewModel", "wantsIrisBadgeVisible", "B@:")};
  installHooks(row);
  for (const auto photo : {live, plain}) {
    me_.tap(photo);
    EXPECT_EQ(me_.sees("LIVE"), photo == live);
    me_.back();
  }
}

/// Puts an answer in the place of a method that takes no arguments.
template <class Result>
void answerInstead(const char* className, const char* selector, Result (*answer)(id, SEL)) {
  MSHookMessageEx(objc_getClass(className), sel_registerName(selector), reinterpret_cast<IMP>(answer), {});
}

TEST_F(PhotosUI, TabsAreLeftOutByTheirContentModesWhichAreNumbers) {
  static const auto modes = makeObject<NSMutableArray>();
  for (const int mode : {10, 11, 13}) modes->addObject(NSNumber::from(mode));
  answerInstead<id>("PUTabbedLibraryViewController", "excludedContentModes",
                    [](id, SEL) { return modes.get().get(); });
  phone_.launchHere(device::kPhotos);
  library_.addCollection({.title = "Family", .subtype = 101});
  for (const std::string_view text : {"Photos", "Shared", "Family"}) me_.tap(text);
  EXPECT_FALSE(me_.sees("Memories") || me_.sees("Albums"));
  modes->addObject(NSString::from("0"));
  EXPECT_TRUE(raises([] { makeObject<PUTabbedLibraryViewController>(); }));
}

TEST_F(PhotosUI, TheTabBarComesAndGoesWithTheControllersOnTop) {
  library_.addAlbum("Pets");
  answerInstead<bool>("PUPhotosAlbumViewController", "pu_wantsTabBarVisible", [](id, SEL) { return false; });
  phone_.launchHere(device::kPhotos);
  const auto tab = PhotosApp::navigation();
  const auto tabs = ask<"parentViewController", Object>(tab);
  const UIView content = ask<"view", UIView>(tab), bar = ask<"tabBar", UIView>(tabs);
  const auto height = [&] { return me_.screen().empty() ? 0 : content.frame().size.height; };
  EXPECT_EQ(height(), 729);
  me_.tap("Pets");
  EXPECT_EQ(height(), 812);
  me_.back();
  EXPECT_EQ(height(), 729);
  bar.setHidden(true);
  EXPECT_EQ(height(), 812);
  ask<"setSelectedIndex:">(tabs, NSUInteger(0));
  EXPECT_TRUE(me_.sees("Memories"));
  answerInstead<void>("UITabBar", "layoutSubviews", [](id self, SEL) { UIView(self).setHidden(true); });
  bar.setHidden(true);
  ask<"setSelectedIndex:">(tabs, NSUInteger(3));
  EXPECT_EQ(height(), 812) << "shown, it is laid out";
  EXPECT_FALSE((ask<"_isLayoutScheduled", bool>(UIApplication::sharedApplication())));
}

TEST_F(PhotosUI, TilesFollowBothOfTheirSizesWheneverTheyAppear) {
  library_.addAlbum("Pets");
  phone_.launchHere(device::kPhotos);
  const auto shows = [&](std::initializer_list<const char*> lines) {
    const std::string screen = me_.screen();
    for (const char* const line : lines) EXPECT_NE(screen.find(line), std::string::npos) << line << screen;
  };
  me_.tap("See All");
  answerInstead(
      "PUAlbumListCellContentViewHelperConfiguration", "stackSize", +[](id, SEL) {
        return CGSize{100, 120};
      });
  EXPECT_EQ(device::installedHooks().back().encoding, "{CGSize=dd}@:");
  for (const std::string_view tab : {"Photos", "Albums"}) me_.tap(tab);
  shows({"(16 16 100 164)", "PUStackView (0 0 100 120)", "\"Pets\" (0 124 100 20)"});
  answerInstead(
      "PUAlbumListCellContentViewHelper", "albumCellSize", +[](id, SEL) {
        return CGSize{200, 300};
      });
  me_.back();
  shows({"(0 0 375 376)", "(16 16 200 300)", "PUStackView (0 0 100 120)", "\"Pets\" (0 124 200 20)"});
}

TEST_F(PhotosUI, TheTopLevelsListEndsWithPeopleAndPlacesUnlessTheyAreEmpty) {
  library_.addFolder("Trips");
  library_.addAsset({.creationDate = 1, .smartSubtype = 200});
  phone_.launchHere(device::kPhotos);
  me_.tap("See All");
  EXPECT_EQ(PhotosApp::albumList().collectionAtIndexPath(pathTo(1)).localizedTitle().utf8(), "People");
  EXPECT_FALSE(me_.sees("Places"));
  library_.addAsset({.creationDate = 2, .smartSubtype = 1000000203});
  answerInstead<bool>("PUAlbumListViewController", "showPeople", [](id, SEL) { return false; });
  EXPECT_EQ(device::installedHooks().back().encoding, "B@:");
  ask<"reloadContentView">(PhotosApp::albumList());
  EXPECT_TRUE(me_.sees("Places") && !me_.sees("People"));
  me_.tap("Trips");
  EXPECT_FALSE(me_.sees("Places"));
  for (const std::string_view text : {"Photos", "Select", "Photo, 1970-01-01 00:00:01", "Add To"})
    me_.tap(text);
  EXPECT_TRUE(me_.sees("Trips") && !me_.sees("Places")) << "nothing can be added there";
}

}  // namespace
}  // namespace velvault12
