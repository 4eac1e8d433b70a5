#pragma once

#include "device/demo/phone.hpp"
#include "device/demo/story.hpp"

namespace device {

/// How captures go into a new album, whether the Camera remembers it, and what another app sees meanwhile.
/// Begins with SpringBoard and Photos open.
void tellCamera(Story& story, Phone& phone);

}  // namespace device
