// Album tiles in the Photos app: the overlay of a locked one, their buttons, their texts.

#include <sstream>

#include "host/hook.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

constexpr NSInteger kOverlay = 200, kPadlock = 202, kMoveButton = 213, kLockButton = 214;

std::string words(UIView view) {
  if (!view) return "none";
  const CGRect frame = view.frame();
  std::string text;
  for (const double number : {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height}) {
    text += (text.empty() ? "" : " ") + std::to_string(static_cast<int>(number));
  }
  return text;
}

class Tiles : public PhotosApp {
 protected:
  static PUAlbumListCellContentView stripTile(NSInteger item) {
    return albumTile(strip().gadgetAtIndexPath(placeOf(item)));
  }
  static UIView overlay(UIView tile) { return tile.subviewWithTag<UIView>(kOverlay); }
  static int count(UIView tile, NSInteger tag) {
    int found = 0;
    for (const Object view : tile.subviews()) found += UIView(view.get()).tag() == tag ? 1 : 0;
    return found;
  }
  static void layOut(UIView tile) { tile.send<"layoutSubviews", void()>(); }
  static double fontSize(Object text) { return text.send<"font", Object()>().send<"pointSize", double()>(); }
  /// Whether the album's overlay is on screen, once it has been laid out.
  bool soonCovered(NSInteger item, bool isCovered = true) const {
    return soon([&] { return tile(item) && static_cast<bool>(overlay(tile(item))) == isCovered; });
  }
  bool isHidden(std::string_view title) const { return assetsIn(title).at(0).isHidden; }
};

TEST_F(Tiles, ALockedOneHasOneOverlayThatOnlyTheListMoves) {
  open(From::strip, {"Holidays"});
  const auto inStrip = stripTile(0);
  for (int pass = 0; pass < 3; ++pass) layOut(inStrip);
  EXPECT_EQ(words(overlay(inStrip)), "0 0 165 165");
  EXPECT_EQ((overlay(inStrip).send<"photoView", UIView()>()), inStrip.stackView());
  EXPECT_EQ(count(inStrip, kOverlay), 1);
  EXPECT_EQ(count(stripTile(1), kOverlay), 0);

  me_.tap("See All");
  const auto inList = tile(0);
  const UIView lock = overlay(inList);
  EXPECT_STREQ(lock.className(), "VVLockView");
  for (int pass = 0; pass < 3; ++pass) layOut(inList);
  EXPECT_EQ(overlay(inList), lock) << "made once";
  const auto expectInItsPlace = [&](std::string_view when) {
    SCOPED_TRACE(when);
    EXPECT_EQ(words(lock), "-1 -1 167 167");
    EXPECT_EQ(words(lock.viewWithTag(kPadlock)), "57 57 50 50");
    EXPECT_EQ((lock.send<"photoView", UIView()>()), inList.stackView());
    EXPECT_EQ(inList.subviews().objectAtIndex(inList.subviews().count() - 1), lock) << "in front";
  };
  expectInItsPlace("made");
  const NSArray parts = lock.subviews();
  ASSERT_EQ(parts.count(), 2u);
  EXPECT_TRUE(parts.objectAtIndex(0).as<UIVisualEffectView>());
  EXPECT_EQ(words(UIView(parts.objectAtIndex(0).get())), "0 0 265 265");
  EXPECT_TRUE((lock.send<"clipsToBounds", bool()>()));
  EXPECT_EQ((lock.layer().send<"cornerRadius", double()>()), 5);

  // The padlock of a tile that was larger when it was made.
  lock.viewWithTag(kPadlock).setFrame({});
  lock.send<"setPhotoView:", void(UIView)>(UIView());
  inList.bringSubviewToFront(inList.stackView());
  inList.setClipsToBounds(false);
  inList.stackView().setFrame({{5, 6}, {100, 100}});
  inList.setHidden(true);
  layOut(inList);
  expectInItsPlace("once the host has laid its stack out again");
  EXPECT_TRUE((inList.send<"clipsToBounds", bool()>()));
  EXPECT_FALSE((inList.send<"isHidden", bool()>()));

  // What another process has had locked shows at the next layout.
  writeStrings(kLockedAlbums, {"Pets"});
  layOut(tile(1));
  EXPECT_TRUE(overlay(tile(1)));
}

TEST_F(Tiles, OneThatNeitherListNorStripShowsHasNoPressAndAnOverlayThatStays) {
  open(From::list, {"Holidays"});
  const auto alone = makeObject<PUAlbumListCellContentView>();
  alone->setFrame({{0, 0}, {100, 140}});
  show("Holidays", alone.get());
  for (int pass = 0; pass < 2; ++pass) layOut(alone.get());
  EXPECT_EQ(words(overlay(alone.get())), "0 0 102 102");
  // A small one asks for nothing; the strip that comes on screen does.
  overlay(alone.get()).removeFromSuperview();
  alone->setFrame({{0, 0}, {60, 100}});
  makeObject<PUHorizontalAlbumListGadget>()->send<"viewWillAppear:", void(bool)>(false);
  layOut(alone.get());
  EXPECT_EQ(words(overlay(alone.get())), "0 0 164 164");
  EXPECT_EQ(alone->gestureRecognizers().count(), 0u);
  for (const NSInteger method : {0, 1}) alone->send<"requestPassword:", void(int)>(static_cast<int>(method));
  alone->send<"moveAlbum", void()>();
  EXPECT_FALSE(me_.hasAlert());
}

TEST_F(Tiles, OneThatIsUsedForOneAlbumAfterTheOtherKeepsNothing) {
  open(From::list, {"Holidays"});
  const auto shown = tile(0);
  const auto stack = shown.stackView();
  const auto overlays = [&](std::string_view title) {
    const AutoreleasePool turn;
    show(title, shown);
    layOut(shown);
    return count(shown, kOverlay);
  };
  overlays("Pets");
  GSDebugAllocationActive(1);
  const auto alive = [] { return GSDebugAllocationCount(classNamed<"VVLockView">()); };
  const int before = alive();
  const NSUInteger held = references(stack);
  for (int round = 0; round < 20; ++round) {
    EXPECT_EQ(overlays("Holidays"), 1);
    EXPECT_EQ(overlays("Holidays"), 1);
    EXPECT_EQ(overlays("Pets"), 0);
  }
  EXPECT_EQ(alive(), before);
  EXPECT_EQ(references(stack), held);
}

TEST_F(Tiles, TheCountIncludesHiddenPhotosAndOtherSubtitlesStay) {
  auto library = phone_.photoLibrary();
  const auto album = library.allAlbums()[0].identifier;
  library.addToAlbum(library.addAsset({.isHidden = true}), album);
  library.addFolder("Folder");
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

TEST_F(Tiles, TheTextsFollowTheSettings) {
  open(From::list, {"Holidays"});
  const auto shown = tile(0);
  const auto sizes = [&](const Preferences& preferences) {
    reload(preferences);
    layOut(shown);
    return std::pair(fontSize(shown.titleTextField()), fontSize(shown.subtitleLabel()));
  };
  EXPECT_EQ(sizes({}), std::pair(14.0, 14.0));
  EXPECT_EQ(sizes({{"layoutFontSize", 20}}), std::pair(20.0, 20.0));
  EXPECT_EQ(sizes({{"layoutFontSize", 15}}), std::pair(20.0, 20.0)) << "left as they are";
  EXPECT_EQ(sizes({{"layoutFontSize", 15}, {"layoutShowSubtitle", false}}), std::pair(20.0, 0.0));
  EXPECT_TRUE(overlay(shown));
  EXPECT_EQ(sizes({{"layoutShowTitle", false}}), std::pair(0.0, 14.0));
  EXPECT_EQ(shown.title().utf8(), "");
  EXPECT_FALSE(overlay(shown)) << "the tile does not know its album";
  me_.back();
  me_.tap("See All");
  albumList().select(placeOf(0));
  settle();
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(owner().ownerRequest(), "Holidays needs to be unlocked.") << "but the lock holds";
  ownerIs(OwnerAnswer::cancel);
  tile(1).send<"lockAlbum", void()>();
  settle();
  tile(1).send<"moveAlbum", void()>();
  EXPECT_FALSE(me_.hasAlert());
  me_.longPress("Pets");
  settle();
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"}) << "no name, no lock";
  EXPECT_TRUE(me_.feltFeedback().empty());
  tapAs(OwnerAnswer::cancel, {"Edit", "Delete Holidays"});
  settleLibrary();
  EXPECT_EQ(albums().size(), 3u);
  me_.tap("Done");
  me_.back();
  strip().select(placeOf(0));
  settle();
  EXPECT_EQ(owner().ownerRequest(), "Holidays needs to be unlocked.");
}

/// A tile whose animations are noted as they begin: its latest view's alpha, the animation's seconds, delay
/// and options, and that view's frame.
PUAlbumListCellContentView animated;
std::vector<std::string> animations;
void animate(Object, Replaced<void(double, double, NSUInteger, Block<void()>, Block<void(bool)>)> host,
             double duration, double delay, NSUInteger options, Block<void()> block,
             Block<void(bool)> completion) {
  if (animated) {
    const UIView latest(animated.subviews().objectAtIndex(animated.subviews().count() - 1).get());
    std::ostringstream text;
    text << latest.send<"alpha", double()>() << ' ' << duration << ' ' << delay << ' ' << options << ' '
         << words(latest);
    animations.push_back(text.str());
  }
  host(duration, delay, options, block, completion);
}

TEST_F(Tiles, WhileTheListIsEditedTheyHaveButtonsThatSlideIn) {
  phone_.photoLibrary().addSyncedAlbum("Synced");
  installHook(replaceClassMethod<animate>(
      "UIView", "animateWithDuration:delay:options:animations:completion:", "v@:ddQ@?@?"));
  open(From::list);
  me_.tap("Edit");
  const auto shown = tile(0);
  const auto button = [&](NSInteger tag) { return shown.subviewWithTag<UIView>(tag); };
  for (int pass = 0; pass < 3; ++pass) {
    EXPECT_EQ(words(button(kMoveButton)), "10 40 22 22");
    EXPECT_EQ(words(button(kLockButton)), "10 70 22 22");
    EXPECT_EQ(count(shown, kMoveButton) + count(shown, kLockButton), 2);
    EXPECT_EQ(shown.subviews().objectAtIndex(shown.subviews().count() - 1), shown.deleteButton());
    shown.send<"setEditing:animated:", void(bool, bool)>(true, true);
    layOut(shown);
  }
  EXPECT_EQ(count(tile(3), kMoveButton) + count(tile(3), kLockButton), 0) << "it cannot be deleted";
  const Object recognizer = button(kLockButton).gestureRecognizers().objectAtIndex(0);
  EXPECT_EQ((recognizer.send<"delegate", Object()>()), shown);
  me_.tap("Done");
  const auto setEditing = [&](bool editing) {
    shown.send<"setEditing:animated:", void(bool, bool)>(editing, false);
    return count(shown, kMoveButton) + count(shown, kLockButton);
  };
  animated = shown;
  EXPECT_EQ(setEditing(false), 0);
  EXPECT_EQ(setEditing(true), 2);
  EXPECT_EQ(animations, (Titles{"0 0.3 0 2 0 40 22 22", "0 0.3 0 2 0 70 22 22"}));
  layOut(shown);
  EXPECT_EQ(count(shown, kMoveButton) + count(shown, kLockButton), 0) << "the list is not edited";
}

int listLayouts = 0;
void listLaidOut(UIViewController, Replaced<void()> host) {
  ++listLayouts;
  host();
}

TEST_F(Tiles, TheLockButtonLocksAtOnceAndUnlocksForTheOwner) {
  open(From::list);
  installHook(replace<listLaidOut>("PUAlbumListViewController", "viewDidLayoutSubviews", "v@:"));
  me_.tap("Edit");
  const auto press = [&](NSInteger item) {
    tile(item).send<"lockAlbum", void()>();
    settle();
  };
  me_.waitToSee("greenlock");
  me_.tap("greenlock");
  EXPECT_TRUE(soonLocked({"Holidays"}));
  EXPECT_TRUE(soonCovered(0)) << "without another touch";
  EXPECT_TRUE(me_.feltFeedback().empty());
  press(0);
  ownerIs(OwnerAnswer::cancel);
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  press(0);
  EXPECT_EQ(owner().ownerRequest(), "Holidays needs to be unlocked.");
  const int layoutsBefore = listLayouts;
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soonLocked({}));
  EXPECT_GT(listLayouts, layoutsBefore);
  EXPECT_TRUE(soonCovered(0, false));
  // Its own changes have been seen in the file by now; whatever follows is somebody else's.
  layOut(tile(0));
  for (const bool isLocked : {true, false}) {
    writeStrings(kLockedAlbums, isLocked ? Titles{"Holidays"} : Titles{});
    layOut(tile(0));
    EXPECT_EQ(static_cast<bool>(overlay(tile(0))), isLocked) << "as another process has had it";
  }
  EXPECT_EQ(me_.feltFeedback(), std::vector<int>{1001});

  // Locks that follow upon one another before the first has been saved.
  const PUAlbumListCellContentView both[] = {tile(0), tile(1)};
  for (const auto each : both) each.send<"lockAlbum", void()>();
  EXPECT_TRUE(soonLocked({"Holidays", "Pets"}));
  settle();
  makeObject<PUHorizontalAlbumListGadget>()->send<"viewWillAppear:", void(bool)>(false);
  remove(kLockedAlbums);
  press(2);
  EXPECT_FALSE(hasFile(kLockedAlbums)) << "without a list nothing is changed";

  // Who touched a tile last is who an answer without a name is for.
  reload(kWithPassword);
  write(kPassword, "right");
  remove(kAnswer);
  phone_.post(kAnswered);
  enter("wrong");
  me_.waitToSee("Incorrect password.");
}

TEST_F(Tiles, APressInListAndStripIsForWhatShowsTheTile) {
  open(From::strip);
  EXPECT_EQ(stripTile(0).gestureRecognizers().count(), 1u);
  me_.tap("See All");
  EXPECT_EQ(tile(0).gestureRecognizers().count(), 1u);
  // One that has lost its recognizer gets another.
  tile(0).send<"removeGestureRecognizer:", void(Object)>(pressOn(tile(0)));
  layOut(tile(0));
  me_.longPress("Holidays");
  EXPECT_TRUE(soonLocked({"Holidays"}));
  EXPECT_TRUE(soonCovered(0)) << "without another touch";
  me_.longPress("Holidays");
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soonCovered(0, false));
}

TEST_F(Tiles, AnAlbumIsMovedAndReturnedFromItsTile) {
  open(From::list, {"Holidays"});
  me_.tap("Edit");
  const auto ask = [&](NSInteger item) { tile(item).send<"askToMoveAlbum", void()>(); };
  const auto choose = [&](std::string_view button, std::string_view notice) {
    const HeldLibrary held;
    me_.alert().tap(button);
    me_.waitToSee(notice);
  };
  ask(1);
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Move Album", "Return album photos to the camera roll or move them out?",
                    "Return to camera roll", "Move out of camera roll", "Cancel"}));
  choose("Move out of camera roll", "Moving photos");
  me_.waitToSee("Finished moving");
  me_.waitUntilGone("Finished moving");
  EXPECT_TRUE(isHidden("Pets"));
  ask(1);
  choose("Return to camera roll", "Returning photos");
  me_.waitToSee("Finished returning");
  EXPECT_FALSE(isHidden("Pets"));

  phone_.photoLibrary().removeFromAlbum(3, 3);
  ask(2);
  choose("Move out of camera roll", "No photos to move");
  UIDevice::currentDevice().send<"_setUserInterfaceIdiom:", void(NSInteger)>(1);
  ask(2);
  choose("Return to camera roll", "No photos to return.");
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
  tile(0).send<"lockAlbum", void()>();
  EXPECT_TRUE(soonLocked({})) << "but the next lock is removed without asking again";
}

TEST_F(Tiles, APasswordUnlocksATileToo) {
  write(kPassword, "right");
  open(From::list, {"Holidays", "Pets"}, kWithPassword);
  const auto unlock = [&](NSInteger item, std::string_view password) {
    tile(item).send<"lockAlbum", void()>();
    enter(password);
  };
  unlock(0, "wrong");
  me_.waitToSee("Incorrect password.");
  EXPECT_EQ(phone_.strings(kLockedAlbums), (Titles{"Holidays", "Pets"}));
  unlock(0, "right");
  EXPECT_TRUE(soonLocked({"Pets"}));
  remove(kPassword);
  unlock(1, "");
  me_.waitToSee("No password set");
  EXPECT_TRUE(soonLocked({}));
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("controller"), "PUAlbumListCellContentView");
  tile(0).send<"unlockAuthorised:", void(int)>(77);
  settle();
  EXPECT_FALSE(me_.hasAlert());
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{});
}

TEST_F(Tiles, AnAnswerIsForTheAlbumThatWasAskedForAndForOneTimeOnly) {
  open(From::list, {"Holidays", "Recipes"});
  const auto asked = tile(0);
  const auto answer = [&](std::string_view shownByThen) {
    show("Holidays", asked);
    asked.send<"lockAlbum", void()>();
    owner().waitForOwnerRequest();
    show(shownByThen, asked);
    owner().answerOwnerRequest(OwnerAnswer::success);
    settle();
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
  asked.send<"lockAlbum", void()>();
  owner().waitForOwnerRequest();
  writeStrings(kLockedAlbums, {"Recipes"});
  ownerIs(OwnerAnswer::success);
  for (int again = 0; again < 2; ++again) {
    EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Recipes"}) << "an answer locks nothing";
    phone_.post(kAnswered);
    settle();
  }
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Recipes"}) << "nobody waits any more";
}

TEST_F(Tiles, AChangeHoldsUntilTheFileShowsIt) {
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
}

TEST_F(Tiles, SwitchedOffTheyAreTheHostsOwn) {
  open(From::list, {"Holidays"});
  me_.tap("Edit");
  const auto shown = tile(0);
  ASSERT_TRUE(overlay(shown));
  reload({{"enabled", false}, {"layoutShowTitle", false}});
  layOut(shown);
  EXPECT_EQ(shown.title().utf8(), "Holidays");
  EXPECT_EQ(count(shown, kOverlay) + count(shown, kLockButton) + count(shown, kMoveButton), 0);
  shown.send<"setEditing:animated:", void(bool, bool)>(true, false);
  EXPECT_EQ(count(shown, kLockButton), 0);
}

}  // namespace
}  // namespace velvault12
