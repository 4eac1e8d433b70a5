#pragma once

#include <string>

#include "camera/capture_album_rules.hpp"

namespace velvault12 {

/// The album that the Camera puts new captures into. Main thread only.
class CaptureAlbum {
 public:
  /// Takes the album last chosen from its file, as far as the settings want it remembered.
  void readAtStart();

  /// `kCameraRoll` for none.
  const std::string& title() const { return title_; }
  bool isCameraRoll() const { return title_ == kCameraRoll; }

  /// Takes that album from now on, and has it saved for the next start.
  void choose(std::string title);

 private:
  std::string title_{kCameraRoll};
};

/// The process's one.
CaptureAlbum& captureAlbum();

/// Whether captures may go into an album at all, as the settings say now. If not, there is no album button
/// either. Main thread.
bool isPickerOn();

}  // namespace velvault12
