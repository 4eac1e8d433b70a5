#pragma once

#include <Block.h>
#include <gtest/gtest.h>

#include "host/block.hpp"
#include "host/hook.hpp"
#include "host/photos_ui.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {

using device::OwnerAnswer;

/// How an album is reached: the strip is the first screen, the list is behind a button.
enum class From { strip, list };
inline void PrintTo(From from, std::ostream* out) { *out << (from == From::strip ? "strip" : "list"); }

using Preferences = std::map<std::string, device::Device::Preference>;
inline const Preferences kWithPassword = {{"passOption", 1}};

/// The ends of the notices so far: none goes by itself, so that a test may look when it likes.
inline std::vector<Block<void(bool)>> noticeEnds;
inline void holdNotice(Object,
                       Replaced<void(double, double, NSUInteger, Block<void()>, Block<void(bool)>)> host,
                       double duration, double delay, NSUInteger options, Block<void()> animations,
                       Block<void(bool)> completion) {
  if (delay == 0) return host(duration, delay, options, animations, completion);
  EXPECT_EQ(delay, 2);
  noticeEnds.emplace_back(_Block_copy(completion.get()));
}

/// The Photos app on the simulated device: this process is the app, and the test its user.
class PhotosApp : public PhoneTest {
 public:
  PhotosApp() {
    for (const std::string_view title : {"Holidays", "Pets", "Recipes"})
      library_.addToAlbum(library_.addAsset({}), library_.addAlbum(title));
  }

  /// Boots the phone with these albums locked and opens Photos at the strip or the list.
  void open(From from, const Titles& locked = {}, const Preferences& preferences = {}) {
    phone_.writePreferences(preferences);
    springBoard_.emplace(phone_.launch(device::kSpringBoard));
    writeStrings(kLockedAlbums, locked);
    phone_.launchHere(device::kPhotos);
    if (from == From::list) me_.tap("See All");
  }

  static void holdNotices() {
    installHook(replaceClassMethod<holdNotice>(
        "UIView", "animateWithDuration:delay:options:animations:completion:", "v@:ddQ@?@?"));
  }

  const device::User& owner() const { return springBoard_->user(); }
  void ownerIs(OwnerAnswer answer) const {
    owner().waitForOwnerRequest();
    owner().answerOwnerRequest(answer);
    settle();
  }
  /// Does what its owner must be asked for.
  void tapUntilAsked(std::initializer_list<std::string_view> texts) const {
    tap(texts);
    owner().waitForOwnerRequest();
  }
  void tapAs(OwnerAnswer answer, std::initializer_list<std::string_view> texts) const {
    tap(texts);
    ownerIs(answer);
  }

  static UINavigationController navigation() {
    return PhotosApplication(UIApplication::sharedApplication().get())
        .tabbedLibraryViewController()
        .selectedNavigationController();
  }
  static UIViewController top() { return navigation().send<"topViewController", UIViewController()>(); }
  static PUAlbumListViewController albumList() { return top().as<PUAlbumListViewController>(); }
  static PUHorizontalAlbumListGadget strip() {
    return top().send<"childViewControllers", NSArray()>().objectAtIndex(0).as<PUHorizontalAlbumListGadget>();
  }

  static NSIndexPath pathTo(NSInteger item) {
    return sendToClass<"indexPathForItem:inSection:", NSIndexPath(NSInteger, NSInteger)>(
        NSIndexPath::hostClass(), item, 0);
  }
  /// Where one of the user's albums is, in the strip and in the list: behind the camera roll.
  static NSIndexPath placeOf(NSInteger album) { return pathTo(album + 1); }
  static PUAlbumListCellContentView tile(NSInteger album) {
    // A list that was made anew has no tiles before its next layout.
    albumList().collectionView().send<"layoutIfNeeded", void()>();
    return albumList().tileAtIndexPath(placeOf(album));
  }
  static void layOut(UIView view) { view.send<"layoutSubviews", void()>(); }
  static void show(std::string_view title, PUAlbumListCellContentView tile) {
    tile.send<"setTitle:", void(NSString)>(NSString::from(title));
  }
  static UIGestureRecognizer pressOn(PUAlbumListCellContentView tile) {
    return UIGestureRecognizer(tile.gestureRecognizers().objectAtIndex(0).get());
  }
  static void longPress(UIGestureRecognizer press) {
    albumList().send<"handleLongPress:", void(UIGestureRecognizer)>(press);
  }
  /// The title of the album whose photos are on screen, "" for none.
  static std::string openAlbum() {
    return top().trySend<"assetCollection", PHCollection()>().localizedTitle().utf8();
  }

  bool soonOpen(std::string_view title) const {
    return soon([&] { return openAlbum() == title; });
  }
  std::string tapped(std::string_view title) const {
    me_.tap(title);
    settle();
    return openAlbum();
  }
  void enter(std::string_view password) const {
    me_.waitToSee("Unlock album");
    me_.alert().type(password).tap("OK");
  }
  void tapAndEnter(std::string_view title, std::string_view password) const {
    me_.tap(title);
    enter(password);
  }

  device::PhotoDatabase library_ = phone_.photoLibrary();
};

}  // namespace velvault12
