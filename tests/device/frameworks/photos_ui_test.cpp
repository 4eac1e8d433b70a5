// The Photos app's own classes as code inside the app meets them.

#include "host/photos_ui.hpp"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "host/class_pair.hpp"
#include "host/hook.hpp"
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
UIViewController : UIResponder { toolbarItems @@: }
UINavigationController : UIViewController {
  popToRootViewControllerAnimated: @@:B   toolbar @@:   setToolbarHidden:animated: v@:BB   isToolbarHidden B@: }
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
  EXPECT_EQ(classes, 47);
}

using UIBarButton = HostClass<"UIBarButtonItem">;

Object arrayOf(std::initializer_list<Object> objects) {
  auto array = makeObject<NSMutableArray>();
  for (const Object object : objects) array->addObject(object);
  return std::move(array).autorelease();
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

TEST_F(PhotosUI, ADeletedAlbumLeavesTheListWhenTheLibraryHasDeletedIt) {
  me_.tap("See All");
  me_.tap("Edit");
  me_.tap("Delete Album 3");
  me_.waitUntilGone("Album 3");
  EXPECT_TRUE(me_.sees("Delete Album 4")) << "still editing";
  EXPECT_EQ(phone_.photoLibrary().allAlbums().size(), 29u);
}

std::vector<std::string> senders;
void noteSender(Object, Object sender) {
  senders.push_back("item " + std::to_string(ask<"tag", NSInteger>(sender)));
}
void noteSending(Object) { senders.emplace_back("nobody"); }

TEST_F(PhotosUI, BarsShowAllTheirItemsTheFirstOnTheOutside) {
  ClassPair(classNamed<"NSObject">(), "ItemTarget")
      .method<noteSender>(selector<"note:">(), "v@:@")
      .method<noteSending>(selector<"note">(), "v@:")
      .registered();
  const auto target = makeObject<HostClass<"ItemTarget">>();
  const auto tagged = [](Ref<UIBarButton> item, NSInteger tag) {
    ask<"setTag:">(item.get(), tag);
    return item;
  };
  const auto withTitle = [&](std::string_view title, SEL action) {
    return makeObject<UIBarButton, "initWithTitle:style:target:action:">(NSString::from(title), NSInteger{0},
                                                                         target.get(), action);
  };
  const auto picture = ask<"_imageOfColor:size:name:", Object>(hostType<"UIImage">(), Object(),
                                                               CGSize{100, 50}, NSString::from("picture"));
  const auto first = tagged(withTitle("First", selector<"note:">()), 1);
  const auto second = tagged(makeObject<UIBarButton, "initWithImage:style:target:action:">(
                                 picture, NSInteger{0}, target.get(), selector<"note:">()),
                             2);
  const auto camera = tagged(makeObject<UIBarButton, "initWithBarButtonSystemItem:target:action:">(
                                 NSInteger{15}, target.get(), selector<"note:">()),
                             3);
  const auto last = withTitle("Last", selector<"note">());

  me_.tap("See All");
  const auto item = ask<"navigationItem", Object>(top());
  ask<"setRightBarButtonItems:">(item, arrayOf({first.get(), second.get()}));
  ask<"setLeftBarButtonItem:">(item, camera.get());
  const std::string screen = me_.screen();
  EXPECT_NE(screen.find("UIButton \"First\" (279 0 80 44)"), std::string::npos) << screen;
  EXPECT_NE(screen.find("UIButton (235 0 44 44)"), std::string::npos) << screen;
  EXPECT_NE(screen.find("UIImageView \"picture\" (8 15 28 14)"), std::string::npos) << screen;
  EXPECT_NE(refusal([&] { me_.back(); }), "") << "left items take the back button's place";
  for (const std::string_view text : {"First", "picture", "Camera"}) me_.tap(text);
  EXPECT_EQ(std::exchange(senders, {}), (Titles{"item 1", "item 2", "item 3"}));

  ask<"setEnabled:">(first.get(), false);
  ask<"setLeftBarButtonItem:">(item, Object());
  EXPECT_FALSE((ask<"leftBarButtonItems", Object>(item)));
  ask<"setToolbarItems:">(top(), arrayOf({camera.get(), last.get()}));
  EXPECT_FALSE(me_.sees("Last")) << "hidden at first";
  ask<"setToolbarHidden:animated:">(ask<"navigationController", Object>(top()), false, true);
  for (const std::string_view text : {"First", "Last", "Camera"}) me_.tap(text);
  EXPECT_EQ(std::exchange(senders, {}), (Titles{"nobody", "item 3"}));
  ask<"setRightBarButtonItem:">(item, last.get());
  EXPECT_FALSE(me_.sees("First"));
  EXPECT_EQ((ask<"rightBarButtonItems", NSArray>(item).count()), 1u);
  me_.back();
  EXPECT_FALSE(me_.sees("Camera")) << "the next controller has no toolbar items";
}

int contentAppearances = 0;
void contentAppears(Object, Replaced<void(bool)> host, bool animated) {
  ++contentAppearances;
  host(animated);
}

TEST_F(PhotosUI, LaterScreensTellWhatIsSelectedInThem) {
  const HookRow row[] = {replace<contentAppears>("PXPhotosContentController", "contentViewWillAppear:")};
  installHooks(row);
  const auto photos = makeObject<HostClass<"PXPhotosUIViewController", UIViewController>>();
  const auto library = makeObject<HostClass<"PXCuratedLibraryUIViewController", UIViewController>>();
  const Object viewModels[] = {
      ask<"viewModel", Object>(photos.get()),
      ask<"viewModel", Object>(ask<"viewProvider", Object>(library.get())),
  };
  for (const Object viewModel : viewModels) {
    const auto manager = ask<"selectionManager", Object>(viewModel);
    const auto selected = [&] {
      return ask<"fetchSelectedObjects", Object>(ask<"selectionSnapshot", Object>(manager));
    };
    const Object before = selected();
    ask<"_selectObjects:">(manager, arrayOf({NSString::from("one"), NSString::from("two")}));
    EXPECT_EQ((ask<"count", NSUInteger>(before)), 0u) << "a snapshot stays as it is";
    EXPECT_EQ((ask<"count", NSUInteger>(selected())), 2u);
    EXPECT_FALSE(selected().isKindOf(NSArray::hostClass()));
  }
  ask<"pushViewController:animated:">(ask<"navigationController", Object>(top()), photos.get(), true);
  EXPECT_EQ(contentAppearances, 1);
}

enum class From { album, library };
void PrintTo(From from, std::ostream* out) { *out << (from == From::album ? "album" : "library"); }

class Selection : public PlainPhone, public ::testing::WithParamInterface<From> {
 protected:
  static constexpr std::string_view kFirst = "Photo, 1970-01-01 00:00:01";
  static constexpr std::string_view kSecond = "Photo, 1970-01-01 00:00:02";
  static constexpr std::string_view kFirstSelected = "Photo, 1970-01-01 00:00:01, selected";

  Selection() {
    for (const auto photo : {first_, second_}) library_.addToAlbum(photo, pets_);
    library_.addSyncedAlbum("Synced");
    phone_.launchHere(device::kPhotos);
  }

  void open(From from = From::album) const { me_.tap(from == From::album ? "Pets" : "Photos"); }
  void select(std::initializer_list<std::string_view> photos) const {
    me_.tap("Select");
    for (const auto photo : photos) me_.tap(photo);
  }
  static UINavigationController navigation() {
    return PhotosApplication(UIApplication::sharedApplication().get())
        .tabbedLibraryViewController()
        .selectedNavigationController();
  }
  static Object grid() { return ask<"_currentToolbarViewController", Object>(navigation()); }
  static NSUInteger selected() { return ask<"count", NSUInteger>(ask<"selectedAssets", Object>(grid())); }
  bool soonHolds(std::int64_t album, std::size_t count) const {
    return soon([&] { return library_.assetsInAlbum(album).size() == count; });
  }

  device::PhotoDatabase library_ = phone_.photoLibrary();
  const std::int64_t pets_ = library_.addAlbum("Pets");
  const std::int64_t inner_ = library_.addAlbum("Inner", library_.addFolder("Folder"));
  const std::int64_t first_ = library_.addAsset({.creationDate = 1});
  const std::int64_t second_ = library_.addAsset({.creationDate = 2});
  const device::User me_ = device::User::here();
};
INSTANTIATE_TEST_SUITE_P(PhotosUI, Selection, ::testing::Values(From::album, From::library),
                         ::testing::PrintToStringParamName());

TEST_P(Selection, IsMadeByTouchingPhotosAndEndsWithCancel) {
  open(GetParam());
  me_.tap(kFirst);
  EXPECT_EQ(selected(), 0u);
  EXPECT_FALSE(me_.sees("Add To"));
  select({kFirst, kSecond});
  EXPECT_EQ(selected(), 2u);
  me_.tap("Photo, 1970-01-01 00:00:02, selected");
  EXPECT_TRUE(me_.sees(kFirstSelected) && me_.sees(kSecond));
  EXPECT_EQ(selected(), 1u);
  EXPECT_TRUE((ask<"selectedAssets", Object>(grid()).isKindOf(objc_getClass("NSSet"))));
  library_.setHidden(second_, true);
  EXPECT_TRUE(me_.sees(kSecond));
  me_.tap("Cancel");
  EXPECT_TRUE(me_.sees(kFirst) && !me_.sees(kSecond)) << "fetched again";
  EXPECT_EQ(selected(), 0u);
  EXPECT_FALSE(me_.sees("Add To"));

  me_.tap("Select");
  for (const std::string_view button : {"Delete", "Add To"}) me_.tap(button);
  EXPECT_FALSE(me_.hasAlert() || me_.sees("Add 0 Photos to an album")) << "nothing is selected";
  ask<"popToRootViewControllerAnimated:", Object>(navigation(), true);
  if (GetParam() == From::album) EXPECT_FALSE(me_.sees("Add To") || me_.sees("Cancel"));
}

TEST_P(Selection, IsAddedToTheAlbumThatIsPicked) {
  open(GetParam());
  select({kFirst});
  me_.tap("Add To");
  EXPECT_TRUE(me_.sees("Add 1 Photo to an album"));
  EXPECT_FALSE(me_.sees("Edit") || me_.sees(kFirstSelected));
  me_.tap("Cancel");
  EXPECT_TRUE(me_.sees(kFirstSelected) && !me_.sees("Folder"));
  me_.tap(kSecond);
  me_.tap("Add To");
  me_.tap("Synced");
  me_.tap("Folder");
  EXPECT_TRUE(me_.sees("Add 2 Photos to an album"));
  // What counts is what is selected when the album is chosen.
  ask<"collectionView:didSelectItemAtIndexPath:">(grid(), Object(), pathTo(0));
  me_.tap("Inner");
  EXPECT_TRUE(me_.sees("Select") && !me_.sees("Inner"));
  EXPECT_EQ(selected(), 0u);
  ASSERT_TRUE(soonHolds(inner_, 1));
  EXPECT_EQ(library_.assetsInAlbum(inner_).front().identifier, second_);
}

bool skip(Object, Replaced<bool()>) { return true; }

TEST_P(Selection, IsDeletedOnceThatIsConfirmed) {
  open(GetParam());
  select({kFirst});
  me_.tap("Delete");
  EXPECT_EQ(me_.alert().buttons, (Titles{"Delete 1 Photo", "Cancel"}));
  me_.tap("Cancel");
  EXPECT_EQ(selected(), 1u);
  EXPECT_EQ(library_.allAssets().size(), 2u);
  me_.tap("Delete");
  me_.tap("Delete 1 Photo");
  me_.waitUntilGone(kFirstSelected);
  EXPECT_TRUE(me_.sees(kSecond) && me_.sees("Select") && !me_.sees(kFirst));
  EXPECT_EQ(library_.allAssets().front().identifier, second_);

  const HookRow row[] = {replace<skip>("PUDeletePhotosActionController", "shouldSkipDeleteConfirmation")};
  installHooks(row);
  select({kSecond});
  me_.tap("Delete");
  EXPECT_TRUE(soon([&] { return library_.allAssets().empty(); }));
}

TEST_F(Selection, IsTakenOutOfAnAlbumButNotOutOfTheLibrary) {
  open(From::library);
  me_.tap("Select");
  EXPECT_FALSE(me_.sees("Remove"));
  me_.tap("Albums");
  open();
  select({kFirst});
  me_.tap("Remove");
  me_.waitToSee("Select");
  EXPECT_TRUE(me_.sees(kSecond) && !me_.sees(kFirst));
  EXPECT_EQ(library_.assetsInAlbum(pets_).size(), 1u);
  EXPECT_EQ(library_.allAssets().size(), 2u);
}

}  // namespace
}  // namespace velvault12
