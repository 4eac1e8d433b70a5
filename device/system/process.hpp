#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace device {

inline constexpr std::string_view kSpringBoard = "com.apple.springboard";
inline constexpr std::string_view kPhotos = "com.apple.mobileslideshow";
inline constexpr std::string_view kCamera = "com.apple.camera";
inline constexpr std::string_view kGallery = "org.example.gallery";
inline constexpr std::string_view kShopDemo = "com.apple.store.Jolly";

/// Which app of which device this process is.
struct Identity {
  /// The device's own folder: its disk is `folder / "disk"`, its sockets `folder / "run"`.
  std::filesystem::path folder;
  std::string bundleIdentifier;
};

/// Makes this process that app: to be called once, before any stand-in framework is used. The working
/// folder becomes the root of the device's disk, as an iPhone's system processes run in "/".
void become(Identity identity);

/// The identity given to `become`; empty strings before.
const Identity& identity();

/// True in every app but SpringBoard.
bool isSandboxed();

}  // namespace device
