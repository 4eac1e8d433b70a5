// SpringBoard on the simulated device: this process is SpringBoard, and sends itself what an app would send.

#include <gtest/gtest.h>

#include <optional>

#include "device/apps/app.hpp"
#include "device/system/loader.hpp"
#include "host/app_support.hpp"
#include "host/hook.hpp"
#include "host/springboard.hpp"
#include "startup/service_messages.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

using device::OwnerAnswer;

class SpringBoardApp : public PhoneTest {
 protected:
  static constexpr std::string_view kPhotos = "com.apple.mobileslideshow";

  void boot(const std::map<std::string, device::Device::Preference>& preferences = {}) {
    phone_.writePreferences(preferences);
    phone_.launchHere(device::kSpringBoard);
    answered_.emplace(phone_, kAnswered);
  }

  static Ref<NSMutableDictionary> request(int method, Object album) {
    Ref<NSMutableDictionary> request = makeObject<NSMutableDictionary>();
    request->set(key::kSender, NSString::from(kPhotos));
    request->set(key::kMethod, NSNumber::from(method));
    request->set(key::kAlbumName, album);
    request->set(key::kController, NSString::from("PUSomeController"));
    return request;
  }
  static void authenticate(Object userInfo) {
    call<"authenticate:withUserInfo:">(kAuthenticateMessage, userInfo);
  }
  static void saveArray(Object userInfo) {
    call<"handleMessageNamed:withUserInfo:">(kSaveArrayMessage, userInfo);
  }
  static Ref<NSMutableDictionary> saveRequest(Object array, Object path) {
    Ref<NSMutableDictionary> request = makeObject<NSMutableDictionary>();
    request->set(key::kArray, array);
    request->set(key::kPath, path);
    return request;
  }

  std::string answer(std::string_view name) const {
    const auto file = phone_.dictionary(kAnswer);
    return file && file->contains(std::string(name)) ? file->at(std::string(name)) : "missing";
  }
  bool soonAnswered(int times) {
    return soon([&] { return answered_->count() == times; });
  }
  void expectSilence() {
    turn();
    EXPECT_FALSE(hasFile(kAnswer));
    EXPECT_EQ(answered_->count(), 0);
  }

  device::User me_ = device::User::here();
  std::optional<device::NotificationCounter> answered_;
  AutoreleasePool pool_;

 private:
  template <Name Selector>
  static void call(std::string_view message, Object userInfo) {
    UIApplication::sharedApplication().send<Selector, Object(NSString, Object)>(NSString::from(message),
                                                                                userInfo);
  }
};

bool isServed() {
  return CPDistributedMessagingCenter::centerNamed(kServiceName).send<"doesServerExist", bool()>();
}
bool wasServedBefore = true;
void ownLaunch(SpringBoard, Replaced<void(UIApplication)> host, UIApplication application) {
  host(application);
  wasServedBefore = isServed();
}

TEST_F(SpringBoardApp, ServesOnceItsOwnLaunchIsOver) {
  device::become({phone_.folder(), std::string(device::kSpringBoard)});
  // Replaced before the library comes, so that this is what the library calls as the host's own.
  const HookRow row[] = {replace<ownLaunch>("SpringBoard", "applicationDidFinishLaunching:")};
  installHooks(row);
  device::loadInjectedLibraries();
  device::startApp(device::kSpringBoard);
  EXPECT_FALSE(wasServedBefore);
  EXPECT_TRUE(isServed());
}

TEST_F(SpringBoardApp, TheAnswerIsTheRequestWithItsOutcome) {
  boot({{"passOption", 1}});
  EXPECT_TRUE(UIApplication::sharedApplication().keyWindow()) << "SpringBoard's own launch went on";
  authenticate(request(2, NSString::from("Holidays")).get());
  EXPECT_EQ(answered_->count(), 1);
  EXPECT_EQ(*phone_.dictionary(kAnswer),
            (std::map<std::string, std::string>{{"id", "com.apple.springboard"},
                                                {"type", "SpringBoard"},
                                                {"success", "0"},
                                                {"method", "2"},
                                                {"albumName", "Holidays"},
                                                {"controller", "PUSomeController"}}));
  EXPECT_EQ(me_.ownerRequest(), "");
}

TEST_F(SpringBoardApp, AnyOtherOptionAnswersYesAndAReloadChangesIt) {
  boot({{"passOption", 7}});
  authenticate(request(0, NSString::from("Holidays")).get());
  EXPECT_EQ(answer("success"), "1");
  EXPECT_EQ(me_.ownerRequest(), "");
  phone_.writePreferences({{"passOption", 0}});
  phone_.post(kReload);
  EXPECT_TRUE(soon([&] {
    authenticate(request(0, NSString::from("Holidays")).get());
    return !me_.ownerRequest().empty();
  }));
}

TEST_F(SpringBoardApp, TheOwnerIsAskedByNameAndOnlySuccessIsAnswered) {
  boot();
  for (const OwnerAnswer silent : {OwnerAnswer::cancel, OwnerAnswer::failure}) {
    authenticate(request(0, NSString::from("100 %@ \u2603")).get());
    EXPECT_EQ(me_.ownerRequest(), "100 %@ \u2603 needs to be unlocked.");
    me_.answerOwnerRequest(silent);
    expectSilence();
  }
  {
    const AutoreleasePool turn;
    authenticate(request(1, NSString::from("Holidays")).get());
    authenticate(request(1, NSString::from("Holidays")).get());
  }
  me_.answerOwnerRequest(OwnerAnswer::success);
  me_.answerOwnerRequest(OwnerAnswer::cancel);
  EXPECT_TRUE(soonAnswered(1));
  EXPECT_EQ(answer("success"), "1");
  EXPECT_EQ(answer("method"), "1");
}

int writesElsewhere = 0;
bool countWrites(NSDictionary, Replaced<bool(NSString, bool)> host, NSString path, bool atomically) {
  if (!sendToClass<"isMainThread", bool()>(classNamed<"NSThread">())) ++writesElsewhere;
  return host(path, atomically);
}

TEST_F(SpringBoardApp, TheAnswerIsWrittenOnTheMainThread) {
  boot();
  const HookRow row[] = {replace<countWrites>("NSDictionary", "writeToFile:atomically:")};
  installHooks(row);
  authenticate(request(0, NSString::from("Holidays")).get());
  me_.answerOwnerRequest(OwnerAnswer::success);
  EXPECT_TRUE(soonAnswered(1));
  EXPECT_EQ(writesElsewhere, 0);
}

TEST_F(SpringBoardApp, APhoneWithoutPasscodeAnswersNoAtOnce) {
  boot();
  me_.setPasscode(false);
  authenticate(request(0, NSString::from("Holidays")).get());
  EXPECT_EQ(answered_->count(), 1);
  EXPECT_EQ(answer("success"), "0");
}

TEST_F(SpringBoardApp, OddRequestsToAuthenticate) {
  boot();
  for (const Object none : {Object(), Object(NSString::from("x")), Object(NSArray::from({"x"}))}) {
    authenticate(none);
    EXPECT_EQ(me_.ownerRequest(), "");
    expectSilence();
  }
  for (const Object album : {Object(), Object(NSNumber::from(3)), Object(NSArray::from({"x"}))}) {
    authenticate(request(0, album).get());
    EXPECT_EQ(me_.ownerRequest(), "(null) needs to be unlocked.");
    me_.answerOwnerRequest(OwnerAnswer::cancel);
  }
}

TEST_F(SpringBoardApp, SaveArrayWritesWhereverItIsTold) {
  boot();
  for (const std::string_view path :
       {kLockedAlbums, std::string_view("/private/var/mobile/Library/velvault/album.tct"),
        std::string_view("/var/mobile/Media/elsewhere.plist")}) {
    const auto titles = NSArray::from({"Holidays", "<&> \u2603"});
    saveArray(saveRequest(titles, NSString::from(path)).get());
    EXPECT_EQ(phone_.strings(path), (Titles{"Holidays", "<&> \u2603"})) << path;
    saveArray(saveRequest(NSArray::from({}), NSString::from(path)).get());
    EXPECT_EQ(phone_.strings(path), Titles{}) << path;
  }
}

TEST_F(SpringBoardApp, OddRequestsToSaveChangeNothing) {
  boot();
  const NSString path = NSString::from(kLockedAlbums);
  saveArray(saveRequest(NSArray::from({"Holidays"}), path).get());
  saveArray(Object());
  saveArray(NSString::from("x"));
  saveArray(saveRequest(Object(), path).get());
  saveArray(saveRequest(NSString::from("x"), path).get());
  saveArray(saveRequest(request(0, Object()).get(), path).get());
  saveArray(saveRequest(NSArray::from({"x"}), Object()).get());
  saveArray(saveRequest(NSArray::from({"x"}), NSNumber::from(1)).get());
  saveArray(saveRequest(NSArray::from({"x"}), NSString::from("")).get());
  saveArray(saveRequest(NSArray::from({"x"}), NSString::from(kStateFolder)).get());
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
}

TEST_F(SpringBoardApp, TheCentreHandsMessagesToTheServices) {
  boot({{"passOption", 2}});
  const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
  center.sendMessage(kSaveArrayMessage,
                     saveRequest(NSArray::from({"Pets"}), NSString::from(kLockedAlbums)).get());
  center.sendMessage(kAuthenticateMessage, request(0, NSString::from("Pets")).get());
  center.sendMessage("nosuchmessage", request(0, NSString::from("Pets")).get());
  center.sendMessage(kAuthenticateMessage, NSDictionary());
  EXPECT_TRUE(soonAnswered(1));
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Pets"});
}

TEST_F(SpringBoardApp, AnAnswerThatCannotBeWrittenIsStillPosted) {
  boot({{"passOption", 2}});
  remove(kStateFolder);
  authenticate(request(0, NSString::from("Holidays")).get());
  EXPECT_EQ(answered_->count(), 1);
  EXPECT_FALSE(hasFile(kAnswer));
}

}  // namespace
}  // namespace velvault12
