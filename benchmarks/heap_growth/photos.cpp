#include "benchmarks/heap_growth/heap_growth.hpp"
#include "tests/photo_library.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

constexpr NSInteger kLocked = 0, kOpen = 1, kDoomed = 3;
const Preferences kAllThatChangesSomething = {
    {"passOption", 2},      {"returnToMainDefault", true}, {"shrinkAlbums", true},
    {"skipDelete", true},   {"reorderStock", true},        {"showLiveBadge", true},
    {"increaseZoom", true}, {"showTabMemories", false},    {"showAnimated", false},
    {"layoutFontSize", 20}, {"showMediaTypes", false}};

// Methods that no known version of the app has.
ObjcBool yes(id, SEL) { return 1; }
void nothing(id, SEL) {}
void dragged(id, SEL, id) {}
id titleOf(id, SEL, id collection) { return PHCollection(collection).localizedTitle().get(); }

template <class Function>
void give(const char* className, const char* selector, Function function, const char* encoding) {
  class_addMethod(objc_getClass(className), sel_registerName(selector), reinterpret_cast<IMP>(function),
                  encoding);
}

void giveMissingMethods() {
  give("UITabBar", "hidden", yes, "B@:");
  for (const char* selector : {"showPeople", "showPlaces"})
    give("PUHorizontalAlbumListGadget", selector, yes, "B@:");
  for (const char* selector : {"titleForCollection:", "subtitleForCollection:"})
    give("PUHorizontalAlbumListGadget", selector, titleOf, "@@:@");
  give("PUAlbumListViewController", "titleForCollection:", titleOf, "@@:@");
  give("PUAlbumListViewController", "scrollViewWillBeginDragging:", dragged, "v@:@");
  give("PUAlbumListViewController", "alwaysHideTabBar", yes, "B@:");
  give("PXUIButton", "viewidLoad", nothing, "v@:");
}

int answers = 0;
template <Name ClassName>
void countAnswer(Object, Replaced<void(int)> host, int method) {
  host(method);
  ++answers;
}

void countAnswers() {
  const HookRow rows[] = {
      replace<countAnswer<"strip">>("PUHorizontalAlbumListGadget", "unlockAuthorised:", "v@:i"),
      replace<countAnswer<"list">>("PUAlbumListViewController", "unlockAuthorised:", "v@:i"),
      replace<countAnswer<"tile">>("PUAlbumListCellContentView", "unlockAuthorised:", "v@:i")};
  installHooks(rows);
}

/// The list of albums is on screen, of which "Locked" is locked; SpringBoard answers yes at once.
class PhotosHost : public PhotosApp {
 public:
  PhotosHost() {
    for (const auto& album : library_.allAlbums()) library_.removeCollection(album.identifier);
    for (const std::string_view title : {"Locked", "Open", "Empty"})
      albums_[title] = library_.addAlbum(title);
    for (const std::string_view title : {"Locked", "Open"}) {
      photo_ = library_.addAsset({});
      library_.addToAlbum(photo_, albums_[title]);
    }
    doomedPhoto_ = library_.addAsset({.isHidden = true});
  }

  /// Where nobody saves what is to be saved.
  bool keepsNothingAlone(Effort effort) {
    open(From::strip, {}, kAllThatChangesSomething);
    springBoard_->kill();
    remove(kLockedAlbums);
    auto hooks = letTimePass();
    std::erase_if(hooks, [](const auto& hook) { return hook.selector != "viewWillAppear:"; });
    return measure(effort, hooks, {});
  }

  bool keepsNothing(Effort effort) {
    write(kPassword, "right");
    giveMissingMethods();
    open(From::strip, {"Locked"}, kAllThatChangesSomething);
    const auto hooks = letTimePass();
    strip_ = Ref(strip());
    tab_ = Ref(top());
    me_.tap("See All");
    list_ = Ref(albumList());
    countAnswers();
    const FolderEvents events(phone_.onDisk(kStateFolder));
    Drivers drivers;
    addReceivers(drivers);
    addLibraryFilter(drivers);
    addController(drivers, "PUHorizontalAlbumListGadget", strip_.get());
    addController(drivers, "PUAlbumListViewController", list_.get());
    addStrip(drivers);
    addList(drivers);
    addTile(drivers);
    addOthers(drivers);
    return measure(effort, hooks, drivers);
  }

 private:
  void TestBody() override {}

  template <class... All>
  static void add(Drivers& drivers, All... all) {
    (drivers.all.push_back(all), ...);
  }

  static void pop() { navigation().send<"popViewControllerAnimated:", Object(bool)>(false); }
  /// An answer may have opened the album that was selected last.
  void popToList() const {
    while (top() != list_.get()) pop();
  }
  static void push(UIViewController controller) {
    navigation().send<"pushViewController:animated:", void(UIViewController, bool)>(controller, false);
  }
  static void layOut(UIView view) { view.send<"layoutSubviews", void()>(); }
  void awaitLocked(const Titles& titles) const {
    await([&] { return phone_.strings(kLockedAlbums) == titles; });
  }
  static void awaitAndLeave(std::string_view album) {
    await([&] { return openAlbum() == album; });
    pop();
  }
  /// A new grid of the open album, its photo selected.
  Ref<PUPhotosAlbumViewController> gridWithSelection() const {
    auto grid = makeObject<PUPhotosAlbumViewController>();
    grid->send<"setAssetCollection:", void(PHAssetCollection)>(albumNamed("Open"));
    grid->send<"_refetch", void()>();
    grid->setEditing(true, false);
    const auto view = grid->send<"collectionView", UICollectionView()>();
    grid->send<"collectionView:didSelectItemAtIndexPath:", void(Object, NSIndexPath)>(view, pathTo(0));
    return grid;
  }
  /// Brings the open album's photo back to where it was.
  void putBack(bool wasTakenOut) {
    rest();
    if (library_.assetsInAlbum(albums_["Open"]).empty() != wasTakenOut)
      throw std::runtime_error("the photo is not where it should be");
    library_.addToAlbum(photo_, albums_["Open"]);
    library_.setHidden(photo_, false);
  }

  void addReceivers(Drivers& drivers) {
    const auto shown = makeObject<NSMutableArray>();
    for (const Object child : tab_->send<"childViewControllers", NSArray()>()) shown->addObject(child);
    drivers.receivers = {
        {"PhotosApplication", [] { return UIApplication::sharedApplication(); }},
        {"PUTabbedLibraryViewController",
         [] { return navigation().send<"parentViewController", Object()>(); }},
        {"UITabBar",
         [] { return navigation().send<"parentViewController", Object()>().send<"tabBar", Object()>(); }},
        {"PUAlbumListViewController", [this] { return list_.get(); }},
        {"PUAlbumListCellContentView", [] { return tile(kLocked); }},
        {"PUAlbumsGadgetViewController", [this] { return tab_.get(); }},
        {"PUNavigationController", [] { return navigation(); }},
        {"PXGadgetDataSource", [shown] {
           const auto source = makeObject<PXGadgetDataSource>();
           source->send<"_setGadgets:", void(NSArray)>(shown.get());
           return Ref(source).autorelease();
         }}};
  }

  /// What strip and list have in common.
  template <class Controller>
  void addController(Drivers& drivers, std::string_view className, Controller controller) {
    const Ref<Controller> kept(controller);
    const auto lockAndUnlock = [=, this] {
      const auto longPress = [&] {
        kept->template send<"handleLongPress:", void(Object)>(pressOn(tile(kOpen)));
      };
      longPress();
      awaitLocked({"Locked", "Open"});
      longPress();
      awaitLocked({"Locked"});
    };
    const auto ask = [=, this] {
      const int before = answers;
      kept->template send<"unlockAlbum:withAlbum:", void(int, NSString)>(0, NSString::from("Locked"));
      await([&] { return answers > before; });
      popToList();
    };
    const auto unlock = [=, this] {
      kept->template send<"unlockAuthorised:", void(int)>(0);
      popToList();
    };
    const auto enter = [=, this](std::string_view password) {
      return [=, this] {
        const bool isStrip = Object(kept.get()) == strip_.get();
        if (isStrip) pop();
        kept->template send<"requestPassword:", void(int)>(0);
        typeIn(password);
        press("OK");
        if (isStrip) push(list_.get());
        popToList();
      };
    };
    const auto move = [=, this] {
      const auto grid = gridWithSelection();
      kept->template send<"reloadCameraRollWithMove:", void(bool)>(true);
      putBack(true);
    };
    const auto cell = [=] {
      kept->template send<"collectionView:cellForItemAtIndexPath:", Object(Object, NSIndexPath)>(
          kept->collectionView(), placeOf(kOpen));
    };
    const auto entitle = [=] {
      const auto album = albumNamed("Open");
      kept->template send<"titleForCollection:", NSString(PHCollection)>(album);
    };
    const auto subtitle = [=] {
      kept->template send<"subtitleForCollection:", NSString(PHCollection)>(albumNamed("Open"));
    };
    add(drivers, Driver{className, "handleLongPress:", lockAndUnlock},
        Driver{className, "unlockAlbum:withAlbum:", ask},
        Driver{className, "requestPassword:", enter("right"), "right"},
        Driver{className, "requestPassword:", enter("wrong"), "wrong"},
        Driver{className, "unlockAuthorised:", unlock}, Driver{className, "reloadCameraRollWithMove:", move},
        Driver{className, "collectionView:cellForItemAtIndexPath:", cell},
        Driver{className, "titleForCollection:", entitle},
        Driver{className, "subtitleForCollection:", subtitle});
  }

  void addStrip(Drivers& drivers) {
    constexpr std::string_view kStrip = "PUHorizontalAlbumListGadget";
    const auto select = [this](NSInteger album, std::string_view title) {
      return [=, this] {
        strip_->select(placeOf(album));
        awaitAndLeave(title);
      };
    };
    constexpr std::string_view kSelect = "collectionView:didSelectItemAtIndexPath:";
    add(drivers, Driver{kStrip, kSelect, select(kLocked, "Locked"), "locked"},
        Driver{kStrip, kSelect, select(kOpen, "Open"), "open"});
  }

  /// Deletes an album that holds a photo which was moved out of the camera roll.
  void deleteAlbum() {
    library_.addToAlbum(doomedPhoto_, library_.addAlbum("Doomed"));
    library_.setHidden(doomedPhoto_, true);
    list_->reloadContentView();
    list_->performDelete(tile(kDoomed), Object());
    rest();
    if (library_.allAlbums().size() != albums_.size()) throw std::runtime_error("not deleted");
  }
  void pick() {
    const auto grid = gridWithSelection();
    push(grid.get());
    grid->setEditing(true, false);
    grid->send<"collectionView:didSelectItemAtIndexPath:", void(Object, NSIndexPath)>(Object(), pathTo(0));
    grid->send<"_addSelectionToAlbum", void()>();
    const auto picker = grid->send<"presentedViewController", UIViewController()>();
    const auto list = picker.send<"topViewController", PUAlbumListViewController()>();
    list.select(placeOf(2));
    press("Copy");
    rest();
    pop();
    library_.removeFromAlbum(photo_, albums_["Empty"]);
  }

  void addList(Drivers& drivers) {
    constexpr std::string_view kList = "PUAlbumListViewController";
    constexpr std::string_view kSelect = "didSelectItemAtIndexPath:";
    const auto select = [this](NSInteger album, std::string_view title) {
      return [=, this] {
        list_->select(placeOf(album));
        awaitAndLeave(title);
      };
    };
    const auto appear = [] {
      makeObject<PUAlbumListViewController>()->send<"viewWillAppear:", void(bool)>(false);
    };
    const auto returnPhotos = [this] {
      const auto grid = gridWithSelection();
      library_.setHidden(photo_, true);
      list_->send<"returnSelectedPhotos:", void(bool)>(true);
      putBack(true);
    };
    const auto tapCamera = [this] {
      const auto grid = gridWithSelection();
      list_->send<"handleCameraTap:", void(Object)>(Object());
      press("Copy");
      putBack(false);
    };
    add(drivers, Driver{kList, kSelect, select(kLocked, "Locked"), "locked"},
        Driver{kList, kSelect, select(kOpen, "Open"), "open"},
        Driver{kList, kSelect, [this] { pick(); }, "picking"}, Driver{kList, "viewWillAppear:", appear},
        Driver{
            kList, "scrollViewWillBeginDragging:",
            [this] { list_->send<"scrollViewWillBeginDragging:", void(Object)>(list_->collectionView()); }},
        Driver{kList, "returnSelectedPhotos:", returnPhotos}, Driver{kList, "handleCameraTap:", tapCamera},
        Driver{kList, "albumListCellContentView:performDeleteAction:", [this] { deleteAlbum(); }},
        Driver{kList, "setEditing:animated:", [this] {
                 for (const bool editing : {true, false}) list_->setEditing(editing, false);
               }});
  }

  void addTile(Drivers& drivers) {
    constexpr std::string_view kTile = "PUAlbumListCellContentView";
    const auto layOutBothWays = [] {
      const auto shown = tile(kLocked);
      for (const std::string_view title : {"Open", "Locked"}) {
        show(title, shown);
        layOut(shown);
      }
    };
    const auto edit = [] {
      const auto shown = tile(kOpen);
      for (const bool editing : {true, false})
        shown.send<"setEditing:animated:", void(bool, bool)>(editing, true);
      layOut(shown);
    };
    const auto createButtons = [] {
      tile(kOpen).send<"createButtons", void()>();
      layOut(tile(kOpen));
    };
    const auto moveAndReturn = [] {
      for (const std::string_view button : {"Move out of camera roll", "Return to camera roll"}) {
        tile(kOpen).send<"askToMoveAlbum", void()>();
        press(button);
        rest();
      }
    };
    const auto lockAndUnlock = [this] {
      for (const Titles& after : {Titles{"Locked", "Open"}, Titles{"Locked"}}) {
        tile(kOpen).send<"lockAlbum", void()>();
        awaitLocked(after);
      }
    };
    const auto askToMove = [](std::string_view title) {
      return [=] {
        tile(kOpen).send<"unlockAlbum:withAlbum:", void(int, NSString)>(1, NSString::from(title));
        await(hasAlert);
        press("Cancel");
      };
    };
    const auto enterPassword = [] {
      tile(kOpen).send<"requestPassword:", void(int)>(0);
      press("OK");
    };
    add(drivers, Driver{kTile, "layoutSubviews", layOutBothWays}, Driver{kTile, "setEditing:animated:", edit},
        Driver{kTile, "createButtons", createButtons}, Driver{kTile, "askToMoveAlbum", moveAndReturn},
        Driver{kTile, "moveAlbum",
               [] {
                 tile(kOpen).send<"moveAlbum", void()>();
                 press("Cancel");
               }},
        Driver{kTile, "lockAlbum", lockAndUnlock}, Driver{kTile, "unlockAlbum:withAlbum:", askToMove("Open")},
        Driver{kTile, "requestPassword:", enterPassword},
        Driver{kTile, "unlockAuthorised:", askToMove("Open")});
  }

  /// Both leave the list, which is brought back.
  template <Name Selector, class... Arguments>
  std::function<void()> returning(Arguments... arguments) {
    return [=, this] {
      UIApplication::sharedApplication().send<Selector, void(Arguments...)>(arguments...);
      if (top() == list_.get()) throw std::runtime_error("the list is still there");
      push(list_.get());
    };
  }
  void returnAll() {
    library_.setHidden(photo_, true);
    navigation().send<"syncAlbums", void()>();
    press("Return all");
    putBack(false);
  }
  template <Name Selector>
  static void layOutOwnTile() {
    const auto tile = makeObject<PUAlbumListCellContentView>();
    const auto button = makeObject<PXUIButton>();
    tile->addSubview(button.get());
    button->send<Selector, void()>();
  }
  static void letGoOfLockView() {
    const auto lock = Ref<Object>::adopt(sendToClass<"new", Object()>(classNamed<"VVLockView">()));
    lock->send<"setPhotoView:", void(UIView)>(makeObject<UIView>().get());
  }
  void removePhotos() {
    const auto grid = gridWithSelection();
    bool isOver = false;
    const auto done = [&isOver] { isOver = true; };
    grid->send<"_removeSelectedAssetsWithCompletion:", void(Block<void()>)>(block<void()>(done));
    putBack(true);
  }

  void addOthers(Drivers& drivers) {
    const auto setAlbum = [] {
      makeObject<PUPhotosAlbumViewController>()
          ->send<
              "setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults:",
              void(PHAssetCollection, Object, Object, Object)>(albumNamed("Open"), Object(), Object(),
                                                               Object());
    };
    constexpr std::string_view kManager = "PXPhotoKitCollectionsDataSourceManager";
    const auto manager = makeObject<PXPhotoKitCollectionsDataSourceManager>();
    add(drivers,
        Driver{"PhotosApplication",
               "applicationDidEnterBackground:", returning<"applicationDidEnterBackground:">(Object())},
        Driver{"PhotosApplication", "returnToMainView", returning<"returnToMainView">()},
        Driver{"PUNavigationController", "syncAlbums", [this] { returnAll(); }},
        Driver{
            "PUPhotosAlbumViewController",
            "setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults:",
            setAlbum},
        Driver{"PUPhotosAlbumViewController",
               "_removeSelectedAssetsWithCompletion:", [this] { removePhotos(); }},
        Driver{"VVLockView", "dealloc", letGoOfLockView},
        Driver{"PXUIButton", "layoutSubviews", layOutOwnTile<"layoutSubviews">},
        Driver{"PXUIButton", "viewidLoad", layOutOwnTile<"viewidLoad">},
        Driver{kManager, "_containsAnyAssets:",
               [=] { manager->send<"_containsAnyAssets:", bool(PHCollection)>(albumNamed("Open")); }},
        Driver{kManager, "canReorderCollection:", [=] {
                 manager->send<"canReorderCollection:", bool(PHCollection)>(albumNamed("Open"));
               }});
  }

  device::PhotoDatabase library_ = phone_.photoLibrary();
  std::map<std::string_view, std::int64_t> albums_;
  /// Of the open album.
  std::int64_t photo_ = 0;
  std::int64_t doomedPhoto_ = 0;
  Ref<PUHorizontalAlbumListGadget> strip_;
  Ref<PUAlbumListViewController> list_;
  Ref<UIViewController> tab_;
};

}  // namespace

bool photosKeepsNothing(Effort effort) { return PhotosHost().keepsNothing(effort); }
bool photosAloneKeepsNothing(Effort effort) { return PhotosHost().keepsNothingAlone(effort); }

}  // namespace velvault12
