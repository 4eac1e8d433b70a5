// Album tiles in the Photos app: the overlay of a locked one, their buttons, their texts.

#include <algorithm>
#include <sstream>

#include "host/hook.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

constexpr NSInteger kOverlay = 200, kPadlock = 202, kMoveButton = 213, kLockButton = 214;

UIView frontOf(UIView tile) {
  return UIView(tile.subviews().objectAtIndex(tile.subviews().count() - 1).get());
}

class Tiles : public PhotosApp {
 protected:
  static UIView overlay(UIView tile) { return tile.subviewWithTag<UIView>(kOverlay); }
  static std::ptrdiff_t count(UIView tile, std::initializer_list<NSInteger> tags) {
    std::ptrdiff_t found = 0;
    for (const Object view : tile.subviews()) found += std::ranges::count(tags, UIView(view.get()).tag());
    return found;
  }
  /// Whether the album's overlay is on screen, once it has been laid out.
  bool soonCovered(NSInteger item, bool isCovered = true) const {
    return soon([&] { return tile(item) && static_cast<bool>(overlay(tile(item))) == isCovered; });
  }
  void touchLock(NSInteger item) const {
    tile(item).send<"lockAlbum", void()>();
    settle();
  }
  bool isHidden(std::string_view title) const { return assetsIn(title).at(0).isHidden; }
};

TEST_F(Tiles, LockedOneHasOneOverlayThatOnlyTheListMoves) {
  open(From::strip, {"Holidays"});
  const auto stripTile = [](NSInteger item) { return albumTile(strip().gadgetAtIndexPath(placeOf(item))); };
  const auto inStrip = stripTile(0);
  for (int pass = 0; pass < 3; ++pass) layOut(inStrip);
  EXPECT_EQ(frameText(overlay(inStrip)), "0 0 165 165");
  EXPECT_EQ((overlay(inStrip).send<"photoView", UIView()>()), inStrip.stackView());
  EXPECT_EQ(count(inStrip, {kOverlay}), 1);
  EXPECT_EQ(count(stripTile(1), {kOverlay}), 0);

  me_.tap("See All");
  const auto inList = tile(0);
  const UIView lock = overlay(inList);
  EXPECT_STREQ(lock.className(), "VVLockView");
  const NSArray parts = lock.subviews();
  ASSERT_EQ(parts.count(), 2u);
  EXPECT_TRUE(parts.objectAtIndex(0).as<UIVisualEffectView>());
  EXPECT_EQ(frameText(UIView(parts.objectAtIndex(0).get())), "0 0 265 265");
  EXPECT_TRUE((lock.send<"clipsToBounds", bool()>()));
  EXPECT_EQ((lock.layer().send<"cornerRadius", double()>()), 5);

  // The padlock of a tile that was larger when it was made; its host lays the stack out again.
  lock.viewWithTag(kPadlock).setFrame({});
  lock.send<"setPhotoView:", void(UIView)>(UIView());
  inList.bringSubviewToFront(inList.stackView());
  inList.setClipsToBounds(false);
  inList.stackView().setFrame({{5, 6}, {100, 100}});
  inList.setHidden(true);
  for (int pass = 0; pass < 3; ++pass) layOut(inList);
  EXPECT_EQ(frameText(lock), "-1 -1 167 167");
  EXPECT_EQ(frameText(lock.viewWithTag(kPadlock)), "57 57 50 50");
  EXPECT_EQ((lock.send<"photoView", UIView()>()), inList.stackView());
  EXPECT_EQ(frontOf(inList), lock) << "the one that was made first";
  EXPECT_TRUE((inList.send<"clipsToBounds", bool()>()));
  EXPECT_FALSE((inList.send<"isHidden", bool()>()));

  // What another process has had locked shows at the next layout.
  writeStrings(kLockedAlbums, {"Pets"});
  layOut(tile(1));
  EXPECT_TRUE(overlay(tile(1)));
}

TEST_F(Tiles, ReusedOneKeepsNothing) {
  open(From::list, {"Holidays"});
  const auto shown = tile(0);
  const UIView stack = shown.stackView();
  std::vector<NSUInteger> held;
  for (const std::string_view title : {"Pets", "Holidays", "Pets", "Holidays", "Pets"}) {
    const AutoreleasePool turn;
    show(title, shown);
    layOut(shown);
    EXPECT_EQ(count(shown, {kOverlay}), title == "Holidays" ? 1 : 0);
    held.push_back(references(stack));
  }
  EXPECT_EQ(held[4], held[2]) << "an overlay that is gone holds it no longer";
}

TEST_F(Tiles, SmallOneHasAnOverlayOfTheScreensMeasure) {
  open(From::list, {"Holidays"});
  const auto alone = makeObject<PUAlbumListCellContentView>();
  alone->setFrame({{0, 0}, {60, 100}});
  show("Holidays", alone.get());
  makeObject<PUHorizontalAlbumListGadget>()->send<"viewWillAppear:", void(bool)>(false);
  for (int pass = 0; pass < 2; ++pass) layOut(alone.get());
  EXPECT_EQ(frameText(overlay(alone.get())), "0 0 164 164");
  EXPECT_EQ(alone->gestureRecognizers().count(), 0u) << "neither list nor strip shows it";
}

TEST_F(Tiles, CountIncludesHiddenPhotos) {
  const auto album = library_.allAlbums()[0].identifier;
  library_.addToAlbum(library_.addAsset({.isHidden = true}), album);
  library_.addFolder("Folder");
  open(From::list);
  const auto shown = tile(0);
  EXPECT_EQ(shown.subtitle().utf8(), "2");
  EXPECT_EQ(tile(3).subtitle().utf8(), "0") << "a folder's, as the host counts";
  const auto laidOut = [&](std::string_view subtitle) {
    shown.setSubtitle(NSString::from(subtitle));
    layOut(shown);
    return shown.subtitle().utf8();
  };
  for (const auto number : {"7", " 7 ", "-1.5e3"}) EXPECT_EQ(laidOut(number), "2") << number;
  for (const auto text : {"7 photos", "1,234", "May 3 – 5", "", "seven", "2019 2020"})
    EXPECT_EQ(laidOut(text), text);
}

TEST_F(Tiles, TextsFollowTheSettings) {
  open(From::list, {"Holidays"});
  const auto shown = tile(0);
  const auto sizes = [&](const Preferences& preferences) {
    reload(preferences);
    layOut(shown);
    const auto size = [](Object text) { return text.send<"font", Object()>().send<"pointSize", double()>(); };
    return std::pair(size(shown.titleTextField()), size(shown.subtitleLabel()));
  };
  EXPECT_EQ(sizes({}), std::pair(14.0, 14.0));
  EXPECT_EQ(sizes({{"layoutFontSize", 20}}), std::pair(20.0, 20.0));
  EXPECT_EQ(sizes({{"layoutFontSize", 15}}), std::pair(20.0, 20.0)) << "left as they are";
  EXPECT_EQ(sizes({{"layoutFontSize", 15}, {"layoutShowSubtitle", false}}), std::pair(20.0, 0.0));
  EXPECT_TRUE(overlay(shown));
  EXPECT_EQ(sizes({{"layoutShowTitle", false}}), std::pair(0.0, 14.0));
  EXPECT_EQ(shown.title().utf8(), "");
  EXPECT_FALSE(overlay(shown)) << "the tile does not know its album";
  tap({kBack, "See All"});
  albumList().select(placeOf(0));
  settle();
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(owner().ownerRequest(), "Holidays needs to be unlocked.") << "but the lock holds";
  ownerIs(OwnerAnswer::cancel);
  touchLock(1);
  tile(1).send<"moveAlbum", void()>();
  EXPECT_FALSE(me_.hasAlert());
  me_.longPress("Pets");
  settle();
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"}) << "no name, no lock";
  EXPECT_TRUE(me_.feltFeedback().empty());
  tapAs(OwnerAnswer::cancel, {"Edit", "Delete Holidays"});
  settleLibrary();
  EXPECT_EQ(albums().size(), 3u);
}

/// A tile whose animations are noted as they begin: its latest view's alpha, the animation's seconds, delay
/// and options, and that view's frame.
PUAlbumListCellContentView animated;
std::vector<std::string> animations;
void animate(Object, Replaced<void(double, double, NSUInteger, Block<void()>, Block<void(bool)>)> host,
             double duration, double delay, NSUInteger options, Block<void()> block,
             Block<void(bool)> completion) {
  if (animated) {
    const UIView latest = frontOf(animated);
    std::ostringstream text;
    text << latest.send<"alpha", double()>() << ' ' << duration << ' ' << delay << ' ' << options << ' '
         << frameText(latest);
    animations.push_back(text.str());
  }
  host(duration, delay, options, block, completion);
}

/// A list that lays its tiles out as it begins to be edited.
void layOutWhileEditing(PUAlbumListViewController, Replaced<void(bool, bool)> host, bool editing,
                        bool animated) {
  host(editing, animated);
  if (editing) PhotosApp::layOut(PhotosApp::tile(0));
}

TEST_F(Tiles, ButtonsSlideInWhileTheListIsEdited) {
  installHook(replace<layOutWhileEditing>("PUAlbumListViewController", "setEditing:animated:", "v@:BB"));
  library_.addSyncedAlbum("Synced");
  installHook(replaceClassMethod<animate>(
      "UIView", "animateWithDuration:delay:options:animations:completion:", "v@:ddQ@?@?"));
  open(From::list, {"Holidays"});
  me_.tap("Edit");
  const auto shown = tile(0);
  const auto buttons = [&] { return count(shown, {kMoveButton, kLockButton}); };
  const auto setEditing = [&](bool editing) {
    shown.send<"setEditing:animated:", void(bool, bool)>(editing, true);
    return buttons();
  };
  for (int pass = 0; pass < 3; ++pass) {
    EXPECT_EQ(frameText(shown.subviewWithTag<UIView>(kMoveButton)), "10 40 22 22");
    EXPECT_EQ(frameText(shown.subviewWithTag<UIView>(kLockButton)), "10 70 22 22");
    EXPECT_EQ(buttons(), 2);
    EXPECT_EQ(frontOf(shown), shown.deleteButton()) << "above the padlock";
    setEditing(true);
    layOut(shown);
  }
  EXPECT_EQ(count(tile(3), {kMoveButton, kLockButton}), 0) << "it cannot be deleted";
  const Object recognizer = shown.subviewWithTag<UIView>(kLockButton).gestureRecognizers().objectAtIndex(0);
  EXPECT_EQ((recognizer.send<"delegate", Object()>()), shown);
  me_.tap("Done");
  animated = shown;
  EXPECT_EQ(setEditing(false), 0);
  EXPECT_EQ(setEditing(true), 2);
  EXPECT_EQ(animations, (Titles{"0 0.3 0 2 0 40 22 22", "0 0.3 0 2 0 70 22 22"}));
  layOut(shown);
  EXPECT_EQ(buttons(), 0) << "the list is not edited";

  me_.tap("Edit");
  EXPECT_EQ(buttons(), 2);
  reload({{"enabled", false}, {"layoutShowTitle", false}});
  layOut(shown);
  EXPECT_EQ(shown.title().utf8(), "Holidays");
  EXPECT_EQ(buttons() + count(shown, {kOverlay}), 0) << "switched off";
  EXPECT_EQ(setEditing(true), 0);
}

TEST_F(Tiles, LockButtonLocksAtOnceAndUnlocksForTheOwner) {
  open(From::list);
  me_.tap("Edit");
  me_.waitToSee("greenlock");
  me_.tap("greenlock");
  EXPECT_TRUE(soonLocked({"Holidays"}));
  EXPECT_TRUE(soonCovered(0)) << "without another touch";
  EXPECT_TRUE(me_.feltFeedback().empty());
  touchLock(0);
  ownerIs(OwnerAnswer::cancel);
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  touchLock(0);
  EXPECT_EQ(owner().ownerRequest(), "Holidays needs to be unlocked.");
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soonLocked({}));
  EXPECT_TRUE(soonCovered(0, false));
  EXPECT_EQ(me_.feltFeedback(), std::vector<int>{1001});

  // Locks that follow upon one another before the first has been saved.
  const PUAlbumListCellContentView both[] = {tile(0), tile(1)};
  for (const auto each : both) each.send<"lockAlbum", void()>();
  EXPECT_TRUE(soonLocked({"Holidays", "Pets"}));
  settle();
  remove(kLockedAlbums);
  touchLock(2);
  EXPECT_FALSE(hasFile(kLockedAlbums)) << "without a list nothing is changed";
}

TEST_F(Tiles, OnlyTheBeginningOfAPressActs) {
  open(From::strip);
  me_.tap("See All");
  EXPECT_EQ(tile(0).gestureRecognizers().count(), 1u);
  tile(0).send<"removeGestureRecognizer:", void(Object)>(pressOn(tile(0)));
  layOut(tile(0));
  using State = UIGestureRecognizer::State;
  const UIGestureRecognizer press = pressOn(tile(0));
  EXPECT_EQ((press.send<"minimumPressDuration", double()>()), 1.0);
  for (const State state : {State::changed, State::ended, State::cancelled, State::failed}) {
    press.send<"_enterState:", void(State)>(state);
    longPress(press);
  }
  longPress(UIGestureRecognizer());
  EXPECT_TRUE(me_.feltFeedback().empty());
  press.send<"_enterState:", void(State)>(State::possible);
  for (const bool isLocked : {true, false}) {
    me_.longPress("Holidays");
    if (!isLocked) ownerIs(OwnerAnswer::success);
    EXPECT_TRUE(soonCovered(0, isLocked)) << "without another touch";
  }
}

TEST_F(Tiles, AlbumIsMovedFromItsTile) {
  holdNotices();
  // A pad's sheet has a source.
  UIDevice::currentDevice().send<"_setUserInterfaceIdiom:", void(NSInteger)>(1);
  open(From::list, {"Holidays"});
  me_.tap("Edit");
  const auto ask = [&](NSInteger item) { tile(item).send<"askToMoveAlbum", void()>(); };
  const auto choose = [&](std::string_view button, std::string_view notice) {
    const HeldLibrary held;
    me_.alert().tap(button);
    me_.waitToSee(notice);
  };
  {
    const AutoreleasePool touch;
    show("Pets", tile(1));
    ask(1);
    show("Recipes", tile(1));
  }
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Move Album", "Return album photos to the camera roll or move them out?",
                    "Return to camera roll", "Move out of camera roll", "Cancel"}));
  choose("Move out of camera roll", "Moving photos");
  me_.waitToSee("Finished moving");
  EXPECT_TRUE(isHidden("Pets")) << "which the tile showed when it was touched";
  library_.removeFromAlbum(3, 3);
  ask(2);
  choose("Move out of camera roll", "No photos to move");
  writeStrings(kLockedAlbums, {"Holidays", "Recipes"});
  ask(2);
  EXPECT_FALSE(me_.hasAlert()) << "another process has had it locked";
  ownerIs(OwnerAnswer::cancel);
  writeStrings(kLockedAlbums, {"Holidays"});

  ask(0);
  EXPECT_FALSE(me_.hasAlert()) << "it is locked";
  ownerIs(OwnerAnswer::success);
  me_.waitToSee("Move Album");
  choose("Move out of camera roll", "Moving photos");
  me_.waitToSee("Finished moving");
  EXPECT_TRUE(isHidden("Holidays"));
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  me_.tap("Done");
  EXPECT_EQ(tapped("Holidays"), "") << "to move an album is not to open it";
  ownerIs(OwnerAnswer::cancel);
  touchLock(0);
  EXPECT_TRUE(soonLocked({})) << "but the next lock is removed without asking again";
}

TEST_F(Tiles, PasswordUnlocks) {
  holdNotices();
  write(kPassword, "right");
  open(From::list, {"Holidays", "Pets"}, kWithPassword);
  touchLock(0);
  enter("wrong");
  me_.waitToSee("Incorrect password.");
  EXPECT_EQ(phone_.strings(kLockedAlbums), (Titles{"Holidays", "Pets"}));
  touchLock(0);
  enter("right");
  EXPECT_TRUE(soonLocked({"Pets"}));
  remove(kPassword);
  touchLock(1);
  enter("");
  me_.waitToSee("No password set");
  EXPECT_TRUE(soonLocked({}));
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("controller"), "PUAlbumListCellContentView");

  // An answer without a name is for who asked or was touched last.
  makeObject<PUHorizontalAlbumListGadget>()->send<"viewWillAppear:", void(bool)>(false);
  touchLock(2);
  remove(kAnswer);
  write(kPassword, "right");
  phone_.post(kAnswered);
  enter("wrong");
  me_.waitToSee("Incorrect password.");
}

TEST_F(Tiles, AnswerIsForTheAlbumAskedForAndOnce) {
  open(From::list, {"Holidays", "Recipes"});
  const auto asked = tile(0);
  const auto answer = [&](std::string_view shownByThen) {
    show("Holidays", asked);
    touchLock(0);
    show(shownByThen, asked);
    ownerIs(OwnerAnswer::success);
    settle();
  };
  answer("Recipes");
  EXPECT_EQ(phone_.strings(kLockedAlbums), (Titles{"Holidays", "Recipes"}));
  asked.send<"unlockAlbum:withAlbum:", void(int, NSString)>(7, NSString::from("Recipes"));
  asked.send<"unlockAuthorised:", void(int)>(0);
  EXPECT_EQ(phone_.strings(kLockedAlbums), (Titles{"Holidays", "Recipes"})) << "it waits for another method";
  ownerIs(OwnerAnswer::cancel);
  answer("Holidays");
  show("Holidays", asked);
  EXPECT_TRUE(soonLocked({"Recipes"}));
  // The tile has seen its own change saved; what is written from here on is somebody else's.
  layOut(asked);
  writeStrings(kLockedAlbums, {"Holidays", "Recipes"});
  touchLock(0);
  writeStrings(kLockedAlbums, {"Recipes"});
  ownerIs(OwnerAnswer::success);
  settle();
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Recipes"}) << "an answer locks nothing";
  phone_.post(kAnswered);
  for (int way = 0; way < 2; ++way) settle();
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Recipes"}) << "nobody waits any more";
}

TEST_F(Tiles, ChangeHoldsUntilTheFileShowsIt) {
  open(From::list);
  // Nobody saves: the file stays as it was.
  springBoard_->kill();
  const auto shown = tile(0);
  const auto isCovered = [&] {
    layOut(shown);
    return static_cast<bool>(overlay(shown));
  };
  shown.send<"lockAlbum", void()>();
  EXPECT_TRUE(isCovered());
  albumList().send<"unlockAuthorised:", void(int)>(77);
  longPress(pressOn(shown));
  EXPECT_FALSE(isCovered()) << "the pass was used";
  writeStrings(kLockedAlbums, {"Holidays"});
  EXPECT_TRUE(isCovered()) << "nothing is on its way any more: somebody else has had it locked";
  me_.tap("Holidays");
  turn();
  EXPECT_EQ(openAlbum(), "") << "and nobody is there to ask the owner";
}

}  // namespace
}  // namespace velvault12
