// An album's grid, the Albums tab as it comes on screen, and the viewer.

#include <algorithm>
#include <regex>

#include "host/class_pair.hpp"
#include "host/hook.hpp"
#include "tests/photo_library.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

class AlbumView : public PhotosApp {
 protected:
  AlbumView() {
    auto library = phone_.photoLibrary();
    for (const auto& album : library.allAlbums()) albums_.push_back(album.identifier);
  }
  /// Adds a photo of that minute to these of the three albums.
  std::int64_t addPhoto(int minute, std::initializer_list<std::size_t> albums, bool isHidden = false) {
    auto library = phone_.photoLibrary();
    const auto photo = library.addAsset({.creationDate = 60.0 * minute, .isHidden = isHidden});
    for (const std::size_t album : albums) library.addToAlbum(photo, albums_.at(album));
    return photo;
  }
  static std::string words(int minute) {
    return "Photo, 1970-01-01 00:" + std::to_string(100 + minute).substr(1) + ":00";
  }
  bool isHidden(std::int64_t photo) const {
    const auto all = phone_.photoLibrary().allAssets();
    return std::ranges::find(all, photo, &device::AssetRow::identifier)->isHidden;
  }

  std::vector<std::int64_t> albums_;
};

bool hostsAnswer = true;
bool answer(Object, Replaced<bool()>) { return hostsAnswer; }

TEST_F(AlbumView, OpensAtItsNewestPhotosUnderAHeaderUnlessItIsTheCameraRoll) {
  installHook(replace<answer>("PUPhotosAlbumViewController", "shouldShowSectionHeaders", "B@:"));
  for (int minute = 1; minute < 60; ++minute) addPhoto(minute, {0});
  open(From::strip, {}, {{"startAtBottom", false}});
  me_.tap("Holidays");
  EXPECT_TRUE(me_.sees(words(59)));
  EXPECT_FALSE(me_.sees(words(1)));
  me_.scrollTo("1970-01-01");
  hostsAnswer = false;
  tap({"Photos", "Albums"});
  EXPECT_FALSE(me_.sees("1970-01-01")) << "the host's choice";
  hostsAnswer = true;
  me_.back();
  me_.tap("Camera Roll");
  me_.waitToSee("Select");
  EXPECT_THROW(me_.scrollTo("1970-01-01"), std::runtime_error) << "no header";
}

TEST_F(AlbumView, PhotosTakenOutOfTheirLastAlbumAreShownAgain) {
  const auto alone = addPhoto(1, {0}, true), elsewhere = addPhoto(2, {0, 1}, true),
             staying = addPhoto(3, {0}, true);
  open(From::strip);
  tap({"Holidays", "Select", words(1), words(2), "Remove"});
  settleLibrary();
  EXPECT_FALSE(isHidden(alone)) << "in no album any more";
  EXPECT_TRUE(isHidden(elsewhere)) << "still in Pets";
  EXPECT_TRUE(isHidden(staying)) << "not selected";
  EXPECT_EQ(phone_.photoLibrary().assetsInAlbum(albums_[0]).size(), 2u);
  EXPECT_TRUE(me_.sees("Select")) << "the host's completion has run";
}

TEST_F(AlbumView, PhotosOfNoAlbumAreShownAgainAndTheHostDecidesOnTheRest) {
  auto library = phone_.photoLibrary();
  const auto video = library.addAsset({.creationDate = 60, .isHidden = true, .smartSubtype = 202});
  open(From::strip);
  me_.tap("Videos");
  tap({"Select", words(1)});
  top().send<"_removeSelectedAssetsWithCompletion:", void(Block<void()>)>(Block<void()>());
  settleLibrary();
  EXPECT_FALSE(isHidden(video));
  EXPECT_EQ(library.allAssets().size(), 4u);
  std::ifstream log(phone_.folder() / "log" / (std::string(device::kPhotos) + ".log"));
  const std::string lines(std::istreambuf_iterator<char>(log), {});
  EXPECT_TRUE(std::regex_search(
      lines, std::regex("-\\[<PUPhotosAlbumViewController: 0x[0-9a-f]+> "
                        "_removeSelectedAssetsWithCompletion:\\(n[a-z]+\\)\\]: removing\n")))
      << lines;
}

std::string laidOut;
void markedLayout(UIView view) { laidOut += std::to_string(view.tag()) + " "; }

TEST_F(AlbumView, TheAlbumsTabLaysOutWhatLiesAsDeepAsTilesDo) {
  open(From::strip);
  const Class marked = ClassPair(classNamed<"UIView">(), "MarkedView")
                           .method<markedLayout>(selector<"layoutSubviews">(), "v@:")
                           .registered();
  const auto make = [&](NSInteger tag) {
    const UIView view(sendToClass<"new", id()>(marked));
    view.setTag(tag);
    return Ref<UIView>::adopt(view);
  };
  // Ten views, each in the one before, and beside the one of depth 5 another branch.
  const PUAlbumsGadgetViewController tab(top().get());
  Ref<UIView> parent(tab.collectionView());
  for (int depth = 1; depth <= 10; ++depth) {
    const Ref<UIView> view = make(depth);
    parent->addSubview(view.get());
    if (depth == 5) {
      const Ref<UIView> branch = make(50), leaf = make(60);
      branch->addSubview(leaf.get());
      parent->addSubview(branch.get());
    }
    parent = view;
  }
  laidOut.clear();
  tab.send<"viewWillAppear:", void(bool)>(false);
  EXPECT_EQ(laidOut, "5 6 7 8 50 60 ");
}

int hostCalls = 0;
void loaded(Object) { ++hostCalls; }
void laidOutByHost(Object, Replaced<void()> host) {
  ++hostCalls;
  host();
}

TEST_F(AlbumView, ATilesOwnButtonBringsTheOthersAlong) {
  const HookRow rows[] = {add<loaded>("PXUIButton", "viewidLoad", "v@:"),
                          replace<laidOutByHost>("UIButton", "layoutSubviews", "v@:")};
  installHooks(rows);
  open(From::list);
  me_.tap("Edit");
  const Ref<PUAlbumListCellContentView> first(tile(0));
  const auto removeButtons = [&] {
    for (const int tag : {213, 214}) first->subviewWithTag<UIImageView>(tag).removeFromSuperview();
  };
  const auto buttons = [&] {
    return !!first->subviewWithTag<UIImageView>(213) + !!first->subviewWithTag<UIImageView>(214);
  };
  EXPECT_EQ(buttons(), 2);
  for (const int expectedCalls : {1, 2}) {
    removeButtons();
    EXPECT_EQ(buttons(), 0);
    hostCalls = 0;
    if (expectedCalls == 1) first->deleteButton().layoutSubviews();
    if (expectedCalls == 2) first->deleteButton().send<"viewidLoad", void()>();
    EXPECT_EQ(buttons(), 2);
    EXPECT_EQ(hostCalls, expectedCalls);
  }
  removeButtons();
  reload({{"enabled", false}});
  first->deleteButton().layoutSubviews();
  EXPECT_EQ(buttons(), 0);

  reload({});
  const auto elsewhere = makeObject<UIView>();
  const auto button = makeObject<PXUIButton>();
  elsewhere->addSubview(button.get());
  button->layoutSubviews();
  EXPECT_EQ(elsewhere->subviews().count(), 1u);
}

TEST_F(AlbumView, TheViewerShowsABadgeAndZoomsInOnDemand) {
  auto library = phone_.photoLibrary();
  library.addToAlbum(library.addAsset({.creationDate = 60, .smartSubtype = 213}), albums_[0]);
  installHook(replace<answer>("PUAssetViewModel", "wantsIrisBadgeVisible", "B@:"));
  hostsAnswer = false;
  open(From::strip);
  const auto zoom = [](double factor) {
    const auto settings = sendToClass<"sharedInstance", Object()>(classNamed<"PUOneUpSettings">());
    settings.send<"setDefaultMaximumZoomFactor:", void(double)>(factor);
    return settings.send<"defaultMaximumZoomFactor", double()>();
  };
  const auto hasBadge = [&] {
    tap({"Holidays", words(1)});
    const bool has = me_.sees("LIVE");
    me_.back();
    me_.back();
    return has;
  };
  EXPECT_FALSE(hasBadge());
  EXPECT_EQ(zoom(3.5), 3.5);
  reload({{"showLiveBadge", true}, {"increaseZoom", true}});
  EXPECT_TRUE(hasBadge());
  EXPECT_EQ(zoom(3.5), 400);
  EXPECT_EQ(zoom(500), 400);
  reload({{"showLiveBadge", true}, {"increaseZoom", true}, {"enabled", false}});
  EXPECT_FALSE(hasBadge());
  hostsAnswer = true;
  EXPECT_TRUE(hasBadge());
  EXPECT_EQ(zoom(3.5), 3.5);
}

}  // namespace
}  // namespace velvault12
