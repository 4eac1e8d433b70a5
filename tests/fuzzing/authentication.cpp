// What comes with the message that has SpringBoard ask the phone's owner: a dictionary makes it ask, by the
// name of an album or without one, and comes back as the answer once the owner has agreed.

#include "tests/fuzzing/fuzz_target.hpp"

namespace velvault12 {
namespace {

class AuthenticationTarget : public Fuzzed<PhoneTest> {
 public:
  AuthenticationTarget() { phone_.launchHere(device::kSpringBoard); }

  void take(std::string_view bytes) override {
    const Object userInfo = received(bytes);
    const auto request = userInfo.as<NSDictionary>();
    for (const auto owner : {device::OwnerAnswer::cancel, device::OwnerAnswer::success}) {
      remove(kAnswer);
      UIApplication::sharedApplication().send<"authenticate:withUserInfo:", Object(NSString, Object)>(
          NSString::from("authenticate"), userInfo);
      const std::string question = me_.ownerRequest();
      ASSERT_EQ(question.empty(), !request);
      if (!request) return;
      if (!isString(request["albumName"])) EXPECT_EQ(question, "(null) needs to be unlocked.");
      me_.answerOwnerRequest(owner);
      turn();
      if (owner == device::OwnerAnswer::cancel) EXPECT_FALSE(hasFile(kAnswer));
      if (owner == device::OwnerAnswer::success && isPlain(request)) EXPECT_TRUE(hasFile(kAnswer));
      if (hasFile(kAnswer)) expectAgreement(NSDictionary::contentsOfFile(kAnswer));
    }
  }

 private:
  /// There are values that no file can hold.
  static bool isPlain(NSDictionary request) {
    bool isIt = true;
    for (const Object key : request.allKeys())
      isIt = isIt && isPlainText(key) && isPlainText(request.objectForKey(NSString(key.get())));
    return isIt;
  }
  static void expectAgreement(NSDictionary answer) {
    EXPECT_TRUE((answer["success"].send<"boolValue", bool()>()));
    EXPECT_EQ(stringOr("", answer["id"]), device::kSpringBoard);
    EXPECT_EQ(stringOr("", answer["type"]), "SpringBoard");
  }
};

}  // namespace

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<AuthenticationTarget>(); }

}  // namespace velvault12
