#include "camera/capture_album.hpp"

#include "host/process_wide.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

void CaptureAlbum::readAtStart() {
  title_ = captureAlbumAtStart(readFirstString(kCaptureAlbumFile), settings().rememberDefault);
}

CaptureAlbum& captureAlbum() { return processWide<CaptureAlbum>(); }

}  // namespace velvault12
