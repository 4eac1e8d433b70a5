#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velvault12 {

inline constexpr std::string_view kCameraRoll = "Camera Roll";

/// The album that the Camera starts with: the remembered one, or the camera roll when there
/// is none or the user does not want it remembered.
std::string captureAlbumAtStart(const std::optional<std::string>& remembered, bool rememberDefault);

}  // namespace velvault12
