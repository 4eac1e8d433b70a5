#pragma once

#include <string_view>

namespace velvault12 {

/// The group of hooks that a host gets beside the library filter.
enum class HookGroup { none, camera, photos, springBoard };

/// What is done in one host at start-up.
struct HostPlan {
  HookGroup group = HookGroup::none;
  /// The fetch hooks that hide locked albums.
  bool filterLibrary = false;
  /// The folder of the shared files, which only SpringBoard may make.
  bool makeStateFolder = false;
  /// The answers of SpringBoard's authentication service.
  bool observeAnswers = false;
  /// The album that captures go into.
  bool readCaptureAlbum = false;

  friend bool operator==(const HostPlan&, const HostPlan&) = default;
};

/// The identifier is empty in a process that is no app. Some of the work is done in a host even while the
/// library is not enabled there.
HostPlan planForHost(std::string_view bundleIdentifier, bool enabled);

inline constexpr std::string_view kPhotosIdentifier = "com.apple.mobileslideshow";

}  // namespace velvault12
