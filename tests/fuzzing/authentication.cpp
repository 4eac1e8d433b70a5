// What comes with the message that has SpringBoard ask the phone's owner: a dictionary makes it ask, by the
// name of an album or without one, and comes back as the answer once the owner has agreed.

#include "tests/fuzzing/fuzz_target.hpp"

namespace velvault12 {

class AuthenticationTarget : public Fuzzed<PhoneTest> {
 public:
  AuthenticationTarget() { phone_.launchHere(device::kSpringBoard); }

  void take(std::string_view bytes) override {
    const Object userInfo = received(bytes);
    const auto request = userInfo.as<NSDictionary>();
    for (const bool agrees : {false, true}) {
      remove(kAnswer);
      UIApplication::sharedApplication().send<"authenticate:withUserInfo:", Object(NSString, Object)>(
          NSString::from("authenticate"), userInfo);
      const std::string question = me_.ownerRequest();
      ASSERT_EQ(question.empty(), !request);
      if (!request) return;
      if (!isString(request["albumName"])) EXPECT_EQ(question, "(null) needs to be unlocked.");
      me_.answerOwnerRequest(agrees ? device::OwnerAnswer::success : device::OwnerAnswer::cancel);
      turn();
      // There are values that no file can hold.
      const bool isPlain =
          arePlainTexts(request.allKeys()) && arePlainTexts(request.send<"allValues", NSArray()>());
      if (!agrees || isPlain) EXPECT_EQ(hasFile(kAnswer), agrees);
      if (!hasFile(kAnswer)) continue;
      const NSDictionary answer = NSDictionary::contentsOfFile(kAnswer);
      EXPECT_TRUE((answer["success"].send<"boolValue", bool()>()));
      EXPECT_EQ(stringOr("", answer["id"]), device::kSpringBoard);
    }
  }
};

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<AuthenticationTarget>(); }

}  // namespace velvault12
