#pragma once

namespace velvault12 {

/// All in points.
struct CGPoint {
  double x = 0;
  double y = 0;
};

struct CGSize {
  double width = 0;
  double height = 0;
};

struct CGRect {
  CGPoint origin;
  CGSize size;
};

}  // namespace velvault12
