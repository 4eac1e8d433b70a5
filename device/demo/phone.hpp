#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "device/demo/story.hpp"
#include "device/device.hpp"

namespace device {

inline constexpr std::string_view kStateFolder = "/var/mobile/Library/velvault";
inline constexpr std::string_view kLockedAlbums = "/var/mobile/Library/velvault/lockedAlbums.plist";
/// The name of the padlock's image, which is what it says to a user.
inline constexpr std::string_view kPadlock = "whitelock";

/// "[one, two]"
std::string joined(const std::vector<std::string>& texts);

/// "Title: Message [field, button]"
std::string describe(const AlertText& alert);

/// What a photo says to a user.
std::string describe(const AssetRow& photo);

/// The phone of the story, with three albums of three photos each, and its user.
class Phone {
 public:
  /// The library, its filter and its images, as `Device::install` takes them.
  Phone(const std::filesystem::path& folder, const std::filesystem::path& library,
        const std::filesystem::path& filter, const std::filesystem::path& images);

  const Device& device() const { return device_; }
  /// Starts the app; restarts it if it runs.
  const User& open(std::string_view app);
  /// The user of an app that has been opened.
  const User& in(std::string_view app) const;
  void crash(std::string_view app) { apps_.at(app).kill(); }

  /// What is on screen in the app that was opened or used last, or in each of those that are compared. None
  /// before an app is opened, and while the settings are in front, which this phone does not have.
  std::vector<Picture> pictures() const;
  /// From now on pictures show these apps side by side, each with its caption; one app again if there are
  /// none.
  void compare(std::vector<std::pair<std::string_view, std::string_view>> appsAndCaptions) {
    compared_ = std::move(appsAndCaptions);
  }

  /// Changes settings as the settings pane does; every app has read them when it returns.
  void changeSettings(const std::map<std::string, Device::Preference>& preferences) const;

  /// Waits until the system asks for the owner, and returns the reason that it shows.
  std::string waitForOwnerRequest() const;
  /// Waits for that request, and grants it as the owner.
  void authenticate() const;

  /// What the photo library holds in the album of that title, hidden photos as well; nothing without one.
  std::vector<AssetRow> inAlbum(std::string_view title) const;
  std::size_t hiddenIn(std::string_view title) const;
  /// What it holds that is not hidden.
  std::vector<AssetRow> inCameraRoll() const;

  bool hasFile(std::string_view path) const { return std::filesystem::exists(device_.onDisk(path)); }
  /// Waits until a file holds an array of these strings, and returns "name holds [one, two]".
  std::string waitForFile(std::string_view path, const std::vector<std::string>& strings) const;
  /// Lets the apps run until the condition holds; throws after the timeout.
  void waitUntil(std::string_view expectation, const std::function<bool()>& condition) const;

 private:
  void letAppsRun() const;

  Device device_;
  std::map<std::string_view, App> apps_;
  /// Never SpringBoard, of which there is nothing to see.
  mutable std::string_view inFront_;
  std::vector<std::pair<std::string_view, std::string_view>> compared_;
};

}  // namespace device
