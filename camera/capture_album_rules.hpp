#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velvault12 {

/// Stands for no album: captures stay where the host puts them.
inline constexpr std::string_view kCameraRoll = "Camera Roll";

/// The album that the Camera starts with: the remembered one, or the camera roll when there
/// is none or the user does not want it remembered.
std::string captureAlbumAtStart(const std::optional<std::string>& remembered, bool rememberDefault);

/// Whether a typed title, in UTF-8, has anything in it but white space of whatever script.
bool isAlbumTitle(std::string_view typed);

}  // namespace velvault12
