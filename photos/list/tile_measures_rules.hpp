#pragma once

#include <algorithm>

namespace velvault12 {

/// The side of an album's tile, in whole points, on a screen of that width.
constexpr int albumSize(double screenWidth) { return static_cast<int>(screenWidth / 2.3 + 1.0); }

/// The side of the stack of photos on a shrunk tile, in whole points.
constexpr int shrunkStackSide(int albumSize) { return albumSize * 2 / 3; }

/// The height of a shrunk tile. The host's tile is taken to be as wide as its stack, which is a square; what
/// it is higher, its texts have, and keep.
constexpr double shrunkTileHeight(int stackSide, double hostWidth, double hostHeight) {
  return stackSide + std::max(hostHeight - hostWidth, 0.0);
}

}  // namespace velvault12
