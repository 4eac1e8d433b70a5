#include "photos/list/photo_selection_rules.hpp"

namespace velvault12 {

SelectionSource selectionSource(const SelectionSources& sources) {
  if (sources.albumView && !sources.gridShown) return SelectionSource::albumView;
  if (sources.zoomableGrid) return SelectionSource::zoomableGrid;
  if (sources.photosContent) return SelectionSource::photosContent;
  if (sources.curatedLibrary) return SelectionSource::curatedLibrary;
  return sources.albumView ? SelectionSource::albumView : SelectionSource::none;
}

}  // namespace velvault12
