#pragma once

#include "host/photos.hpp"

namespace velvault12 {

/// The photo that was taken last of those that are neither hidden nor videos; empty in a library without any.
Ref<PHAsset> newestPhoto();

}  // namespace velvault12
