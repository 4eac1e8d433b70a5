#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

/// Leaves the album views before the app goes to the background, so that an opened locked album is not on
/// screen when it comes back. Where the app lives in scenes (iOS 13 and later) it has no such method, and
/// this is never called.
void appEnteredBackground(PhotosApplication app, Replaced<void(UIApplication)> host, UIApplication argument);

/// `returnToMainView`: does so as far as the settings want it.
void returnToMainView(PhotosApplication app);

}  // namespace velvault12
