// Tabs, the lists' entries and the size of their tiles, as the settings say.

#include <sys/inotify.h>

#include "host/hook.hpp"
#include "tests/photo_library.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

class Presentation : public PhotosApp {
 protected:
  static PUTabbedLibraryViewController tabs() {
    return PhotosApplication(UIApplication::sharedApplication().get()).tabbedLibraryViewController();
  }
  static UITabBar bar() { return tabs().send<"tabBar", UITabBar()>(); }
  static bool isBarHidden() { return bar().send<"isHidden", bool()>(); }
  static Titles tabTitles() {
    Titles titles;
    for (const Object item : bar().items()) titles.push_back(item.send<"title", NSString()>().utf8());
    return titles;
  }
  /// How much of the screen the app's content leaves to the bar, in points.
  static double placeOfBar() {
    return tabs().view().bounds().size.height - navigation().view().frame().size.height;
  }
};

const Preferences kAlbumsAlone = {
    {"showTabMoments", false}, {"showTabMemories", false}, {"showTabShared", false}};
const Preferences kNone = {{"showTabMoments", false},
                           {"showTabMemories", false},
                           {"showTabShared", false},
                           {"showTabAlbums", false}};

NSArray hostsModes;
NSArray excludedByHost(Object, Replaced<NSArray()>) { return hostsModes; }

TEST_F(Presentation, TabsAreLeftOut) {
  installHook(replace<excludedByHost>("PUTabbedLibraryViewController", "excludedContentModes", "@@:"));
  hostsModes = NSArray::of(NSNumber::from(13));
  open(From::strip, {}, {{"showTabMemories", false}, {"showTabMoments", false}});
  EXPECT_EQ(tabTitles(), (Titles{"Shared", "Albums"}));
  EXPECT_FALSE(isBarHidden());
  EXPECT_GT(placeOfBar(), 40);
  const auto excluded = [] { return tabs().send<"excludedContentModes", NSArray()>(); };
  EXPECT_EQ(excluded().count(), 2u) << "not the host's as well";
  reload({{"enabled", false}});
  EXPECT_EQ(excluded(), hostsModes);
}

class SingleTab : public Presentation, public ::testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(, SingleTab, ::testing::Bool());

TEST_P(SingleTab, HasNoBarWhateverIsOpened) {
  open(From::strip, {}, GetParam() ? kAlbumsAlone : kNone);
  EXPECT_EQ(tabTitles(), Titles{"Albums"});
  const auto isGone = [] { return isBarHidden() && placeOfBar() == 0; };
  EXPECT_TRUE(isGone());
  me_.tap("See All");
  EXPECT_TRUE(isGone());
  me_.tap("Holidays");
  me_.waitToSee("Select");
  EXPECT_TRUE(isGone()) << "an album wants it, but there is one tab only";
  reload({{"enabled", false}});
  me_.back();
  EXPECT_FALSE(isBarHidden()) << "the host's own affair";
}

bool hostsAnswer = false;
ObjcBool answer(id, SEL) { return hostsAnswer; }
id titleOf(id, SEL, id collection) { return PHCollection(collection).localizedTitle().get(); }
int drags = 0;
void dragged(id, SEL, id) { ++drags; }

/// Gives the app a method that no known version has.
template <class Function>
void give(const char* className, const char* selector, Function function, const char* encoding) {
  ASSERT_TRUE(class_addMethod(objc_getClass(className), sel_registerName(selector),
                              reinterpret_cast<IMP>(function), encoding));
}

bool hostsWish(UIViewController, Replaced<bool()>) { return hostsAnswer; }

TEST_F(Presentation, WhatTheBarIsAskedFollowsTheSettingsOrTheHost) {
  give("UITabBar", "hidden", answer, "B@:");
  give("PUAlbumListViewController", "alwaysHideTabBar", answer, "B@:");
  installHook(replace<hostsWish>("UIViewController", "pu_wantsTabBarVisible", "B@:"));
  open(From::list, {}, kAlbumsAlone);
  const Ref<PUAlbumListViewController> list(albumList());
  const Ref<PUPhotosAlbumViewController> album = makeObject<PUPhotosAlbumViewController>();
  // The bar, the list, what the list wants and what an album wants, when the host says no and when it says
  // yes.
  const auto asked = [&] {
    std::string all;
    for (hostsAnswer = false;; hostsAnswer = true) {
      for (const bool each :
           {bar().send<"hidden", bool()>(), list->send<"alwaysHideTabBar", bool()>(),
            list->send<"pu_wantsTabBarVisible", bool()>(), album->send<"pu_wantsTabBarVisible", bool()>()})
        all += each ? '+' : '-';
      if (hostsAnswer) return all;
      all += ' ';
    }
  };
  EXPECT_EQ(asked(), "++-+ ++-+");
  reload(kNone);
  EXPECT_EQ(asked(), "+--- ++++") << "none is not one";
  Preferences off = kAlbumsAlone;
  off["enabled"] = false;
  reload(off);
  EXPECT_EQ(asked(), "---- ++++");
}

TEST_F(Presentation, PeopleAndPlacesAreEntriesThatCanBeLeftOut) {
  auto library = phone_.photoLibrary();
  for (const int kind : {200, 1000000203}) library.addAsset({.smartSubtype = kind});
  for (const char* selector : {"showPeople", "showPlaces"})
    give("PUHorizontalAlbumListGadget", selector, answer, "B@:");
  open(From::strip);
  const Ref<PUHorizontalAlbumListGadget> strip(PhotosApp::strip());
  me_.tap("See All");
  const auto shown = [&] {
    albumList().reloadContentView();
    std::string all;
    for (const std::string_view entry : {"People", "Places"}) all += me_.sees(entry) ? "+" : "-";
    all += strip->send<"showPeople", bool()>() ? "+" : "-";
    all += strip->send<"showPlaces", bool()>() ? "+" : "-";
    return all;
  };
  EXPECT_EQ(shown(), "++--");
  hostsAnswer = true;
  EXPECT_EQ(shown(), "++++");
  reload({{"showPeople", false}});
  EXPECT_EQ(shown(), "-+-+");
  reload({{"showPlaces", false}});
  EXPECT_EQ(shown(), "+-+-");
  reload({{"showPeople", false}, {"showPlaces", false}, {"enabled", false}});
  EXPECT_EQ(shown(), "++++");
}

CGSize hostsTile(Object, Replaced<CGSize()>) { return {163, 200}; }

TEST_F(Presentation, TilesHaveTheirSizeBeforeAnyIsShown) {
  installHook(replace<hostsTile>("PUAlbumListCellContentViewHelper", "albumCellSize", "{CGSize=dd}@:"));
  open(From::strip, {}, {{"shrinkAlbums", true}, {"showTabAlbums", false}});
  const auto size = makeObject<PUAlbumListCellContentViewHelper>()->send<"albumCellSize", CGSize()>();
  EXPECT_EQ((std::pair{size.width, size.height}), (std::pair{109.0, 109.0 + 37}));
}

TEST_F(Presentation, ShrunkTilesKeepTheirTexts) {
  open(From::list);
  const auto sizes = [] {
    albumList().reloadContentView();
    const auto shown = tile(0);
    const CGSize whole = shown.bounds().size, stack = shown.stackView().frame().size;
    return std::array{whole.width, whole.height, stack.width, stack.height};
  };
  const auto host = sizes();
  reload({{"shrinkAlbums", true}});
  // Of 375 points an album has 164.
  EXPECT_EQ(sizes(), (std::array{109.0, 109 + host[1] - host[0], 109.0, 109.0}));
  me_.back();
  me_.tap("See All");
  EXPECT_EQ(sizes()[0], 109) << "the measure is the screen's, not the last tile's";
  reload({{"shrinkAlbums", true}, {"enabled", false}});
  EXPECT_EQ(sizes(), host);
}

TEST_F(Presentation, AListIsShownAfreshWhenItIsScrolledAndSaysWhatTheHostSays) {
  give("PUAlbumListViewController", "scrollViewWillBeginDragging:", dragged, "v@:@");
  give("PUAlbumListViewController", "titleForCollection:", titleOf, "@@:@");
  open(From::list);
  const auto shows = [&](std::string_view title) {
    albumList().send<"scrollViewWillBeginDragging:", void(Object)>(albumList().collectionView());
    return me_.sees(title);
  };
  const auto add = [&](std::string_view title) { phone_.photoLibrary().addAlbum(title); };
  add("Zoo");
  EXPECT_TRUE(shows("Zoo"));
  reload({{"enabled", false}});
  add("Moon");
  EXPECT_FALSE(shows("Moon"));
  EXPECT_EQ(drags, 2);

  const PHAssetCollection album = albumNamed("Zoo");
  EXPECT_EQ((albumList().send<"titleForCollection:", NSString(PHCollection)>(album).utf8()), "Zoo");
  EXPECT_EQ((albumList().send<"subtitleForCollection:", NSString(PHCollection)>(album).utf8()), "0");
  EXPECT_TRUE(PUNavigationController(navigation().get()).navigationBar());
}

TEST_F(Presentation, AListReadsWhatIsSaidOfAlbumsByTheirPaths) {
  constexpr std::string_view kPaths = "/var/mobile/Library/velvault/lockedAlbumsPaths.plist";
  write(kPaths, "(\"no dictionary\")");
  open(From::strip);
  const int watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  inotify_add_watch(watch, phone_.onDisk(kPaths).c_str(), IN_OPEN);
  me_.tap("See All");
  inotify_event event;
  EXPECT_GT(read(watch, &event, sizeof event), 0);
  close(watch);
}

}  // namespace
}  // namespace velvault12
