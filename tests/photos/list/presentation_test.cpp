// Tabs, the lists' entries and the size of their tiles, as the settings say.

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
  static Titles tabTitles() {
    Titles titles;
    for (const Object item : bar().items()) titles.push_back(item.send<"title", NSString()>().utf8());
    return titles;
  }
  static bool isBarHidden() { return bar().send<"isHidden", bool()>(); }
  /// How much of the screen the app's content leaves to the bar, in points.
  static double roomForBar() {
    return tabs().view().bounds().size.height - navigation().view().frame().size.height;
  }
};

const Preferences kAlbumsAlone = {
    {"showTabMoments", false}, {"showTabMemories", false}, {"showTabShared", false}};
Preferences with(Preferences preferences, std::string_view key) {
  preferences[std::string(key)] = false;
  return preferences;
}

NSArray hostsModes;
NSArray excludedByHost(Object, Replaced<NSArray()>) { return hostsModes; }

TEST_F(Presentation, TabsAreLeftOut) {
  installHook(replace<excludedByHost>("PUTabbedLibraryViewController", "excludedContentModes", "@@:"));
  hostsModes = NSArray::of(NSNumber::from(13));
  open(From::strip, {}, {{"showTabMemories", false}, {"showTabAlbums", false}, {"shrinkAlbums", true}});
  EXPECT_EQ(tabTitles(), (Titles{"Photos", "Shared"}));
  EXPECT_FALSE(isBarHidden());
  EXPECT_GT(roomForBar(), 40);
  const auto excluded = [] { return tabs().send<"excludedContentModes", NSArray()>(); };
  EXPECT_EQ(excluded().count(), 2u) << "not the host's as well";
  reload({{"enabled", false}});
  EXPECT_EQ(excluded(), hostsModes);
  reload({{"shrinkAlbums", true}});
  const auto measures = makeObject<PUAlbumListCellContentViewHelper>();
  EXPECT_EQ((measures->send<"albumCellSize", CGSize()>().width), 109) << "though no tile has been shown";
}

TEST_F(Presentation, SingleTabHasNoBar) {
  open(From::strip, {}, kAlbumsAlone);
  EXPECT_EQ(tabTitles(), Titles{"Albums"});
  for (const std::string_view next : {"See All", "Holidays", "Select"}) {
    EXPECT_TRUE(isBarHidden() && roomForBar() == 0) << "before " << next;
    me_.tap(next);
  }
  reload({{"enabled", false}});
  tap({"Cancel", kBack});
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

TEST_F(Presentation, TabBarFollowsTheSettingsOrTheHost) {
  give("UITabBar", "hidden", answer, "B@:");
  give("PUAlbumListViewController", "alwaysHideTabBar", answer, "B@:");
  installHook(replace<hostsWish>("UIViewController", "pu_wantsTabBarVisible", "B@:"));
  open(From::list, {}, kAlbumsAlone);
  const Ref<PUAlbumListViewController> list(albumList());
  const Ref<PUPhotosAlbumViewController> album = makeObject<PUPhotosAlbumViewController>();
  // The bar, the list, what the list wants and what an album wants, when the host says so.
  const auto asked = [&](bool host) {
    hostsAnswer = host;
    return signs({bar().send<"hidden", bool()>(), list->send<"alwaysHideTabBar", bool()>(),
                  list->send<"pu_wantsTabBarVisible", bool()>(),
                  album->send<"pu_wantsTabBarVisible", bool()>()});
  };
  EXPECT_EQ(asked(false) + asked(true), "++-+++-+");
  reload(with(kAlbumsAlone, "showTabAlbums"));
  EXPECT_EQ(asked(false) + asked(true), "+---++++") << "none is not one";
  reload(with(kAlbumsAlone, "enabled"));
  EXPECT_EQ(asked(false) + asked(true), "----++++");
}

TEST_F(Presentation, PeopleAndPlacesCanBeLeftOut) {
  for (const int kind : {200, 1000000203}) library_.addAsset({.smartSubtype = kind});
  for (const char* selector : {"showPeople", "showPlaces"})
    give("PUHorizontalAlbumListGadget", selector, answer, "B@:");
  open(From::strip);
  const Ref<PUHorizontalAlbumListGadget> strip(PhotosApp::strip());
  me_.tap("See All");
  const auto shown = [&](const Preferences& preferences) {
    reload(preferences);
    albumList().reloadContentView();
    return signs({me_.sees("People"), me_.sees("Places"), strip->send<"showPeople", bool()>(),
                  strip->send<"showPlaces", bool()>()});
  };
  EXPECT_EQ(shown({}), "++--");
  hostsAnswer = true;
  EXPECT_EQ(shown({}), "++++");
  EXPECT_EQ(shown({{"showPeople", false}}), "-+-+");
  EXPECT_EQ(shown({{"showPlaces", false}}), "+-+-");
  EXPECT_EQ(shown({{"showPeople", false}, {"showPlaces", false}, {"enabled", false}}), "++++");
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
  tap({kBack, "See All"});
  EXPECT_EQ(sizes()[0], 109) << "the measure is the screen's, not the last tile's";
  reload({{"shrinkAlbums", true}, {"enabled", false}});
  EXPECT_EQ(sizes(), host);
}

TEST_F(Presentation, ListIsReadAgainWhenScrolled) {
  constexpr std::string_view kPaths = "/var/mobile/Library/velvault/lockedAlbumsPaths.plist";
  write(kPaths, "(\"no dictionary\")");
  give("PUAlbumListViewController", "scrollViewWillBeginDragging:", dragged, "v@:@");
  give("PUAlbumListViewController", "titleForCollection:", titleOf, "@@:@");
  open(From::strip);
  EXPECT_GT(openings(kPaths, [&] { me_.tap("See All"); }), 0) << "what is said of albums by their paths";
  const auto showsNew = [&](std::string_view title) {
    library_.addAlbum(title);
    albumList().send<"scrollViewWillBeginDragging:", void(Object)>(albumList().collectionView());
    return me_.sees(title);
  };
  EXPECT_TRUE(showsNew("Zoo"));
  reload({{"enabled", false}});
  EXPECT_FALSE(showsNew("Moon"));
  EXPECT_EQ(drags, 2);

  EXPECT_EQ((albumList().send<"titleForCollection:", NSString(Object)>(albumNamed("Zoo")).utf8()), "Zoo");
}

}  // namespace
}  // namespace velvault12
