#pragma once

#include "host/camera_ui.hpp"
#include "host/hook.hpp"

namespace velvault12 {

/// The newest photo that is not hidden, so that a capture that was moved away is not shown; the host's own
/// thumbnail without any. Waits for the image: the host wants it at once.
UIImage newestThumbnail(CAMImageWell well, Replaced<UIImage()> host);

}  // namespace velvault12
