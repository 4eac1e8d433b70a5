#pragma once

#include <string>

#include "camera/capture_album_rules.hpp"

namespace velvault12 {

/// The album that the Camera puts new captures into. Main thread only.
class CaptureAlbum {
 public:
  /// Takes the album last chosen from its file, as far as the settings want it remembered.
  void readAtStart();

  const std::string& title() const { return title_; }

 private:
  std::string title_{kCameraRoll};
};

/// The process's one.
CaptureAlbum& captureAlbum();

}  // namespace velvault12
