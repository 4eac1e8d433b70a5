#include "photos/cells/albums_tab.hpp"

namespace velvault12 {

namespace {

// Where tiles lie below the tab's view, whatever lies between on the versions of the app.
constexpr int kHighestTile = 5;
constexpr int kLowestTile = 8;

void layOutTilesIn(UIView view, int depth) {
  if (depth > kLowestTile) return;
  for (const Object each : view.subviews()) {
    const UIView subview(each.get());
    if (depth >= kHighestTile) subview.layoutSubviews();
    layOutTilesIn(subview, depth + 1);
  }
}

}  // namespace

void albumsTabWillAppear(PUAlbumsGadgetViewController tab, Replaced<void(bool)> host, bool animated) {
  host(animated);
  layOutTilesIn(tab.collectionView(), 1);
}

}  // namespace velvault12
