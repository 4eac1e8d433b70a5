#pragma once

#include "benchmarks/bench.hpp"

namespace velvault12::benchmarks {

/// One layout pass of a tile whose album is shown, and of one whose album is locked.
Figures measureTileLayout();

/// One selection of an album in the list, which opens it.
Figures measureAlbumSelection();

/// Hooked methods that answer as the host does.
Figures measurePassThrough();

}  // namespace velvault12::benchmarks
