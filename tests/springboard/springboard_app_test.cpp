// SpringBoard on the simulated device: this process is SpringBoard, and sends itself what an app would send.

#include <gtest/gtest.h>

#include <map>

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

NSString text(std::string_view utf8) { return NSString::from(utf8); }

bool isServed() {
  return CPDistributedMessagingCenter::centerNamed(kServiceName).send<"doesServerExist", bool()>();
}
bool wasServedBefore = true;
void ownLaunch(SpringBoard, Replaced<void(UIApplication)> host, UIApplication application) {
  host(application);
  wasServedBefore = isServed();
}
int writesElsewhere = 0;
bool countWrites(NSDictionary, Replaced<bool(NSString, bool)> host, NSString path, bool atomically) {
  if (!sendToClass<"isMainThread", bool()>(classNamed<"NSThread">())) ++writesElsewhere;
  return host(path, atomically);
}

class SpringBoardApp : public PhoneTest {
 protected:
  SpringBoardApp() {
    become(device::kSpringBoard);
    // Replaced before the library comes, so that these are what the library calls as the host's own.
    const HookRow rows[] = {replace<ownLaunch>("SpringBoard", "applicationDidFinishLaunching:", "v@:@"),
                            replace<countWrites>("NSDictionary", "writeToFile:atomically:", "B@:@B")};
    installHooks(rows);
    device::loadInjectedLibraries();
    device::startApp(device::kSpringBoard);
  }

  static NSDictionary openingOf(Object album) {
    return dictionaryOf({{key::kMethod, NSNumber::from(2)}, {key::kAlbumName, album}});
  }
  static NSDictionary savingOf(Object array, Object path) {
    return dictionaryOf({{key::kArray, array}, {key::kPath, path}});
  }
  template <Name Selector>
  static void request(Object userInfo) {
    UIApplication::sharedApplication().send<Selector, Object(NSString, Object)>(NSString(), userInfo);
  }
  static void open(Object userInfo) { request<"authenticate:withUserInfo:">(userInfo); }
  static void save(Object userInfo) { request<"handleMessageNamed:withUserInfo:">(userInfo); }

  device::NotificationCounter answered_{phone_, kAnswered};
};

TEST_F(SpringBoardApp, ServesOnceItsOwnLaunchIsOver) {
  EXPECT_TRUE(UIApplication::sharedApplication().keyWindow());
  EXPECT_FALSE(wasServedBefore);
  EXPECT_TRUE(isServed());
}

TEST_F(SpringBoardApp, AnswersAtOnceWhereNobodyIsToBeAskedAndFollowsTheSettings) {
  int answers = 0;
  const auto answersAtOnce = [&] {
    open(openingOf(text("Holidays")));
    return me_.ownerRequest().empty() && answered_.count() == ++answers;
  };
  for (const auto& [passOption, success] :
       std::map<int, std::string>{{-1, "1"}, {0, "0"}, {1, "0"}, {7, "1"}}) {
    phone_.writePreferences({{"passOption", passOption}});
    phone_.post(kReload);
    turn();
    me_.setPasscode(passOption != 0);
    EXPECT_TRUE(answersAtOnce()) << passOption;
    const std::map<std::string, std::string> answer{{"id", "com.apple.springboard"},
                                                    {"type", "SpringBoard"},
                                                    {"success", success},
                                                    {"method", "2"},
                                                    {"albumName", "Holidays"}};
    EXPECT_EQ(phone_.dictionary(kAnswer), answer) << passOption;
  }
  remove(kStateFolder);
  EXPECT_TRUE(answersAtOnce()) << "where no answer can be written as well";
  EXPECT_FALSE(hasFile(kAnswer));
}

TEST_F(SpringBoardApp, AsksTheOwnerByTitleAndAnswersOnlySuccessOnTheMainThread) {
  const Object odd[] = {Object(), NSNumber::from(3), NSArray::from({"x"})};
  for (const Object none : odd) {
    open(none);
    EXPECT_EQ(me_.ownerRequest(), "");
  }
  for (const OwnerAnswer silent : {OwnerAnswer::cancel, OwnerAnswer::failure}) {
    for (const Object untitled : odd) {
      open(openingOf(untitled));
      EXPECT_EQ(me_.ownerRequest(), "(null) needs to be unlocked.");
      me_.answerOwnerRequest(silent);
    }
  }
  turn();
  EXPECT_FALSE(hasFile(kAnswer));
  EXPECT_EQ(answered_.count(), 0);
  {
    const AutoreleasePool turn;
    for (int i = 0; i < 2; ++i) open(openingOf(text("100 %@ \u2603")));
  }
  EXPECT_EQ(me_.ownerRequest(), "100 %@ \u2603 needs to be unlocked.");
  me_.answerOwnerRequest(OwnerAnswer::success);
  me_.answerOwnerRequest(OwnerAnswer::cancel);
  EXPECT_TRUE(soon([&] { return answered_.count() == 1; }));
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("success"), "1");
  EXPECT_EQ(writesElsewhere, 0);
}

TEST_F(SpringBoardApp, SavesAnArrayWhereverItIsToldAndNothingElse) {
  for (const std::string_view path : {kLockedAlbums, std::string_view("/private/var/mobile/Media/x.plist")}) {
    for (const Titles& titles : {Titles(), Titles{"Holidays", "<&> \u2603"}}) {
      save(savingOf(NSArray::from(titles), text(path)));
      EXPECT_EQ(phone_.strings(path), titles) << path;
    }
  }
  const Object list = text(kLockedAlbums);
  const Object array = NSArray::from({"x"});
  for (const NSDictionary odd :
       {savingOf({}, list), savingOf(text("x"), list), savingOf(openingOf({}), list), savingOf(array, {}),
        savingOf(array, NSNumber::from(1)), savingOf(array, text("")), savingOf(array, text(kStateFolder))}) {
    save(odd);
  }
  for (const Object none : {Object(), Object(text("x"))}) save(none);
  EXPECT_EQ(phone_.strings(kLockedAlbums), (Titles{"Holidays", "<&> \u2603"}));
}

}  // namespace
}  // namespace velvault12
