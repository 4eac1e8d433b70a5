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

/// "[one, two]"
std::string joined(const std::vector<std::string>& texts);

/// What the phone calls the photo.
std::string wordsFor(const AssetRow& photo);

/// The phone of the story, with three albums of three photos each, and who holds it.
class Phone {
 public:
  /// The library, its filter and its images, as `Device::install` takes them.
  Phone(const std::filesystem::path& folder, const std::filesystem::path& library,
        const std::filesystem::path& filter, const std::filesystem::path& images);

  const Device& device() const { return device_; }
  /// Starts the app, anew if it runs.
  const User& open(std::string_view app);
  /// The user of an app that has been opened.
  const User& in(std::string_view app) const;
  void crash(std::string_view app) { apps_.at(app).kill(); }
  /// What is on screen in the app that was last opened or used, or in those that are compared; none of an app
  /// that has not been opened or has crashed.
  std::vector<Picture> pictures() const;
  /// From now on the story looks at these apps side by side, each under what it is called there; at one again
  /// when there are none.
  void compare(std::vector<std::pair<std::string_view, std::string_view>> appsAndCaptions) {
    compared_ = std::move(appsAndCaptions);
  }

  /// As the settings pane does; every app has read them when it returns.
  void changeSettings(const std::map<std::string, Device::Preference>& preferences) const;
  /// What the photo library holds in the album of that title, hidden photos as well; nothing without one.
  std::vector<AssetRow> inAlbum(std::string_view title) const;
  /// What it holds that is not hidden.
  std::vector<AssetRow> inCameraRoll() const;
  bool hasFile(std::string_view path) const { return std::filesystem::exists(device_.onDisk(path)); }
  /// A file that holds an array of strings, as "name holds [one, two]", once it holds these: who writes it
  /// does so in its own time.
  std::string onceHolds(std::string_view path, const std::vector<std::string>& strings) const;
  /// Lets the apps go on until the condition holds; throws when it does not for too long.
  void waitUntil(std::string_view expectation, const std::function<bool()>& condition) const;

 private:
  void letAppsGoOn() const;

  Device device_;
  std::map<std::string_view, App> apps_;
  /// The app that was last asked for. Of SpringBoard there is nothing to see.
  mutable std::string_view inFront_;
  std::vector<std::pair<std::string_view, std::string_view>> compared_;
};

}  // namespace device
