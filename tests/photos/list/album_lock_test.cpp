// Locked albums in the Photos app's strip and list.

#include "host/hook.hpp"
#include "tests/hurried_timers.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

class EitherWay : public PhotosApp, public ::testing::WithParamInterface<From> {};
INSTANTIATE_TEST_SUITE_P(PhotosApp, EitherWay, ::testing::Values(From::strip, From::list),
                         ::testing::PrintToStringParamName());

TEST_P(EitherWay, OnlyItsOwnerUnlocksAndOpens) {
  open(GetParam());
  device::NotificationCounter answered(phone_, kAnswered);
  me_.longPress("Holidays");
  EXPECT_EQ(me_.feltFeedback(), std::vector<int>{1001});
  EXPECT_TRUE(soonLocked({"Holidays"}));
  me_.longPress("Pets");
  EXPECT_TRUE(soonLocked({"Holidays", "Pets"}));

  // It starts from the file, which another process may have had written.
  const Titles locked{"Holidays", "Recipes", "Pets"};
  writeStrings(kLockedAlbums, locked);
  me_.longPress("Holidays");
  for (const OwnerAnswer answer : {OwnerAnswer::cancel, OwnerAnswer::failure}) {
    ownerIs(answer);
    EXPECT_EQ(phone_.strings(kLockedAlbums), locked);
    EXPECT_EQ(tapped("Pets"), "");
  }
  EXPECT_EQ(owner().ownerRequest(), "Pets needs to be unlocked.");
  ownerIs(OwnerAnswer::cancel);
  EXPECT_EQ(openAlbum(), "");
  EXPECT_FALSE(me_.hasAlert());
  EXPECT_FALSE(hasFile(kAnswer));
  EXPECT_EQ(answered.count(), 0);

  me_.longPress("Holidays");
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soonLocked({"Recipes", "Pets"}));
  EXPECT_EQ(tapped("Holidays"), "Holidays");
  for (int round = 0; round < 2; ++round) {
    me_.back();
    EXPECT_EQ(tapped("Pets"), "") << "each pass is used up";
    ownerIs(OwnerAnswer::success);
    ASSERT_TRUE(soonOpen("Pets")) << round;
  }
}

TEST_P(EitherWay, PasswordOpensWhenItIsExact) {
  write(kPassword, "open sesame");
  open(GetParam(), {"Holidays"}, kWithPassword);
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Unlock album", "Enter password to unlock album.", "Password (secure)", "OK", "Cancel"}));
  me_.tap("Cancel");
  for (const std::string_view wrong : {"", "open sesame ", " open sesame", "Open sesame", "open sesame\n"}) {
    tapAndEnter("Holidays", wrong);
    EXPECT_FALSE(me_.hasAlert());
    EXPECT_EQ(openAlbum(), "") << wrong;
  }
  tapAndEnter("Holidays", "open sesame");
  EXPECT_EQ(openAlbum(), "Holidays");
}

TEST_F(PhotosApp, NoticesOfPasswordsTakeTurns) {
  holdNotices();
  open(From::list, {"Holidays"}, kWithPassword);
  const UIView window = UIApplication::sharedApplication().keyWindow();
  const NSUInteger subviewsAtRest = window.subviews().count();
  const auto endNotice = [](std::size_t number) {
    EXPECT_TRUE(soon([&] { return noticeEnds.size() > number; }));
    UIView::animate(0, 0, block<void()>([] {}), noticeEnds.at(number));
    waitForTimers();
  };
  tapAndEnter("Holidays", "whatever");
  me_.waitToSee("No password set");
  EXPECT_EQ(openAlbum(), "Holidays") << "any opens it";
  me_.back();
  write(kPassword, "");
  for (const bool isLate : {false, true}) {
    tapAndEnter("Holidays", "whatever");
    me_.waitToSee("Incorrect password");
    EXPECT_EQ(window.subviews().count(), subviewsAtRest + 1) << "one at a time";
    if (!isLate) endNotice(0);
  }
  tapAndEnter("Holidays", "");
  EXPECT_EQ(openAlbum(), "Holidays") << "an empty one";
  endNotice(2);
  EXPECT_EQ(window.subviews().count(), subviewsAtRest);
}

TEST_F(PhotosApp, PhoneWithoutPasscodeOpensAtOnce) {
  open(From::list, {"Holidays"});
  owner().setPasscode(false);
  const auto opens = [&] {
    const bool isOpen = soonOpen("Holidays");
    me_.back();
    return isOpen && openAlbum().empty();
  };
  me_.tap("Holidays");
  EXPECT_TRUE(opens());

  // An owner who cancels leaves the former answer as it is, for the next notification.
  owner().setPasscode(true);
  const auto former = phone_.dictionary(kAnswer);
  tapAs(OwnerAnswer::cancel, {"Holidays"});
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(phone_.dictionary(kAnswer), former);
  phone_.post(kAnswered);
  EXPECT_TRUE(opens());

  reload({{"passOption", 2}});
  me_.tap("Holidays");
  EXPECT_TRUE(opens()) << "nor does any other option ask";
  EXPECT_EQ(owner().ownerRequest(), "");
}

TEST_F(PhotosApp, LockFollowsTheTitle) {
  library_.addAlbum("Holidays");
  library_.addAlbum("holidays");
  for (int i = 0; i < 40; ++i) library_.addAlbum("Album " + std::to_string(i));
  open(From::list, {"Holidays", "Album 39"});
  const Ref<PUAlbumListViewController> list(albumList());
  const auto select = [&](NSInteger item) {
    list->select(placeOf(item));
    settle();
    return openAlbum();
  };
  ASSERT_FALSE(list->tileAtIndexPath(placeOf(44))) << "out of sight";
  EXPECT_EQ(select(44), "");
  EXPECT_EQ(owner().ownerRequest(), "Album 39 needs to be unlocked.");
  EXPECT_EQ(select(3), "") << "the second of that title";
  EXPECT_EQ(select(4), "holidays");
}

TEST_F(PhotosApp, LockedAlbumIsDeletedOnlyByItsOwner) {
  write(kPassword, "right");
  open(From::list, {"Holidays", "Recipes"});
  show("Recipes", tile(1));
  albumList().performDelete(tile(1), Object());
  ownerIs(OwnerAnswer::cancel);
  EXPECT_EQ(albums().size(), 3u) << "what it is called on screen is locked";
  show("Pets", tile(1));
  tap({"Edit", "Delete Pets"});
  settleLibrary();
  tapAs(OwnerAnswer::cancel, {"Delete Holidays"});
  EXPECT_EQ(albums(), (Titles{"Holidays", "Recipes"}));
  tapAs(OwnerAnswer::success, {"Delete Holidays"});
  EXPECT_TRUE(soon([&] { return albums() == Titles{"Recipes"}; }));
  me_.tap("Done");
  EXPECT_EQ(tapped("Recipes"), "") << "the pass is used up";
  ownerIs(OwnerAnswer::cancel);

  reload(kWithPassword);
  tap({"Edit", "Delete Recipes"});
  enter("right");
  settleLibrary();
  EXPECT_EQ(albums(), Titles{});
}

TEST_F(PhotosApp, WhatWaitsIsLetGoOnceItsAlbumHasMoved) {
  const HurriedTimers timers;
  open(From::list, {"Holidays", "Recipes"});
  const Ref<PUAlbumListViewController> list(albumList());
  // Shown again twice, the list's tiles are in their former places.
  const auto showAgain = [&] {
    list->send<"reloadContentView", void()>();
    turn();
  };
  const auto ownerAgrees = [&] {
    ownerIs(OwnerAnswer::success);
    settle();
  };
  const auto notified = [&] {
    phone_.post(kAnswered);
    for (int way = 0; way < 2; ++way) settle();
  };
  const auto pressed = tile(0);
  const Ref<UIGestureRecognizer> press(pressOn(pressed));
  const auto pressHolidays = [&] {
    show("Holidays", pressed);
    longPress(press.get());
    owner().waitForOwnerRequest();
    // The tile is laid out after a press, and reads the file. From here on nothing else does.
    EXPECT_TRUE(soon(HurriedTimers::haveFired));
  };
  pressHolidays();
  show("Recipes", pressed);
  ownerAgrees();
  show("Holidays", pressed);
  notified();
  EXPECT_EQ(phone_.strings(kLockedAlbums), (Titles{"Holidays", "Recipes"})) << "it waits no longer";
  EXPECT_EQ(tapped("Recipes"), "Recipes") << "an answer that nobody awaits left a pass";
  me_.back();
  pressHolidays();
  writeStrings(kLockedAlbums, {"Recipes"});
  ownerAgrees();
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Recipes"}) << "an answer locks nothing";
  writeStrings(kLockedAlbums, {"Holidays", "Recipes"});
  layOut(pressed);
  tapUntilAsked({"Edit", "Delete Holidays"});
  showAgain();
  ownerAgrees();
  showAgain();
  notified();
  settleLibrary();
  EXPECT_EQ(albums(), (Titles{"Holidays", "Pets", "Recipes"}));
  tapUntilAsked({"Done", "Holidays"});
  const auto holidays = library_.collections()[0].identifier;
  library_.renameCollection(holidays, "Summer");
  showAgain();
  ownerAgrees();
  EXPECT_EQ(openAlbum(), "") << "not Summer";
  library_.renameCollection(holidays, "Holidays");
  showAgain();
  notified();
  EXPECT_EQ(openAlbum(), "");
  tapUntilAsked({"Recipes"});
  library_.removeCollection(holidays);
  showAgain();
  ownerAgrees();
  EXPECT_EQ(openAlbum(), "") << "not what is past the end";
  EXPECT_EQ(tapped("Recipes"), "") << "and no pass is left";
  ownerIs(OwnerAnswer::cancel);
  tapUntilAsked({"Edit", "Delete Recipes"});
  library_.removeCollection(library_.collections()[1].identifier);
  showAgain();
  ownerAgrees();
  EXPECT_TRUE(me_.sees("Done")) << "a tile that shows nothing any more deletes nothing";
}

std::string openAsTheAppIsLeft;
void leftTheApp(PhotosApplication, Replaced<void(UIApplication)> host, UIApplication application) {
  openAsTheAppIsLeft = PhotosApp::openAlbum();
  host(application);
}

TEST_F(PhotosApp, LeavingClosesAnOpenedLockedAlbum) {
  installHook(replace<leftTheApp>("PhotosApplication", "applicationDidEnterBackground:", "v@:@"));
  open(From::strip, {"Holidays"});
  // An answer for nothing opens nothing, so that there is nothing to leave.
  phone_.post(kAnswered);
  settle();
  const auto left = [&](From from, std::string_view album, const Preferences& preferences = {}) {
    reload(preferences);
    if (from == From::list) me_.tap("See All");
    me_.tap(album);
    if (album == "Holidays") ownerIs(OwnerAnswer::success);
    EXPECT_TRUE(soonOpen(album));
    me_.leaveApp();
    me_.returnToApp();
    if (!openAsTheAppIsLeft.empty()) navigation().popToRoot(false);
    EXPECT_TRUE(strip()) << "the Albums tab's first screen";
    return openAsTheAppIsLeft;
  };
  EXPECT_EQ(left(From::strip, "Pets"), "Pets");
  EXPECT_EQ(left(From::strip, "Holidays"), "");
  EXPECT_EQ(left(From::strip, "Pets"), "") << "only a selection in the list forgets that it was opened";
  EXPECT_EQ(left(From::list, "Pets"), "Pets");
  EXPECT_EQ(left(From::list, "Holidays", {{"returnToMainLocked", false}}), "Holidays");
  EXPECT_EQ(left(From::list, "Pets", {{"returnToMainDefault", true}}), "");
  EXPECT_EQ(left(From::list, "Pets", {{"returnToMainDefault", true}, {"enabled", false}}), "Pets");
}

TEST_F(PhotosApp, UnawaitedAnswersOpenNothing) {
  open(From::list, {"Holidays"});
  std::vector<std::string> answers{"", "{ success = (1); method = { a = b; }; controller = (x, y); }",
                                   "( success )", "bplist00"};
  for (const std::string receiver : {"PUZoomableGridViewController", "PUAlbumListCellContentView",
                                     "NoSuchClass", "PUAlbumListViewController"}) {
    for (const std::string method : {"0", "1", "2", "77"})
      answers.push_back("{ success = 1; method = " + method + "; controller = " + receiver + "; }");
  }
  for (const std::string& answer : answers) {
    if (!answer.empty()) write(kAnswer, answer);
    phone_.post(kAnswered);
    settle();
    EXPECT_EQ(openAlbum(), "") << answer;
  }
  EXPECT_EQ(tapped("Holidays"), "Holidays") << "the last one left a pass for the next action";
  me_.back();
  EXPECT_EQ(tapped("Holidays"), "");
}

TEST_F(PhotosApp, AnswerIsForTheControllerThatAsked) {
  open(From::strip, {"Holidays"}, kWithPassword);
  // Without an answer file it is the strip that appeared.
  phone_.post(kAnswered);
  me_.waitToSee("Unlock album");
  tap({"Cancel", "See All"});
  tapAndEnter("Holidays", "");
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("controller"), "PUAlbumListViewController");
  EXPECT_EQ(openAlbum(), "Holidays");

  // Another strip that has come on screen since does not get what this one asked for.
  tap({kBack, kBack});
  reload({{"passOption", 2}});
  makeObject<PUHorizontalAlbumListGadget>()->send<"viewWillAppear:", void(bool)>(false);
  me_.tap("Holidays");
  EXPECT_TRUE(soonOpen("Holidays"));
}

TEST_F(PhotosApp, AppearingReadsOrStartsTheLockedAlbums) {
  open(From::strip);
  remove(kLockedAlbums);
  me_.tap("See All");
  EXPECT_TRUE(soonLocked({}));
  me_.back();
  writeStrings(kLockedAlbums, {"Holidays"});
  EXPECT_EQ(tapped("Holidays"), "Holidays") << "choosing an album reads no file";
  me_.back();
  EXPECT_EQ(tapped("Holidays"), "") << "the strip has appeared since";
  ownerIs(OwnerAnswer::cancel);

  reload({{"enabled", false}});
  remove(kLockedAlbums);
  me_.tap("See All");
  me_.longPress("Pets");
  settle();
  EXPECT_EQ(openAlbum(), "Pets") << "a slow tap, where it is switched off";
  tap({kBack, kBack});
  settle();
  EXPECT_FALSE(hasFile(kLockedAlbums));
}

}  // namespace
}  // namespace velvault12
