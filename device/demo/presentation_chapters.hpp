#pragma once

#include "device/demo/phone.hpp"
#include "device/demo/story.hpp"

namespace device {

/// How Photos looks: its tabs, its tiles, an album's grid, the viewer.
void tellPresentation(Story& story, Phone& phone);

}  // namespace device
