#pragma once

#include "device/frameworks/Photos/photo_database.hpp"

namespace device {

/// The photo library of the phone whose app this process is. Each thread has a connection of its own, opened
/// when first asked for.
PhotoDatabase& sharedPhotoDatabase();

}  // namespace device
