#pragma once

#include "device/demo/phone.hpp"
#include "device/demo/story.hpp"

namespace device {

/// What another app, Photos and a shop's demonstration show of one library, as albums are locked and switched
/// off. Begins with SpringBoard open, and "Holidays" locked and moved out of the camera roll.
void tellLibraryFilter(Story& story, Phone& phone);

}  // namespace device
