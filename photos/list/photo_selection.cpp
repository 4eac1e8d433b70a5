#include "photos/list/photo_selection.hpp"

#include "photos/list/controller_registry.hpp"
#include "photos/list/photo_selection_rules.hpp"

namespace velvault12 {

PhotoSelection photoSelection() {
  const ControllerRegistry& registry = controllerRegistry();
  const Ref<NSArray> inAlbum = selectedPhotos(registry.albumView.get());
  const Ref<NSArray> inGrid = selectedPhotos(registry.zoomableGrid.get());
  const Ref<NSArray> inContent = selectedPhotos(registry.photosContent.get());
  const Ref<NSArray> inLibrary = selectedPhotos(registry.curatedLibrary.get());
  switch (selectionSource({.albumView = inAlbum->count() > 0,
                           .zoomableGrid = inGrid->count() > 0,
                           .photosContent = inContent->count() > 0,
                           .curatedLibrary = inLibrary->count() > 0,
                           .gridShown = registry.gridShown})) {
    case SelectionSource::albumView:
      return {inAlbum, Ref(registry.albumView->assetCollection()), Ref<Object>(registry.albumView.get())};
    case SelectionSource::zoomableGrid:
      return {inGrid, {}, registry.zoomableGrid};
    case SelectionSource::photosContent:
      return {inContent, {}, registry.photosContent};
    case SelectionSource::curatedLibrary:
      return {inLibrary, {}, registry.curatedLibrary};
    case SelectionSource::none:
      break;
  }
  return {};
}

}  // namespace velvault12
