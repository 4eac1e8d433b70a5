#pragma once

#include "host/photos_ui.hpp"
#include "host/reference.hpp"

namespace velvault12 {

/// The photos that the user has selected, and where.
struct PhotoSelection {
  /// Without a selection there is none.
  Ref<NSArray> photos;
  /// The album that they were selected in; none where they were selected in the whole library.
  Ref<PHAssetCollection> album;
  /// What shows them.
  Ref<Object> controller;
};

/// As it is now. Main thread only.
PhotoSelection photoSelection();

}  // namespace velvault12
