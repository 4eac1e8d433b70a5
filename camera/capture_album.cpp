#include "camera/capture_album.hpp"

#include <utility>
#include <vector>

#include "host/process_wide.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

void CaptureAlbum::readAtStart() {
  title_ = captureAlbumAtStart(readFirstString(kCaptureAlbumFile), settings()->rememberDefault);
}

void CaptureAlbum::choose(std::string title) {
  title_ = std::move(title);
  saveArray(std::vector(1, title_), kCaptureAlbumFileToSave);
}

CaptureAlbum& captureAlbum() { return processWide<CaptureAlbum>(); }

bool isPickerOn() { return isChosen(&Settings::enableCameraPicker); }

}  // namespace velvault12
