#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

/// What all tiles share, in points. Main thread only.
struct TileMeasures {
  /// The side of an album's tile, by the screen as it was when the strip last came on it.
  int albumSide = 0;
  /// The side of a locked tile's overlay: an album's size when the strip comes on screen, then what the last
  /// large tile asked for.
  int overlaySide = 0;

  /// Measures by the screen as it is now.
  void measure();
};

/// The process's one, measured when it is first asked for.
TileMeasures& tileMeasures();

// Shrunk, a tile's stack of photos is smaller than the host's, and the tile is as wide as the stack.

/// `albumCellSize`.
CGSize tileSize(PUAlbumListCellContentViewHelper helper, Replaced<CGSize()> host);
/// `stackSize`.
CGSize stackSize(PUAlbumListCellContentViewHelperConfiguration configuration, Replaced<CGSize()> host);

}  // namespace velvault12
