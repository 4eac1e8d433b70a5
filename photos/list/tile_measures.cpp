#include "photos/list/tile_measures.hpp"

#include "host/process_wide.hpp"
#include "photos/list/tile_measures_rules.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

bool isShrunk() { return isChosen(&Settings::shrinkAlbums); }

}  // namespace

void TileMeasures::measure() {
  albumSide = albumSize(UIScreen::mainScreen().bounds().size.width);
  overlaySide = albumSide;
}

TileMeasures& tileMeasures() {
  auto& measures = processWide<TileMeasures>();
  if (measures.albumSide == 0) measures.measure();
  return measures;
}

CGSize tileSize(PUAlbumListCellContentViewHelper, Replaced<CGSize()> host) {
  const CGSize size = host();
  if (!isShrunk()) return size;
  const int side = shrunkStackSide(tileMeasures().albumSide);
  return {static_cast<double>(side), shrunkTileHeight(side, size.width, size.height)};
}

CGSize stackSize(PUAlbumListCellContentViewHelperConfiguration, Replaced<CGSize()> host) {
  if (!isShrunk()) return host();
  const double side = shrunkStackSide(tileMeasures().albumSide);
  return {side, side};
}

}  // namespace velvault12
