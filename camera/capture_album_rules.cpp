#include "camera/capture_album_rules.hpp"

namespace velvault12 {

std::string captureAlbumAtStart(const std::vector<std::string>& remembered, bool rememberDefault) {
  if (remembered.empty() || !rememberDefault) return std::string(kCameraRoll);
  return remembered.front();
}

}  // namespace velvault12
