// SpringBoard on the simulated device: this process is SpringBoard, and sends itself what an app would send.

#include <gtest/gtest.h>

#include <map>

#include "device/apps/app.hpp"
#include "device/system/loader.hpp"
#include "host/app_support.hpp"
#include "host/hook.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

using device::OwnerAnswer;

NSString text(std::string_view utf8) { return NSString::from(utf8); }

CPDistributedMessagingCenter center() {
  return CPDistributedMessagingCenter::centerNamed("com.qdx.velvault12");
}
int writesElsewhere = 0;
/// How many answers had been announced as the last one was written.
int answersAtWrite = 0;
std::optional<device::NotificationCounter> answered;
bool observeWrite(NSDictionary, Replaced<bool(NSString, bool)> host, NSString path, bool atomically) {
  if (!NSThread::isMainThread()) ++writesElsewhere;
  answersAtWrite = answered->count();
  return host(path, atomically);
}

class SpringBoardApp : public PhoneTest {
 protected:
  SpringBoardApp() {
    answered.emplace(phone_, kAnswered);
    become(device::kSpringBoard);
    // Replaced before the library comes, so that this is what the library calls as the host's own.
    installHook(replace<observeWrite>("NSDictionary", "writeToFile:atomically:", "B@:@B"));
    device::loadInjectedLibraries();
    device::startApp(device::kSpringBoard);
  }

  static NSDictionary openingOf(Object album) {
    return dictionaryOf({{"method", NSNumber::from(2)}, {"albumName", album}});
  }
  static NSDictionary savingOf(Object array, Object path) {
    return dictionaryOf({{"array", array}, {"path", path}});
  }
  static void send(std::string_view message, NSDictionary userInfo) {
    center().send<"sendMessageName:userInfo:", bool(NSString, NSDictionary)>(text(message), userInfo);
  }
  template <Name Selector>
  static void request(Object userInfo) {
    UIApplication::sharedApplication().send<Selector, Object(NSString, Object)>(NSString(), userInfo);
  }
  static constexpr auto& open = request<"authenticate:withUserInfo:">;
  static constexpr auto& save = request<"handleMessageNamed:withUserInfo:">;
};

TEST_F(SpringBoardApp, AnswersAtOnceWithoutAnOwnerToAsk) {
  EXPECT_TRUE(UIApplication::sharedApplication().keyWindow()) << "its own launch goes on";
  int answers = 0;
  const auto answersAtOnce = [&] {
    send("authenticate", openingOf(text("Holidays")));
    ++answers;
    return soon([&] { return answered->count() == answers; }) && answersAtWrite == answers - 1 &&
           me_.ownerRequest().empty();
  };
  std::map<std::string, std::string> answer{
      {"id", "com.apple.springboard"}, {"type", "SpringBoard"}, {"method", "2"}, {"albumName", "Holidays"}};
  for (const int passOption : {-1, 0, 1, 7}) {
    reload({{"passOption", passOption}});
    me_.setPasscode(passOption != 0);
    EXPECT_TRUE(answersAtOnce()) << passOption;
    answer["success"] = passOption == 0 || passOption == 1 ? "0" : "1";
    EXPECT_EQ(phone_.dictionary(kAnswer), answer) << passOption;
  }
  remove(kStateFolder);
  EXPECT_TRUE(answersAtOnce()) << "where no answer can be written as well";
  EXPECT_FALSE(hasFile(kAnswer));
}

TEST_F(SpringBoardApp, AsksTheOwnerAndAnswersOnlySuccess) {
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
  EXPECT_EQ(answered->count(), 0);
  for (int i = 0; i < 2; ++i) {
    const AutoreleasePool turn;
    open(openingOf(text("100 %@ \u2603")));
  }
  EXPECT_EQ(me_.ownerRequest(), "100 %@ \u2603 needs to be unlocked.");
  me_.answerOwnerRequest(OwnerAnswer::success);
  me_.answerOwnerRequest(OwnerAnswer::cancel);
  EXPECT_TRUE(soon([] { return answered->count() == 1; }));
  EXPECT_EQ(answersAtWrite, 0);
  EXPECT_EQ(phone_.dictionary(kAnswer)->at("success"), "1");
  EXPECT_EQ(writesElsewhere, 0);
}

TEST_F(SpringBoardApp, SavesOnlyArraysWithAPath) {
  for (const std::string_view path : {kLockedAlbums, std::string_view("/private/var/mobile/Media/x.plist")}) {
    for (const Titles& titles : {Titles(), Titles{"Holidays", "<&> \u2603"}}) {
      send("savearray", savingOf(NSArray::from(titles), text(path)));
      EXPECT_TRUE(soon([&] { return phone_.strings(path) == titles; })) << path;
    }
  }
  const Object list = text(kLockedAlbums), array = NSArray::from({"x"});
  for (const NSDictionary odd :
       {savingOf({}, list), savingOf(text("x"), list), savingOf(openingOf({}), list), savingOf(array, {}),
        savingOf(array, NSNumber::from(1)), savingOf(array, text("")), savingOf(array, text(kStateFolder))})
    save(odd);
  for (const Object none : {Object(), Object(text("x"))}) save(none);
  EXPECT_EQ(phone_.strings(kLockedAlbums), (Titles{"Holidays", "<&> \u2603"}));
}

}  // namespace
}  // namespace velvault12
