#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velvault12 {

inline constexpr std::string_view kCameraRoll = "Camera Roll";

/// The album that the Camera starts with: the first of the remembered titles, or the camera roll when there
/// is none or the user does not want it remembered.
std::string captureAlbumAtStart(const std::vector<std::string>& remembered, bool rememberDefault);

}  // namespace velvault12
