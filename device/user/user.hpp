#pragma once

#include <chrono>
#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace device {

inline constexpr std::chrono::milliseconds kPatience{60'000};

/// How the phone's owner meets a request for Touch ID or the passcode.
enum class OwnerAnswer { success, failure, cancel };

/// An alert or action sheet as a person reads it.
struct AlertText {
  std::string title;
  std::string message;
  /// "Password" for a plain field with that placeholder, "Password (secure)" for one that hides its text.
  std::vector<std::string> fields;
  /// In the order in which they were added.
  std::vector<std::string> buttons;
};

class Alert;

/// Somebody who holds the phone and uses one of its apps: in this process, or in another one over the
/// app's control socket. Every step that cannot be done (nothing of that name on screen, no alert, patience
/// lost) throws std::runtime_error, whose text ends with what was on screen.
class User {
 public:
  /// Carries one command, an array of its name and its arguments, to an app and brings back its result.
  using Hands = std::function<nlohmann::json(const nlohmann::json& command)>;
  explicit User(Hands hands);

  /// The user of the app that this very process is. Main thread only: each step runs the run loop.
  static User here();

  /// Touches what bears the text: a button of the alert in front, else a tile, a tab, a bar button, a view.
  void tap(std::string_view text) const;
  /// Holds a finger on it for as long as its long-press recognizer asks, and lifts it.
  void longPress(std::string_view text) const;
  /// Scrolls until something that bears the text is in sight.
  void scrollTo(std::string_view text) const;
  /// Spreads two fingers on it: what it lies in is zoomed in, as far as it lets them.
  void zoomIn(std::string_view text) const;
  /// Types into the text field of the alert in front, or the first one on screen, replacing its text.
  void type(std::string_view text) const;
  /// Taps the navigation bar's back button.
  void back() const;
  /// Presses the home button; returns to the app from the home screen.
  void leaveApp() const;
  void returnToApp() const;

  /// The alert in front; throws without one.
  Alert alert() const;
  bool hasAlert() const;

  /// Whether the text is on screen, as the whole text of some visible view, bar, button or alert.
  bool sees(std::string_view text) const;
  /// Runs the app until the text is (or is no longer) on screen.
  void waitToSee(std::string_view text, std::chrono::milliseconds patience = kPatience) const;
  void waitUntilGone(std::string_view text, std::chrono::milliseconds patience = kPatience) const;
  /// Taps what bears the first text and waits for the second in one step: a notice, which goes by itself,
  /// may be gone when a step of its own comes to look for it.
  void tapToSee(std::string_view text, std::string_view notice,
                std::chrono::milliseconds patience = kPatience) const;

  /// What is on screen: the visible view tree as indented lines `Class "text" (x y width height)`.
  std::string screen() const;
  /// The phone with what is on its screen, once nothing moves there, as an SVG document. In front of the app
  /// lies the system's sheet that asks for the owner, when its reason is passed.
  std::string picture(std::string_view ownerRequest = "") const;

  /// The haptic feedback codes felt so far, oldest first.
  std::vector<int> feltFeedback() const;

  /// SpringBoard only. The reason shown by the sheet that asks for the owner, "" without one; waiting for
  /// one; answering it (throws without one); whether the phone has a passcode at all (it has, at first).
  std::string ownerRequest() const;
  void waitForOwnerRequest(std::chrono::milliseconds patience = kPatience) const;
  void answerOwnerRequest(OwnerAnswer answer) const;
  void setPasscode(bool present) const;

 private:
  template <class Result = void>
  Result perform(const nlohmann::json& command) const;
  Hands hands_;
};

/// An alert in front of a user: its texts, and what can be done with it.
class Alert : public AlertText {
 public:
  Alert(AlertText text, User user) : AlertText(std::move(text)), user_(std::move(user)) {}
  /// Types into its first field.
  const Alert& type(std::string_view text) const;
  /// Taps one of its buttons.
  void tap(std::string_view button) const;

 private:
  User user_;
};

/// Performs one command of `User` in this process's app, running the run loop as needed. Main thread only.
/// Throws std::exception for a command that `User` does not send.
nlohmann::json performHere(const nlohmann::json& command);

}  // namespace device
