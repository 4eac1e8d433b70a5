#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

/// Leaves the album views before the app goes to the background, so that an opened locked album is not on
/// screen when it comes back.
void appEnteredBackground(PhotosApplication app, Replaced<void(UIApplication)> host, UIApplication argument);

/// `returnToMainView`: does so as far as the settings want it.
void returnToMainView(PhotosApplication app);

}  // namespace velvault12
