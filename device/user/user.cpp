#include "device/user/user.hpp"

#include <stdexcept>
#include <type_traits>

#include "device/user/user_json.hpp"

namespace device {

User::User(Hands hands) : hands_(std::move(hands)) {}

User User::here() { return User(performHere); }

template <class Result>
Result User::perform(const nlohmann::json& command) const {
  try {
    const nlohmann::json result = hands_(command);
    if constexpr (!std::is_void_v<Result>) return result.get<Result>();
  } catch (const nlohmann::json::exception& error) {
    throw std::runtime_error(std::string("the app's reply is damaged: ") + error.what());
  }
}

void User::tap(std::string_view text) const { perform({"tap", text}); }
void User::scrollTo(std::string_view text) const { perform({"scrollTo", text}); }
void User::zoomIn(std::string_view text) const { perform({"zoomIn", text}); }
void User::longPress(std::string_view text) const { perform({"longPress", text}); }
void User::type(std::string_view text) const { perform({"type", text}); }
void User::back() const { perform({"back"}); }
void User::leaveApp() const { perform({"leaveApp"}); }
void User::returnToApp() const { perform({"returnToApp"}); }

Alert User::alert() const { return {perform<AlertText>({"alert"}), *this}; }

const Alert& Alert::type(std::string_view text) const {
  user_.type(text);
  return *this;
}

void Alert::tap(std::string_view button) const { user_.tap(button); }

bool User::hasAlert() const { return perform<bool>({"hasAlert"}); }

bool User::sees(std::string_view text) const { return perform<bool>({"sees", text}); }

void User::waitToSee(std::string_view text, std::chrono::milliseconds patience) const {
  perform({"waitToSee", text, patience.count()});
}

void User::waitUntilGone(std::string_view text, std::chrono::milliseconds patience) const {
  perform({"waitUntilGone", text, patience.count()});
}

void User::tapToSee(std::string_view text, std::string_view notice,
                    std::chrono::milliseconds patience) const {
  perform({"tapToSee", text, notice, patience.count()});
}

std::string User::screen() const { return perform<std::string>({"screen"}); }
std::string User::picture(std::string_view ownerRequest) const {
  return perform<std::string>({"picture", ownerRequest});
}

std::vector<int> User::feltFeedback() const { return perform<std::vector<int>>({"feltFeedback"}); }

std::string User::ownerRequest() const { return perform<std::string>({"ownerRequest"}); }

void User::waitForOwnerRequest(std::chrono::milliseconds patience) const {
  perform({"waitForOwnerRequest", patience.count()});
}

void User::answerOwnerRequest(OwnerAnswer answer) const { perform({"answerOwnerRequest", answer}); }

void User::setPasscode(bool present) const { perform({"setPasscode", present}); }

}  // namespace device
