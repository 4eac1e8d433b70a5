#pragma once

#include "host/camera_ui.hpp"
#include "host/hook.hpp"

namespace velvault12 {

/// A capture is finished: a moment later its photo goes into the chosen album. On whatever thread the host
/// has for it.
void captureFinished(CAMCaptureEngine engine, Replaced<void(Object, Object, Object)> host, Object output,
                     Object resolvedSettings, Object error);

/// Adds the newest photo, whatever was captured, to the chosen album, which is made if there is none of that
/// title, and hides it from the camera roll if the user wants it moved. Waits for neither: until a photo is
/// hidden, the next move finds it again. With the camera roll chosen it does nothing. Main thread.
void movePhoto(CAMCaptureEngine engine);

}  // namespace velvault12
