#include "camera/capture_album_rules.hpp"

namespace velvault12 {

std::string captureAlbumAtStart(const std::optional<std::string>& remembered, bool rememberDefault) {
  return remembered && rememberDefault ? *remembered : std::string(kCameraRoll);
}

}  // namespace velvault12
