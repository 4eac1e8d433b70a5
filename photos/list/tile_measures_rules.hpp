#pragma once

namespace velvault12 {

/// The side of an album's tile, in whole points, on a screen of that width.
constexpr int albumSize(double screenWidth) { return static_cast<int>(screenWidth / 2.3 + 1.0); }

}  // namespace velvault12
