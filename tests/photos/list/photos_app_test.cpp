// The Photos app on the simulated device: this process is the app, and the test its user.

#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "host/app_support.hpp"
#include "host/class_pair.hpp"
#include "host/hook.hpp"
#include "host/photos_ui.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

using device::OwnerAnswer;

/// How an album is reached: the strip is the first screen, the list is behind a button.
enum class From { strip, list };
void PrintTo(From from, std::ostream* out) { *out << (from == From::strip ? "strip" : "list"); }

class PhotosApp : public PhoneTest {
 protected:
  PhotosApp() {
    auto library = phone_.photoLibrary();
    for (const std::string_view title : {"Holidays", "Pets", "Recipes"}) {
      library.addToAlbum(library.addAsset({}), library.addAlbum(title));
    }
  }

  /// Boots the phone with these albums locked and opens Photos at the strip or the list.
  void open(From from, const Titles& locked = {}) {
    springBoard_.emplace(phone_.launch(device::kSpringBoard));
    writeStrings(kLockedAlbums, locked);
    phone_.launchHere(device::kPhotos);
    if (from == From::list) me_.tap("See All");
  }

  void setPassOption(int option) { reload({{"passOption", option}}); }
  void reload(const std::map<std::string, device::Device::Preference>& preferences) {
    phone_.writePreferences(preferences);
    phone_.post(kReload);
    owner().screen();
    turn();
  }

  const device::User& owner() const { return springBoard_->user(); }
  void ownerIs(OwnerAnswer answer) {
    owner().waitForOwnerRequest();
    owner().answerOwnerRequest(answer);
  }

  static UINavigationController navigation() {
    return PhotosApplication(UIApplication::sharedApplication().get())
        .tabbedLibraryViewController()
        .selectedNavigationController();
  }
  static UIViewController top() { return navigation().send<"topViewController", UIViewController()>(); }
  static UIViewController albumList() { return top().as<PUAlbumListViewController>(); }
  static UIViewController strip() {
    return top().send<"childViewControllers", NSArray()>().objectAtIndex(0).as<PUHorizontalAlbumListGadget>();
  }

  static NSIndexPath pathTo(NSInteger item) {
    return sendToClass<"indexPathForItem:inSection:", NSIndexPath(NSInteger, NSInteger)>(
        NSIndexPath::hostClass(), item, 0);
  }

 public:
  /// The title of the album whose photos are on screen, "" for none.
  static std::string openAlbum() {
    return top().trySend<"assetCollection", PHCollection()>().localizedTitle().utf8();
  }

 protected:
  bool soonOpen(std::string_view title) const {
    return soon([&] { return openAlbum() == title; });
  }
  /// Lets everything that is on its way arrive: a message to SpringBoard and back.
  void settle() const {
    owner().screen();
    turn();
  }

  std::optional<device::App> springBoard_;
  device::User me_ = device::User::here();
  AutoreleasePool pool_;
};

/// The latest message to a centre that the test serves: its entries, and its name as "message".
std::map<std::string, std::string> received;
void receive(Object, NSString name, NSDictionary userInfo) {
  received["message"] = name.utf8();
  const NSArray keys = userInfo.allKeys();
  for (NSUInteger i = 0; i < keys.count(); ++i) {
    const NSString key(keys.objectAtIndex(i).get());
    const Object value = userInfo.objectForKey(key);
    std::string text = value.send<"description", NSString()>().utf8();
    if (const auto array = value.as<NSArray>()) {
      text.clear();
      for (const std::string& element : array.strings()) text += element + ",";
    }
    received[key.utf8()] = text;
  }
}

class EitherWay : public PhotosApp, public ::testing::WithParamInterface<From> {};
INSTANTIATE_TEST_SUITE_P(PhotosApp, EitherWay, ::testing::Values(From::strip, From::list),
                         [](const auto& way) { return way.param == From::strip ? "Strip" : "List"; });

TEST_P(EitherWay, ALongPressLocksAtOnceAndOnlyItsOwnerUnlocks) {
  open(GetParam());
  me_.longPress("Holidays");
  EXPECT_FALSE(me_.hasAlert());
  EXPECT_EQ(me_.feltFeedback(), std::vector<int>{1001});
  EXPECT_TRUE(soonLocked({"Holidays"}));
  me_.longPress("Pets");
  EXPECT_TRUE(soonLocked({"Holidays", "Pets"}));

  me_.longPress("Holidays");
  owner().waitForOwnerRequest();
  EXPECT_EQ(owner().ownerRequest(), "Holidays needs to be unlocked.");
  EXPECT_EQ(phone_.strings(kLockedAlbums), (Titles{"Holidays", "Pets"}));
  owner().answerOwnerRequest(OwnerAnswer::success);
  EXPECT_TRUE(soonLocked({"Pets"}));
  me_.tap("Holidays");
  EXPECT_EQ(openAlbum(), "Holidays");
}

TEST_P(EitherWay, ALockedAlbumOpensOncePerAuthentication) {
  open(GetParam(), {"Holidays"});
  for (int round = 0; round < 3; ++round) {
    me_.tap("Holidays");
    settle();
    EXPECT_EQ(openAlbum(), "") << "round " << round;
    ownerIs(OwnerAnswer::success);
    ASSERT_TRUE(soonOpen("Holidays")) << "round " << round;
    me_.back();
  }
  me_.tap("Pets");
  EXPECT_EQ(openAlbum(), "Pets");
}

TEST_P(EitherWay, AnOwnerWhoFailsOrCancelsGetsNoAnswer) {
  open(GetParam(), {"Holidays"});
  device::NotificationCounter answered(phone_, kAnswered);
  for (const OwnerAnswer answer : {OwnerAnswer::cancel, OwnerAnswer::failure}) {
    me_.tap("Holidays");
    ownerIs(answer);
    settle();
    EXPECT_EQ(openAlbum(), "");
    EXPECT_FALSE(me_.hasAlert());
    EXPECT_FALSE(hasFile(kAnswer));
    EXPECT_EQ(answered.count(), 0);
  }
}

TEST_P(EitherWay, ThePasswordOpensWhenItIsRightToTheLetter) {
  write(kPassword, "open sesame");
  open(GetParam(), {"Holidays"});
  setPassOption(1);
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  const device::AlertText alert = me_.alert();
  EXPECT_EQ(alert.title, "Unlock album");
  EXPECT_EQ(alert.message, "Enter password to unlock album.");
  EXPECT_EQ(alert.fields, Titles{"Password (secure)"});
  EXPECT_EQ(alert.buttons, (Titles{"OK", "Cancel"}));
  me_.tap("Cancel");
  settle();
  EXPECT_EQ(openAlbum(), "");

  for (const std::string_view wrong : {"", "open sesame ", "Open sesame"}) {
    me_.tap("Holidays");
    me_.waitToSee("Unlock album");
    me_.type(wrong);
    me_.tap("OK");
    me_.waitToSee("Incorrect password");
    EXPECT_FALSE(me_.hasAlert());
    EXPECT_EQ(openAlbum(), "") << wrong;
  }
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  me_.type("open sesame");
  me_.tap("OK");
  EXPECT_EQ(openAlbum(), "Holidays");
  me_.back();
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
}

TEST_F(PhotosApp, WithoutAPasswordAnyEntryUnlocksAndAnEmptyOneMatchesNothingTyped) {
  open(From::list, {"Holidays"});
  const UIView window = UIApplication::sharedApplication().keyWindow();
  const auto subviews = [&] { return window.send<"subviews", NSArray()>().count(); };
  const NSUInteger subviewsAtRest = subviews();
  setPassOption(1);
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  me_.type("whatever");
  me_.tap("OK");
  const auto shown = std::chrono::steady_clock::now();
  me_.waitToSee("No password set");
  EXPECT_EQ(openAlbum(), "Holidays");
  me_.waitUntilGone("No password set");
  EXPECT_GE(std::chrono::steady_clock::now() - shown, std::chrono::seconds(2));
  me_.back();

  write(kPassword, "");
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  remove(kPassword);
  me_.alert().type("whatever").tap("OK");
  me_.waitToSee("No password set");
  me_.back();
  write(kPassword, "");
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  me_.alert().type("whatever").tap("OK");
  me_.waitToSee("Incorrect password");
  EXPECT_FALSE(me_.sees("No password set")) << "a newer notice takes the place of the older";
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  me_.tap("OK");
  EXPECT_EQ(openAlbum(), "Holidays");
  me_.waitUntilGone("Incorrect password");
  EXPECT_TRUE(soon([&] { return subviews() == subviewsAtRest; }));
}

TEST_F(PhotosApp, APhoneThatCannotAskItsOwnerOpensAtOnceAndSoDoesAnyOtherOption) {
  open(From::list, {"Holidays"});
  owner().setPasscode(false);
  me_.tap("Holidays");
  EXPECT_TRUE(soonOpen("Holidays"));
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("success"), "0");
  me_.back();

  // An owner who cancels leaves the former answer as it is, for whoever reads it next.
  owner().setPasscode(true);
  const auto former = phone_.dictionary(kAnswer);
  me_.tap("Holidays");
  ownerIs(OwnerAnswer::cancel);
  settle();
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(phone_.dictionary(kAnswer), former);
  phone_.post(kAnswered);
  EXPECT_TRUE(soonOpen("Holidays")) << "a notification without a new answer";
  me_.back();

  owner().setPasscode(true);
  setPassOption(2);
  me_.tap("Holidays");
  EXPECT_TRUE(soonOpen("Holidays"));
  EXPECT_EQ(owner().ownerRequest(), "");
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("success"), "1");
}

TEST_F(PhotosApp, TheMessagesSayWhoAsksForWhat) {
  // Instead of SpringBoard the test serves the centre, in the app's own process.
  phone_.launchHere(device::kPhotos);
  ClassPair(classNamed<"NSObject">(), "MessageReceiver")
      .method<receive>(selector<"received:with:">(), "v@:@@")
      .registered();
  const auto receiver = makeObject<HostClass<"MessageReceiver">>();
  const auto center = CPDistributedMessagingCenter::centerNamed("com.qdx.velvault12");
  center.runServerOnCurrentThread();
  center.registerForMessage("savearray", receiver.get(), selector<"received:with:">());
  center.registerForMessage("authenticate", receiver.get(), selector<"received:with:">());
  const auto nextMessage = [] {
    EXPECT_TRUE(soon([] { return !received.empty(); }));
    return std::exchange(received, {});
  };
  using Message = std::map<std::string, std::string>;
  me_.longPress("Holidays");
  EXPECT_EQ(nextMessage(), (Message{{"message", "savearray"},
                                    {"id", "com.apple.mobileslideshow"},
                                    {"array", "Holidays,"},
                                    {"path", std::string(kLockedAlbums)}}));
  me_.tap("Holidays");
  EXPECT_EQ(nextMessage(), (Message{{"message", "authenticate"},
                                    {"id", "com.apple.mobileslideshow"},
                                    {"method", "0"},
                                    {"albumName", "Holidays"},
                                    {"controller", "PUHorizontalAlbumListGadget"}}));
}

TEST_F(PhotosApp, TheLockFollowsTheTitle) {
  auto library = phone_.photoLibrary();
  library.addAlbum("Holidays");
  library.addAlbum("holidays");
  open(From::list, {"Holidays"});
  const auto list = albumList();
  const auto select = [&](NSInteger item) {
    PUAlbumListViewController(list.get()).select(pathTo(item));
    settle();
    const std::string opened = openAlbum();
    if (!opened.empty()) me_.back();
    return opened;
  };
  EXPECT_EQ(select(0), "");
  EXPECT_EQ(select(3), "") << "the second of that title";
  EXPECT_EQ(select(4), "holidays");
  library.renameCollection(library.collections().front().identifier, "Summer");
  me_.back();
  me_.tap("See All");
  me_.tap("Summer");
  EXPECT_EQ(openAlbum(), "Summer");
}

TEST_F(PhotosApp, AnAlbumOutOfSightIsLockedAsWell) {
  auto library = phone_.photoLibrary();
  for (int i = 0; i < 40; ++i) library.addAlbum("Album " + std::to_string(i));
  open(From::list, {"Album 39"});
  const PUAlbumListViewController list(albumList().get());
  ASSERT_FALSE(list.tileAtIndexPath(pathTo(42)));
  list.select(pathTo(42));
  settle();
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(owner().ownerRequest(), "Album 39 needs to be unlocked.");
}

NSString lockedTitle(Object) { return NSString::from("Holidays"); }
Object gadgetWithoutTile(PUHorizontalAlbumListGadget, Replaced<Object(NSIndexPath)>, NSIndexPath) {
  static Object gadget(sendToClass<"new", id()>(objc_getClass("GadgetWithoutTile")));
  return gadget;
}

TEST_F(PhotosApp, AGadgetWithoutATileIsKnownByItsOwnTitle) {
  open(From::strip, {"Holidays"});
  ClassPair(classNamed<"NSObject">(), "GadgetWithoutTile")
      .method<lockedTitle>(selector<"title">(), "@@:")
      .registered();
  const HookRow row[] = {replace<gadgetWithoutTile>("PUHorizontalAlbumListGadget", "_gadgetAtIndexPath:")};
  installHooks(row);
  PUHorizontalAlbumListGadget(strip().get()).select(pathTo(1));
  settle();
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(owner().ownerRequest(), "Holidays needs to be unlocked.");
}

TEST_F(PhotosApp, SwitchedOnWhileItRunsChangesNothing) {
  phone_.writePreferences({{"enabled", false}});
  open(From::list, {"Holidays"});
  reload({{"enabled", true}});
  me_.tap("Holidays");
  EXPECT_EQ(openAlbum(), "Holidays");
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
  const auto titles = [&] {
    Titles all;
    for (const auto& album : phone_.photoLibrary().allAlbums()) all.push_back(album.title);
    return all;
  };
  me_.tap("Edit");
  me_.tap("Delete Pets");
  EXPECT_EQ(titles(), (Titles{"Holidays", "Recipes"}));
  me_.tap("Delete Holidays");
  ownerIs(OwnerAnswer::cancel);
  settle();
  EXPECT_EQ(titles(), (Titles{"Holidays", "Recipes"}));
  me_.tap("Delete Holidays");
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soon([&] { return titles() == Titles{"Recipes"}; }));
  // The pass is used up.
  me_.tap("Done");
  me_.tap("Recipes");
  settle();
  EXPECT_EQ(openAlbum(), "");
}

TEST_F(PhotosApp, ThePasswordAlsoRemovesALockAndDeletes) {
  write(kPassword, "right");
  open(From::list, {"Holidays", "Pets"});
  setPassOption(1);
  me_.longPress("Holidays");
  me_.waitToSee("Unlock album");
  me_.alert().type("right").tap("OK");
  EXPECT_TRUE(soonLocked({"Pets"}));
  EXPECT_EQ(openAlbum(), "");
  me_.tap("Edit");
  me_.tap("Delete Pets");
  me_.waitToSee("Unlock album");
  EXPECT_EQ(phone_.photoLibrary().allAlbums().size(), 3U);
  me_.alert().type("right").tap("OK");
  EXPECT_EQ(phone_.photoLibrary().allAlbums().size(), 2U);
}

TEST_F(PhotosApp, LeavingTheAppTakesAnOpenedLockedAlbumOffTheScreen) {
  open(From::list, {"Holidays"});
  me_.tap("Pets");
  me_.leaveApp();
  me_.returnToApp();
  EXPECT_EQ(openAlbum(), "Pets") << "an album that is not locked stays";
  me_.back();

  const auto openHolidaysAndLeave = [&] {
    me_.tap("Holidays");
    ownerIs(OwnerAnswer::success);
    ASSERT_TRUE(soonOpen("Holidays"));
    me_.leaveApp();
    me_.returnToApp();
  };
  openHolidaysAndLeave();
  EXPECT_TRUE(strip()) << "the Albums tab's first screen";

  me_.tap("See All");
  reload({{"returnToMainLocked", false}});
  openHolidaysAndLeave();
  EXPECT_EQ(openAlbum(), "Holidays");
  me_.back();

  reload({{"returnToMainDefault", true}});
  me_.tap("Pets");
  me_.leaveApp();
  EXPECT_TRUE(strip());
  me_.returnToApp();

  me_.tap("See All");
  reload({{"returnToMainDefault", true}, {"enabled", false}});
  me_.tap("Pets");
  me_.leaveApp();
  EXPECT_EQ(openAlbum(), "Pets");
}

TEST_F(PhotosApp, APassThatNothingUsesLetsTheNextActionThrough) {
  open(From::list, {"Holidays"});
  albumList().send<"unlockAuthorised:", void(int)>(77);
  me_.tap("Holidays");
  EXPECT_EQ(openAlbum(), "Holidays");
  me_.back();
  me_.tap("Holidays");
  settle();
  EXPECT_EQ(openAlbum(), "");
}

std::string openAsTheAppIsLeft;
void leftTheApp(PhotosApplication, Replaced<void(UIApplication)> host, UIApplication application) {
  openAsTheAppIsLeft = PhotosApp::openAlbum();
  host(application);
}

TEST_F(PhotosApp, TheAlbumIsGoneBeforeTheHostLearnsThatTheAppIsLeft) {
  // Replaced before the library comes, so that this is what the library calls as the host's own.
  const HookRow row[] = {replace<leftTheApp>("PhotosApplication", "applicationDidEnterBackground:")};
  installHooks(row);
  phone_.writePreferences({{"returnToMainDefault", true}});
  open(From::list);
  me_.tap("Pets");
  ASSERT_EQ(openAlbum(), "Pets");
  openAsTheAppIsLeft = "not left yet";
  me_.leaveApp();
  EXPECT_EQ(openAsTheAppIsLeft, "");
}

TEST_P(EitherWay, OnlyASelectionInTheListForgetsThatALockedAlbumWasOpened) {
  open(GetParam(), {"Holidays"});
  me_.tap("Holidays");
  ownerIs(OwnerAnswer::success);
  ASSERT_TRUE(soonOpen("Holidays"));
  me_.back();
  me_.tap("Pets");
  me_.leaveApp();
  EXPECT_EQ(openAlbum(), GetParam() == From::list ? "Pets" : "");
}

TEST_F(PhotosApp, OnlyTheBeginningOfAPressActs) {
  open(From::list);
  using State = UIGestureRecognizer::State;
  const PUAlbumListViewController list(albumList().get());
  const UIGestureRecognizer recognizer(
      list.tileAtIndexPath(pathTo(0)).gestureRecognizers().objectAtIndex(0).get());
  EXPECT_EQ((recognizer.send<"minimumPressDuration", double()>()), 1.0);
  for (const State state : {State::changed, State::ended, State::cancelled, State::failed}) {
    recognizer.send<"_enterState:", void(State)>(state);
    list.send<"handleLongPress:", void(UIGestureRecognizer)>(recognizer);
  }
  list.send<"handleLongPress:", void(UIGestureRecognizer)>(UIGestureRecognizer());
  settle();
  EXPECT_TRUE(me_.feltFeedback().empty());
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{});
  recognizer.send<"_enterState:", void(State)>(State::possible);
  list.send<"handleLongPress:", void(UIGestureRecognizer)>(recognizer);
  EXPECT_EQ(me_.feltFeedback(), std::vector<int>{1001});
  EXPECT_TRUE(soonLocked({"Holidays"}));
}

TEST_F(PhotosApp, ALongPressStartsFromTheFileAndUsesItsPassUp) {
  open(From::list, {"Holidays", "Recipes"});
  writeStrings(kLockedAlbums, {"Holidays", "Recipes", "Pets"});
  me_.longPress("Holidays");
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soonLocked({"Recipes", "Pets"}));
  for (const std::string_view locked : {"Pets", "Recipes"}) {
    me_.tap(locked);
    settle();
    EXPECT_EQ(openAlbum(), "") << locked;
  }
}

int layoutPasses = 0;
void countLayout(UIView, Replaced<void()> host) {
  ++layoutPasses;
  host();
}

TEST_F(PhotosApp, ATileIsDrawnAgainShortlyAfterItsLockHasChanged) {
  open(From::list);
  const HookRow row[] = {replace<countLayout>("PUAlbumListCellContentView", "layoutSubviews")};
  installHooks(row);
  for (int press = 0; press < 2; ++press) {
    me_.longPress("Holidays");
    const int before = layoutPasses;
    EXPECT_TRUE(soon([&] { return layoutPasses > before; })) << press;
  }
}

TEST_F(PhotosApp, AnswersThatNobodyAwaitsOpenNothing) {
  open(From::list, {"Holidays"});
  const auto answer = [&](std::string_view text) {
    if (!text.empty()) write(kAnswer, text);
    phone_.post(kAnswered);
    settle();
    EXPECT_EQ(openAlbum(), "") << text;
  };
  answer("");
  for (const std::string_view receiver : {"PUAlbumListViewController", "PUZoomableGridViewController",
                                          "PUAlbumListCellContentView", "NoSuchClass"}) {
    for (const std::string_view method : {"0", "1", "2"}) {
      answer("{ success = 1; method = " + std::string(method) + "; controller = " + std::string(receiver) +
             "; }");
    }
  }
  answer("{ success = (1); method = { a = b; }; controller = (x, y); }");
  answer("( success )");
  answer("bplist00");
}

TEST_F(PhotosApp, AnAnswerWithoutAFileIsForTheStripThatAppeared) {
  open(From::strip, {"Holidays"});
  setPassOption(1);
  phone_.post(kAnswered);
  me_.waitToSee("Unlock album");
}

TEST_F(PhotosApp, AnAnswerIsForTheKindOfControllerThatItNames) {
  open(From::strip, {"Holidays"});
  setPassOption(1);
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("controller"), "PUHorizontalAlbumListGadget");
  me_.tap("Cancel");
  me_.tap("See All");
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("controller"), "PUAlbumListViewController");
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("method"), "0");
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("albumName"), "Holidays");
  me_.tap("OK");
  EXPECT_EQ(openAlbum(), "Holidays");

  // Another strip that has come on screen since does not get what this one asked for.
  me_.back();
  me_.back();
  setPassOption(2);
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
  writeStrings(kLockedAlbums, {"Pets"});
  me_.tap("Pets");
  EXPECT_EQ(openAlbum(), "Pets") << "choosing an album reads no file";
  me_.back();
  me_.tap("Pets");
  settle();
  EXPECT_EQ(openAlbum(), "") << "the strip has appeared since";
}

TEST_F(PhotosApp, WithoutSpringBoardNothingWaitsAndNothingOpens) {
  open(From::list, {"Holidays"});
  springBoard_->kill();
  const auto start = std::chrono::steady_clock::now();
  me_.longPress("Pets");
  me_.tap("Pets");
  me_.tap("Holidays");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  springBoard_.emplace(phone_.launch(device::kSpringBoard));
  me_.tap("Holidays");
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soonOpen("Holidays"));
}

TEST_F(PhotosApp, WithoutAWindowNothingIsShownAndNothingBreaks) {
  open(From::list, {"Holidays"});
  setPassOption(1);
  me_.tap("Holidays");
  me_.waitToSee("Unlock album");
  write(kPassword, "not what was typed");
  const auto alert = albumList().send<"presentedViewController", UIViewController()>();
  const Ref<UIView> window(UIApplication::sharedApplication().keyWindow());
  window->send<"setHidden:", void(bool)>(true);
  ASSERT_FALSE(UIApplication::sharedApplication().keyWindow());
  alert.send<"actions", NSArray()>().objectAtIndex(0).send<"_perform", void()>();
  window->send<"setHidden:", void(bool)>(false);
  EXPECT_FALSE(me_.sees("Incorrect password"));
  EXPECT_EQ(openAlbum(), "");
}

/// How many objects of each kind that the library makes or holds are alive.
std::map<std::string, int> alive() {
  std::map<std::string, int> counts;
  const Ref<NSMutableDictionary> dictionary = makeObject<NSMutableDictionary>();
  const Ref<NSMutableArray> array = makeObject<NSMutableArray>();
  for (const Class type :
       {object_getClass(dictionary.get().get()), object_getClass(array.get().get()),
        object_getClass(NSString::from("a string of its own").get()),
        object_getClass(NSNumber::from(12345).get()), objc_getClass("UIAlertController"),
        objc_getClass("UIAlertAction"), objc_getClass("UITextField"), objc_getClass("UILabel"),
        objc_getClass("NSTimer"), objc_getClass("PUPhotosAlbumViewController"),
        objc_getClass("UILongPressGestureRecognizer")}) {
    counts[class_getName(type)] = GSDebugAllocationCount(type);
  }
  return counts;
}

TEST_P(EitherWay, TenThousandSelectionsLeaveNothingBehind) {
  open(GetParam(), {"Holidays"});
  springBoard_->kill();
  const UIViewController controller = GetParam() == From::list ? albumList() : strip();
  const NSIndexPath path = pathTo(0);
  const auto select = [&](int times) {
    for (int i = 0; i < times; ++i) {
      const AutoreleasePool turn;
      if (GetParam() == From::list) {
        PUAlbumListViewController(controller.get()).select(path);
      } else {
        PUHorizontalAlbumListGadget(controller.get()).select(path);
      }
    }
  };
  const auto references = [](Object object) { return object.send<"retainCount", NSUInteger()>(); };
  const auto counted = [&] {
    const AutoreleasePool turn;
    return std::pair(alive(), std::pair(references(controller), references(path)));
  };
  GSDebugAllocationActive(1);
  select(10);
  const auto before = counted();
  EXPECT_GT(before.first.size(), 8U);
  select(10'000);
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(counted(), before);
}

TEST_F(PhotosApp, UnlockingAgainAndAgainLeavesNothingBehind) {
  write(kPassword, "right");
  open(From::list, {"Holidays"});
  setPassOption(1);
  GSDebugAllocationActive(1);
  const auto passwordRound = [&](std::string_view password, std::string_view button) {
    const AutoreleasePool round;
    me_.tap("Holidays");
    me_.waitToSee("Unlock album");
    me_.type(password);
    me_.tap(button);
    if (!openAlbum().empty()) me_.back();
  };
  const auto rounds = [&] {
    passwordRound("right", "OK");
    passwordRound("wrong", "OK");
    passwordRound("", "Cancel");
    me_.waitUntilGone("Incorrect password");
  };
  const auto counted = [] {
    const AutoreleasePool turn;
    return alive();
  };
  rounds();
  const auto before = counted();
  EXPECT_GT(before.at("UILabel"), 0) << "objects are counted at all";
  rounds();
  rounds();
  EXPECT_EQ(counted(), before);
}

}  // namespace
}  // namespace velvault12
