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

/// A point (x, y) goes to (a x + c y + tx, b x + d y + ty), y downwards.
struct CGAffineTransform {
  double a = 0;
  double b = 0;
  double c = 0;
  double d = 0;
  double tx = 0;
  double ty = 0;
};

}  // namespace velvault12
