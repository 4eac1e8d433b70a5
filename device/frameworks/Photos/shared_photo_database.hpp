#pragma once

#include "device/frameworks/Photos/photo_database.hpp"

namespace device {

/// The photo library of the phone whose app this process is, opened when first asked for. Main thread only.
PhotoDatabase& sharedPhotoDatabase();

}  // namespace device
