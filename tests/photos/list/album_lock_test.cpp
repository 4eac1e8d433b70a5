// Locked albums in the Photos app's strip and list.

#include "host/app_support.hpp"
#include "host/hook.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

/// The latest message to another process: its name and what went with it.
std::string sent;
bool send(CPDistributedMessagingCenter center, Replaced<bool(NSString, NSDictionary)> host, NSString name,
          NSDictionary userInfo) {
  EXPECT_EQ(center, CPDistributedMessagingCenter::centerNamed("com.qdx.velvault12"));
  sent = name.utf8() + " " + userInfo.send<"description", NSString()>().utf8();
  return host(name, userInfo);
}

class EitherWay : public PhotosApp, public ::testing::WithParamInterface<From> {};
INSTANTIATE_TEST_SUITE_P(PhotosApp, EitherWay, ::testing::Values(From::strip, From::list),
                         ::testing::PrintToStringParamName());

TEST_P(EitherWay, ALongPressLocksAtOnceAndOnlyItsOwnerUnlocks) {
  open(GetParam());
  me_.longPress("Holidays");
  EXPECT_FALSE(me_.hasAlert());
  EXPECT_EQ(me_.feltFeedback(), std::vector<int>{1001});
  EXPECT_TRUE(soonLocked({"Holidays"}));
  me_.longPress("Pets");
  EXPECT_TRUE(soonLocked({"Holidays", "Pets"}));

  // It starts from the file, which another process may have had written.
  const Titles locked{"Holidays", "Recipes", "Pets"};
  writeStrings(kLockedAlbums, locked);
  me_.longPress("Holidays");
  owner().waitForOwnerRequest();
  EXPECT_EQ(owner().ownerRequest(), "Holidays needs to be unlocked.");
  EXPECT_EQ(phone_.strings(kLockedAlbums), locked);
  owner().answerOwnerRequest(OwnerAnswer::success);
  EXPECT_TRUE(soonLocked({"Recipes", "Pets"}));
  EXPECT_EQ(tapped("Pets"), "") << "the pass is used up";
  EXPECT_EQ(tapped("Recipes"), "");
  EXPECT_EQ(tapped("Holidays"), "Holidays");
}

TEST_P(EitherWay, ALockedAlbumOpensForItsOwnerAloneAndOncePerAuthentication) {
  open(GetParam(), {"Holidays"});
  device::NotificationCounter answered(phone_, kAnswered);
  for (const OwnerAnswer answer : {OwnerAnswer::cancel, OwnerAnswer::failure}) {
    tapAs(answer, {"Holidays"});
    EXPECT_EQ(openAlbum(), "");
    EXPECT_FALSE(me_.hasAlert());
    EXPECT_FALSE(hasFile(kAnswer));
    EXPECT_EQ(answered.count(), 0);
  }
  for (int round = 0; round < 3; ++round) {
    EXPECT_EQ(tapped("Holidays"), "") << round;
    ownerIs(OwnerAnswer::success);
    ASSERT_TRUE(soonOpen("Holidays")) << round;
    me_.back();
  }
  EXPECT_EQ(tapped("Pets"), "Pets");
}

TEST_P(EitherWay, ThePasswordOpensWhenItIsRightToTheLetter) {
  write(kPassword, "open sesame");
  open(GetParam(), {"Holidays"}, kWithPassword);
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Unlock album", "Enter password to unlock album.", "Password (secure)", "OK", "Cancel"}));
  me_.tap("Cancel");
  settle();
  EXPECT_EQ(openAlbum(), "");

  for (const std::string_view wrong : {"", "open sesame ", " open sesame", "Open sesame"}) {
    tapAndEnter("Holidays", wrong);
    me_.waitToSee("Incorrect password");
    EXPECT_FALSE(me_.hasAlert());
    EXPECT_EQ(openAlbum(), "") << wrong;
  }
  tapAndEnter("Holidays", "open sesame");
  EXPECT_EQ(openAlbum(), "Holidays");
}

TEST_F(PhotosApp, WithoutAPasswordAnyEntryUnlocksAndAnEmptyOneMatchesNothingTyped) {
  write(kPassword, "");
  open(From::list, {"Holidays"}, kWithPassword);
  const UIView window = UIApplication::sharedApplication().keyWindow();
  const NSUInteger subviewsAtRest = window.subviews().count();
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  remove(kPassword);
  enter("whatever");
  me_.waitToSee("No password set");
  EXPECT_EQ(openAlbum(), "Holidays");
  me_.back();

  write(kPassword, "");
  tapAndEnter("Holidays", "whatever");
  const auto shown = std::chrono::steady_clock::now();
  me_.waitToSee("Incorrect password");
  EXPECT_FALSE(me_.sees("No password set")) << "a newer notice takes the place of the older";
  tapAndEnter("Holidays", "");
  EXPECT_EQ(openAlbum(), "Holidays");
  me_.waitUntilGone("Incorrect password");
  EXPECT_GE(std::chrono::steady_clock::now() - shown, std::chrono::seconds(2));
  EXPECT_TRUE(soon([&] { return window.subviews().count() == subviewsAtRest; }));
}

TEST_F(PhotosApp, APhoneThatCannotAskItsOwnerOpensAtOnceAndSoDoesAnyOtherOption) {
  open(From::list, {"Holidays"});
  owner().setPasscode(false);
  me_.tap("Holidays");
  EXPECT_TRUE(soonOpen("Holidays"));
  me_.back();

  // An owner who cancels leaves the former answer as it is, for whoever reads it next.
  owner().setPasscode(true);
  const auto former = phone_.dictionary(kAnswer);
  tapAs(OwnerAnswer::cancel, {"Holidays"});
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(phone_.dictionary(kAnswer), former);
  phone_.post(kAnswered);
  EXPECT_TRUE(soonOpen("Holidays")) << "a notification without a new answer";
  me_.back();

  reload({{"passOption", 2}});
  me_.tap("Holidays");
  EXPECT_TRUE(soonOpen("Holidays"));
  EXPECT_EQ(owner().ownerRequest(), "");
}

TEST_F(PhotosApp, TheMessagesSayWhoAsksForWhat) {
  installHook(replace<send>("CPDistributedMessagingCenter", "sendMessageName:userInfo:", "B@:@@"));
  phone_.launchHere(device::kPhotos);
  me_.longPress("Holidays");
  EXPECT_EQ(sent,
            "savearray {array = (Holidays); id = \"com.apple.mobileslideshow\"; path = "
            "\"/var/mobile/Library/velvault/lockedAlbums.plist\"; }");
  me_.tap("Holidays");
  EXPECT_EQ(sent,
            "authenticate {albumName = Holidays; controller = PUHorizontalAlbumListGadget; "
            "id = \"com.apple.mobileslideshow\"; method = 0; }");
}

TEST_F(PhotosApp, TheLockFollowsTheTitle) {
  auto library = phone_.photoLibrary();
  library.addAlbum("Holidays");
  library.addAlbum("holidays");
  for (int i = 0; i < 40; ++i) library.addAlbum("Album " + std::to_string(i));
  open(From::list, {"Holidays", "Album 39"});
  const Ref<PUAlbumListViewController> list(albumList());
  const auto select = [&](NSInteger item) {
    list->select(placeOf(item));
    settle();
    const std::string opened = openAlbum();
    if (!opened.empty()) me_.back();
    return opened;
  };
  ASSERT_FALSE(list->tileAtIndexPath(placeOf(44))) << "out of sight";
  EXPECT_EQ(select(44), "");
  EXPECT_EQ(owner().ownerRequest(), "Album 39 needs to be unlocked.");
  EXPECT_EQ(select(3), "") << "the second of that title";
  EXPECT_EQ(select(4), "holidays");
  library.renameCollection(library.collections().front().identifier, "Summer");
  me_.back();
  me_.tap("See All");
  EXPECT_EQ(tapped("Summer"), "Summer");
}

/// The first album's tile: it has a title, but no tile.
Object gadgetWithoutTile(PUHorizontalAlbumListGadget, Replaced<Object(NSIndexPath)> host, NSIndexPath) {
  return albumTile(host(PhotosApp::placeOf(0)));
}

TEST_F(PhotosApp, AGadgetWithoutATileIsKnownByItsOwnTitle) {
  open(From::strip, {"Holidays"});
  installHook(replace<gadgetWithoutTile>("PUHorizontalAlbumListGadget", "_gadgetAtIndexPath:", "@@:@"));
  strip().select(placeOf(1));
  settle();
  EXPECT_EQ(owner().ownerRequest(), "Holidays needs to be unlocked.");
}

TEST_F(PhotosApp, SwitchedOnWhileItRunsChangesNothing) {
  open(From::strip, {"Holidays"}, {{"enabled", false}});
  reload({{"enabled", true}});
  me_.tap("See All");
  EXPECT_EQ(tapped("Holidays"), "Holidays");
}

TEST_F(PhotosApp, SwitchedOffNewTilesAreTheHostsOwn) {
  open(From::strip);
  reload({{"enabled", false}});
  me_.tap("See All");
  me_.longPress("Pets");
  settle();
  EXPECT_EQ(openAlbum(), "Pets") << "a slow tap";
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{});
  remove(kLockedAlbums);
  me_.back();
  me_.back();
  settle();
  EXPECT_FALSE(hasFile(kLockedAlbums)) << "nothing is saved as they come on screen";
}

TEST_F(PhotosApp, ALockedAlbumIsDeletedOnlyByItsOwner) {
  open(From::list, {"Holidays", "Recipes"});
  show("Recipes", tile(1));
  albumList().performDelete(tile(1), Object());
  ownerIs(OwnerAnswer::cancel);
  EXPECT_EQ(albums().size(), 3u) << "what it is called on screen is locked";
  show("Pets", tile(1));
  tap({"Edit", "Delete Pets"});
  settleLibrary();
  EXPECT_EQ(albums(), (Titles{"Holidays", "Recipes"}));
  tapAs(OwnerAnswer::cancel, {"Delete Holidays"});
  EXPECT_EQ(albums(), (Titles{"Holidays", "Recipes"}));
  tapAs(OwnerAnswer::success, {"Delete Holidays"});
  EXPECT_TRUE(soon([&] { return albums() == Titles{"Recipes"}; }));
  me_.tap("Done");
  EXPECT_EQ(tapped("Recipes"), "") << "the pass is used up";
}

TEST_F(PhotosApp, ThePasswordAlsoRemovesALockAndDeletes) {
  write(kPassword, "right");
  open(From::list, {"Holidays", "Pets"}, kWithPassword);
  me_.longPress("Holidays");
  enter("right");
  EXPECT_TRUE(soonLocked({"Pets"}));
  tap({"Edit", "Delete Pets"});
  enter("right");
  settleLibrary();
  EXPECT_EQ(albums(), (Titles{"Holidays", "Recipes"}));
}

TEST_F(PhotosApp, WhatWaitsIsLetGoWhenItsAlbumIsNoLongerInItsPlace) {
  open(From::list, {"Holidays", "Recipes"});
  auto library = phone_.photoLibrary();
  const Ref<PUAlbumListViewController> list(albumList());
  enum By { kOwner, kNotification };
  const auto answered = [&](By by = kOwner) {
    by == kOwner ? ownerIs(OwnerAnswer::success) : phone_.post(kAnswered);
    for (int way = 0; way < 2; ++way) settle();
  };
  // Shown anew twice, the list's tiles are in their former places.
  const auto shownAnewAndAnswered = [&](By by = kOwner) {
    list->send<"reloadContentView", void()>();
    turn();
    answered(by);
  };
  const auto pressed = tile(0);
  const Ref<UIGestureRecognizer> press(pressOn(pressed));
  const auto pressHolidays = [&] {
    show("Holidays", pressed);
    longPress(press.get());
    owner().waitForOwnerRequest();
  };
  pressHolidays();
  show("Recipes", pressed);
  answered();
  show("Holidays", pressed);
  answered(kNotification);
  EXPECT_EQ(phone_.strings(kLockedAlbums), (Titles{"Holidays", "Recipes"})) << "it waits no longer";
  EXPECT_EQ(tapped("Recipes"), "Recipes") << "an answer that nobody awaits left a pass";
  me_.back();
  pressHolidays();
  writeStrings(kLockedAlbums, {"Recipes"});
  answered();
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Recipes"}) << "an answer locks nothing";
  writeStrings(kLockedAlbums, {"Holidays", "Recipes"});
  pressed.send<"layoutSubviews", void()>();
  tapUntilAsked({"Edit", "Delete Holidays"});
  shownAnewAndAnswered();
  shownAnewAndAnswered(kNotification);
  settleLibrary();
  EXPECT_EQ(albums(), (Titles{"Holidays", "Pets", "Recipes"}));
  tapUntilAsked({"Done", "Holidays"});
  const auto holidays = library.collections()[0].identifier;
  library.renameCollection(holidays, "Summer");
  shownAnewAndAnswered();
  EXPECT_EQ(openAlbum(), "") << "not Summer";
  library.renameCollection(holidays, "Holidays");
  shownAnewAndAnswered(kNotification);
  EXPECT_EQ(openAlbum(), "");
  tapUntilAsked({"Recipes"});
  library.removeCollection(holidays);
  shownAnewAndAnswered();
  EXPECT_EQ(openAlbum(), "") << "not what is past the end";
  EXPECT_EQ(tapped("Recipes"), "") << "and no pass is left";
  ownerIs(OwnerAnswer::cancel);
  tapUntilAsked({"Edit", "Delete Recipes"});
  library.removeCollection(library.collections()[1].identifier);
  shownAnewAndAnswered();
  EXPECT_TRUE(me_.sees("Done")) << "a tile that shows nothing any more deletes nothing";
}

std::string openAsTheAppIsLeft;
void leftTheApp(PhotosApplication, Replaced<void(UIApplication)> host, UIApplication application) {
  openAsTheAppIsLeft = PhotosApp::openAlbum();
  host(application);
}

TEST_F(PhotosApp, LeavingTheAppTakesAnOpenedLockedAlbumOffTheScreen) {
  // Replaced before the library comes, so that this is what the library calls as the host's own.
  installHook(replace<leftTheApp>("PhotosApplication", "applicationDidEnterBackground:", "v@:@"));
  open(From::strip, {"Holidays"});
  // An answer for nothing opens nothing, so that there is nothing to leave.
  phone_.post(kAnswered);
  settle();
  const struct {
    Preferences preferences;
    From from;
    std::string_view opened, left;
  } cases[] = {
      {{}, From::strip, "Pets", "Pets"},
      {{}, From::strip, "Holidays", ""},
      // Only a selection in the list forgets that a locked album was opened.
      {{}, From::strip, "Pets", ""},
      {{}, From::list, "Pets", "Pets"},
      {{}, From::list, "Holidays", ""},
      {{{"returnToMainLocked", false}}, From::list, "Holidays", "Holidays"},
      {{{"returnToMainDefault", true}}, From::list, "Pets", ""},
      {{{"returnToMainDefault", true}, {"enabled", false}}, From::list, "Pets", "Pets"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(&each - cases);
    reload(each.preferences);
    if (each.from == From::list) me_.tap("See All");
    me_.tap(each.opened);
    if (each.opened == "Holidays") ownerIs(OwnerAnswer::success);
    ASSERT_TRUE(soonOpen(each.opened));
    me_.leaveApp();
    me_.returnToApp();
    EXPECT_EQ(openAsTheAppIsLeft, each.left);
    if (!each.left.empty()) navigation().popToRoot(false);
    ASSERT_TRUE(strip()) << "the Albums tab's first screen";
  }
}

TEST_F(PhotosApp, OnlyTheBeginningOfAPressActs) {
  open(From::list);
  using State = UIGestureRecognizer::State;
  const UIGestureRecognizer recognizer = pressOn(tile(0));
  EXPECT_EQ((recognizer.send<"minimumPressDuration", double()>()), 1.0);
  for (const State state : {State::changed, State::ended, State::cancelled, State::failed}) {
    recognizer.send<"_enterState:", void(State)>(state);
    longPress(recognizer);
  }
  longPress(UIGestureRecognizer());
  settle();
  EXPECT_TRUE(me_.feltFeedback().empty());
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{});
  recognizer.send<"_enterState:", void(State)>(State::possible);
  longPress(recognizer);
  EXPECT_TRUE(soonLocked({"Holidays"}));
}

TEST_F(PhotosApp, AnAnswerThatNobodyAwaitsOpensNothingButMayLeaveAPass) {
  open(From::list, {"Holidays"});
  const auto answer = [&](std::string_view text) {
    if (!text.empty()) write(kAnswer, text);
    phone_.post(kAnswered);
    settle();
    EXPECT_EQ(openAlbum(), "") << text;
  };
  answer("");
  for (const std::string receiver : {"PUAlbumListViewController", "PUZoomableGridViewController",
                                     "PUAlbumListCellContentView", "NoSuchClass"}) {
    for (const std::string method : {"0", "1", "2"}) {
      answer("{ success = 1; method = " + method + "; controller = " + receiver + "; }");
    }
  }
  answer("{ success = (1); method = { a = b; }; controller = (x, y); }");
  answer("( success )");
  answer("bplist00");
  answer("{ success = 1; method = 77; controller = PUAlbumListViewController; }");
  EXPECT_EQ(tapped("Holidays"), "Holidays") << "a pass lets the next action through";
  me_.back();
  EXPECT_EQ(tapped("Holidays"), "");
}

TEST_F(PhotosApp, AnAnswerIsForTheKindOfControllerThatItNames) {
  open(From::strip, {"Holidays"}, kWithPassword);
  // Without an answer file it is the strip that appeared.
  phone_.post(kAnswered);
  me_.waitToSee("Unlock album");
  tap({"Cancel", "See All"});
  tapAndEnter("Holidays", "");
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("controller"), "PUAlbumListViewController");
  EXPECT_EQ(openAlbum(), "Holidays");

  // Another strip that has come on screen since does not get what this one asked for.
  me_.back();
  me_.back();
  reload({{"passOption", 2}});
  const auto other = makeObject<PUHorizontalAlbumListGadget>();
  other->send<"viewWillAppear:", void(bool)>(false);
  me_.tap("Holidays");
  EXPECT_TRUE(soonOpen("Holidays"));
}

TEST_F(PhotosApp, AppearingReadsTheLockedAlbumsAndStartsAListWhereThereIsNone) {
  open(From::strip);
  remove(kLockedAlbums);
  me_.tap("See All");
  EXPECT_TRUE(soonLocked({}));
  me_.back();
  writeStrings(kLockedAlbums, {"Holidays"});
  EXPECT_EQ(tapped("Holidays"), "Holidays") << "choosing an album reads no file";
  me_.back();
  EXPECT_EQ(tapped("Holidays"), "") << "the strip has appeared since";
}

TEST_F(PhotosApp, WithoutSpringBoardNothingWaitsAndNothingOpens) {
  open(From::list, {"Holidays"});
  springBoard_->kill();
  const auto start = std::chrono::steady_clock::now();
  me_.longPress("Pets");
  tap({"Pets", "Holidays"});
  EXPECT_LT(std::chrono::steady_clock::now() - start, device::kPatience);
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  springBoard_.emplace(phone_.launch(device::kSpringBoard));
  tapAs(OwnerAnswer::success, {"Holidays"});
  EXPECT_TRUE(soonOpen("Holidays"));
}

TEST_P(EitherWay, TenThousandSelectionsLeaveNothingBehind) {
  open(GetParam(), {"Holidays"});
  springBoard_->kill();
  const Object controller = GetParam() == From::list ? Object(albumList()) : Object(strip());
  const NSIndexPath path = placeOf(0);
  const auto select = [&](int times) {
    for (int i = 0; i < times; ++i) {
      const AutoreleasePool turn;
      GetParam() == From::list ? albumList().select(path) : strip().select(path);
    }
  };
  const auto counted = [&] { return std::tuple(alive(), references(controller), references(path)); };
  GSDebugAllocationActive(1);
  select(10);
  const auto before = counted();
  select(10'000);
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(counted(), before);
}

TEST_F(PhotosApp, UnlockingAgainAndAgainLeavesNothingBehind) {
  write(kPassword, "right");
  open(From::list, {"Holidays"}, kWithPassword);
  GSDebugAllocationActive(1);
  const auto rounds = [&] {
    const AutoreleasePool pool;
    tapAndEnter("Holidays", "right");
    me_.back();
    tapAndEnter("Holidays", "wrong");
    tapAndEnter("Holidays", "", "Cancel");
    me_.waitUntilGone("Incorrect password");
    // The notice has faded by then, and is taken away a little later.
    EXPECT_TRUE(soon([] { return GSDebugAllocationCount(objc_getClass("UIDelayedBlock")) <= 0; }));
  };
  rounds();
  const std::string before = alive();
  EXPECT_NE(before.find("UIView"), std::string::npos) << "objects are counted at all";
  rounds();
  rounds();
  EXPECT_EQ(alive(), before);
}

}  // namespace
}  // namespace velvault12
