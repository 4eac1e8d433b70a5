#include "device/user/user.hpp"

#include <charconv>
#include <utility>

#include "device/user/alert_text.hpp"

namespace device {
namespace {

std::string milliseconds(std::chrono::milliseconds patience) { return std::to_string(patience.count()); }

constexpr std::string_view nameOf(OwnerAnswer answer) {
  switch (answer) {
    case OwnerAnswer::success:
      return "success";
    case OwnerAnswer::failure:
      return "failure";
    case OwnerAnswer::cancel:
      return "cancel";
  }
  return "";
}

}  // namespace

User::User(Hands hands) : hands_(std::move(hands)) {}

User User::here() { return User(performHere); }

std::string User::perform(const std::vector<std::string>& command) const { return hands_(command); }

void User::tap(std::string_view text) const { perform({"tap", std::string(text)}); }
void User::scrollTo(std::string_view text) const { perform({"scrollTo", std::string(text)}); }
void User::zoomIn(std::string_view text) const { perform({"zoomIn", std::string(text)}); }
void User::longPress(std::string_view text) const { perform({"longPress", std::string(text)}); }
void User::type(std::string_view text) const { perform({"type", std::string(text)}); }
void User::back() const { perform({"back"}); }
void User::leaveApp() const { perform({"leaveApp"}); }
void User::returnToApp() const { perform({"returnToApp"}); }

Alert User::alert() const { return {decodeAlertText(perform({"alert"})), *this}; }

const Alert& Alert::type(std::string_view text) const {
  user_.type(text);
  return *this;
}

void Alert::tap(std::string_view button) const { user_.tap(button); }

bool User::hasAlert() const { return perform({"hasAlert"}) == "yes"; }

bool User::sees(std::string_view text) const { return perform({"sees", std::string(text)}) == "yes"; }

void User::waitToSee(std::string_view text, std::chrono::milliseconds patience) const {
  perform({"waitToSee", std::string(text), milliseconds(patience)});
}

void User::waitUntilGone(std::string_view text, std::chrono::milliseconds patience) const {
  perform({"waitUntilGone", std::string(text), milliseconds(patience)});
}

std::string User::screen() const { return perform({"screen"}); }
std::string User::picture(std::string_view ownerRequest) const {
  return perform({"picture", std::string(ownerRequest)});
}

std::vector<int> User::feltFeedback() const {
  const std::string answer = perform({"feltFeedback"});
  std::vector<int> codes;
  const char* next = answer.data();
  const char* const end = next + answer.size();
  for (int code = 0; next < end; ++next) {
    next = std::from_chars(next, end, code).ptr;
    codes.push_back(code);
  }
  return codes;
}

std::string User::ownerRequest() const { return perform({"ownerRequest"}); }

void User::waitForOwnerRequest(std::chrono::milliseconds patience) const {
  perform({"waitForOwnerRequest", milliseconds(patience)});
}

void User::answerOwnerRequest(OwnerAnswer answer) const {
  perform({"answerOwnerRequest", std::string(nameOf(answer))});
}

void User::setPasscode(bool present) const { perform({"setPasscode", present ? "yes" : "no"}); }

}  // namespace device
