#pragma once

#include "host/uikit.hpp"
#include "photos/cells/tile_layout_rules.hpp"

namespace velvault12 {

// The rules' frames are the host's rectangles.

inline Frame frameOf(UIView view) {
  const CGRect frame = view.frame();
  return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
}

inline void place(UIView view, const Frame& frame) {
  view.setFrame({{frame.x, frame.y}, {frame.width, frame.height}});
}

}  // namespace velvault12
