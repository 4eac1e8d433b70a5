#include "photos/list/tile_measures.hpp"

#include "host/process_wide.hpp"

namespace velvault12 {

TileMeasures& tileMeasures() { return processWide<TileMeasures>(); }

}  // namespace velvault12
