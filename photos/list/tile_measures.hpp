#pragma once

namespace velvault12 {

/// What all tiles share, in points. Main thread only.
struct TileMeasures {
  /// The side of a locked tile's overlay: an album's size when the strip comes on screen, then what the last
  /// large tile asked for.
  int overlaySide = 0;
};

/// The process's one.
TileMeasures& tileMeasures();

}  // namespace velvault12
