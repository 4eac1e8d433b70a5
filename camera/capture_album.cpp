#include "camera/capture_album.hpp"

#include <vector>

#include "host/process_wide.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

void CaptureAlbum::readAtStart() {
  const std::vector<std::string> remembered =
      readStrings(kCaptureAlbumFile).value_or(std::vector<std::string>());
  title_ = captureAlbumAtStart(remembered, settings().rememberDefault);
}

CaptureAlbum& captureAlbum() { return processWide<CaptureAlbum>(); }

}  // namespace velvault12
