#pragma once

#include <sys/types.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "device/frameworks/Photos/photo_database.hpp"
#include "device/user/user.hpp"

namespace device {

/// An app running in a process of its own. Destroying it kills the process.
class App {
 public:
  App(pid_t process, User user);
  ~App();
  App(App&&) noexcept;
  App& operator=(App&&) noexcept;

  /// Whoever holds the phone while this app is in front.
  const User& user() const { return user_; }
  pid_t process() const { return process_; }
  /// Ends the process at once, as a crash would, and waits until it is gone.
  void kill();

 private:
  pid_t process_;
  User user_;
};

/// A simulated iPhone: a folder with its disk and sockets, shared by all of its processes.
class Device {
 public:
  /// A new phone in `folder`: an empty photo library, nothing installed. A phone that was there before is
  /// erased; throws std::runtime_error where anything else lies there.
  explicit Device(const std::filesystem::path& folder);

  const std::filesystem::path& folder() const { return folder_; }
  /// Where a path of the phone ("/var/mobile/...", "/private/var/...", "/Library/...") lies on this machine.
  std::filesystem::path onDisk(std::string_view phonePath) const;

  /// Puts a library and its filter property list where the phone's loader looks, under the library's stem,
  /// and the PNG files of a folder where the library looks for its images.
  void install(const std::filesystem::path& library, const std::filesystem::path& filter,
               const std::filesystem::path& images) const;

  /// Starts an app of the phone and returns when it has finished launching. Throws when it does not.
  App launch(std::string_view bundleIdentifier) const;
  /// Makes this process that app instead: identity, loader, launch. Once a process; use `User::here()`.
  void launchHere(std::string_view bundleIdentifier) const;

  PhotoDatabase photoLibrary() const;

  /// Replaces the whole preferences file of the installed library, as its settings pane would.
  using Preference = std::variant<bool, int, std::string>;
  void writePreferences(const std::map<std::string, Preference>& preferences) const;
  /// Posts a Darwin notification, as another process of the phone would.
  void post(std::string_view notification) const;

  /// What a file of the phone holds, read through Foundation: none when missing or of another shape.
  std::optional<std::vector<std::string>> strings(std::string_view phonePath) const;
  /// Keys and values; a number reads as its digits, a boolean as "1" or "0".
  std::optional<std::map<std::string, std::string>> dictionary(std::string_view phonePath) const;

 private:
  std::filesystem::path folder_;
};

/// Counts how often a Darwin notification is posted on a device, from its making on.
class NotificationCounter {
 public:
  NotificationCounter(const Device& device, std::string_view notification);
  ~NotificationCounter();
  NotificationCounter(const NotificationCounter&) = delete;
  NotificationCounter& operator=(const NotificationCounter&) = delete;
  /// Those delivered by now. Posts that pile up undelivered count once, as on a phone.
  int count();

 private:
  int descriptor_;
  std::filesystem::path socket_;
  int count_ = 0;
};

}  // namespace device
