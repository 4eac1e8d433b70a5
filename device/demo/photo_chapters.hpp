#pragma once

#include "device/demo/phone.hpp"
#include "device/demo/story.hpp"

namespace device {

/// How tiles tell of locks and hidden photos, how albums and photos are moved out of the camera roll and come
/// back. Begins with SpringBoard open and the album "Party" as the Camera left it, ends without it.
void tellPhotos(Story& story, Phone& phone);

}  // namespace device
