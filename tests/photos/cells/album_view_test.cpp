// An album's grid, the Albums tab as it comes on screen, and the viewer.

#include "host/class_pair.hpp"
#include "host/hook.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

using AlbumView = PhotosApp;

bool hostsAnswer = true;
bool answer(Object, Replaced<bool()>) { return hostsAnswer; }

TEST_F(AlbumView, OpensAtItsEndUnderAHeader) {
  installHook(replace<answer>("PUPhotosAlbumViewController", "shouldShowSectionHeaders", "B@:"));
  const auto album = library_.allAlbums()[0].identifier;
  for (int minute = 1; minute < 60; ++minute)
    library_.addToAlbum(library_.addAsset({.creationDate = 60.0 * minute}), album);
  open(From::strip, {}, {{"startAtBottom", false}});
  me_.tap("Holidays");
  EXPECT_TRUE(me_.sees("Photo, 1970-01-01 00:59:00"));
  EXPECT_FALSE(me_.sees("Photo, 1970-01-01 00:01:00"));
  me_.scrollTo("1970-01-01");
  hostsAnswer = false;
  tap({"Photos", "Albums"});
  EXPECT_FALSE(me_.sees("1970-01-01")) << "the host's choice";
  hostsAnswer = true;
  tap({kBack, "Camera Roll", "Select"});
  EXPECT_THROW(me_.scrollTo("1970-01-01"), std::runtime_error) << "it has none";
}

std::string laidOut;
void markedLayout(UIView view) { laidOut += std::to_string(view.tag()) + " "; }

TEST_F(AlbumView, AlbumsTabLaysOutWhatLiesAsDeepAsTiles) {
  open(From::strip);
  const Class marked = ClassPair(classNamed<"UIView">(), "MarkedView")
                           .method<markedLayout>(selector<"layoutSubviews">(), "v@:")
                           .registered();
  const PUAlbumsGadgetViewController tab(top().get());
  UIView parent = tab.collectionView();
  for (int depth = 1; depth <= 10; ++depth) {
    const UIView view(sendToClass<"new", id()>(marked));
    view.setTag(depth);
    parent.addSubview(Ref<UIView>::adopt(view).get());
    parent = view;
  }
  laidOut.clear();
  tab.send<"viewWillAppear:", void(bool)>(false);
  EXPECT_EQ(laidOut, "5 6 7 8 ");
}

int hostCalls = 0;
void loaded(Object) { ++hostCalls; }
void laidOutByHost(Object, Replaced<void()> host) {
  ++hostCalls;
  host();
}

TEST_F(AlbumView, TilesOwnButtonBringsTheOthersAlong) {
  const HookRow rows[] = {add<loaded>("PXUIButton", "viewidLoad", "v@:"),
                          replace<laidOutByHost>("UIButton", "layoutSubviews", "v@:")};
  installHooks(rows);
  open(From::list);
  me_.tap("Edit");
  const Ref<PUAlbumListCellContentView> first(tile(0));
  const auto button = [&](NSInteger tag) { return first->subviewWithTag<UIImageView>(tag); };
  /// Whether both come back, once they have been taken away.
  const auto bringsBoth = [&](const auto& call) {
    for (const int tag : {213, 214}) button(tag).removeFromSuperview();
    hostCalls = 0;
    call(first->deleteButton());
    return button(213) && button(214);
  };
  const auto layOutButton = [](const auto& button) { button.layoutSubviews(); };
  EXPECT_TRUE(bringsBoth(layOutButton));
  EXPECT_EQ(hostCalls, 1);
  EXPECT_TRUE(bringsBoth([](const auto& button) { button.template send<"viewidLoad", void()>(); }));
  EXPECT_EQ(hostCalls, 2);
  reload({{"enabled", false}});
  EXPECT_FALSE(bringsBoth(layOutButton));

  reload({});
  const auto elsewhere = makeObject<UIView>();
  const auto another = makeObject<PXUIButton>();
  elsewhere->addSubview(another.get());
  another->layoutSubviews();
  EXPECT_EQ(elsewhere->subviews().count(), 1u);
}

TEST_F(AlbumView, ViewerShowsABadgeAndZoomsInOnDemand) {
  const auto live = library_.addAsset({.creationDate = 60, .smartSubtype = 213});
  library_.addToAlbum(live, library_.allAlbums()[0].identifier);
  installHook(replace<answer>("PUAssetViewModel", "wantsIrisBadgeVisible", "B@:"));
  open(From::strip);
  const auto zoom = [](double factor) {
    const auto settings = sendToClass<"sharedInstance", Object()>(classNamed<"PUOneUpSettings">());
    settings.send<"setDefaultMaximumZoomFactor:", void(double)>(factor);
    return settings.send<"defaultMaximumZoomFactor", double()>();
  };
  const auto hasBadge = [&](bool onHost) {
    hostsAnswer = onHost;
    tap({"Holidays", "Photo, 1970-01-01 00:01:00"});
    const bool has = me_.sees("LIVE");
    tap({kBack, kBack});
    return has;
  };
  Preferences preferences{{"showLiveBadge", true}, {"increaseZoom", true}};
  for (const bool isOn : {false, true, false}) {
    EXPECT_EQ(hasBadge(false), isOn);
    EXPECT_EQ(zoom(3.5), isOn ? 400 : 3.5);
    reload(preferences);
    preferences["enabled"] = false;
  }
  EXPECT_TRUE(hasBadge(true));
}

}  // namespace
}  // namespace velvault12
