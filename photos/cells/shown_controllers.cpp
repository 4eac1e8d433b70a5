#include "photos/cells/shown_controllers.hpp"

#include "photos/list/album_title.hpp"
#include "photos/list/controller_registry.hpp"

namespace velvault12 {

void albumViewSetAlbum(PUPhotosAlbumViewController view,
                       Replaced<void(PHAssetCollection, Object, NSPredicate, Object)> host,
                       PHAssetCollection album, Object containingResult, NSPredicate filter,
                       Object existingResults) {
  controllerRegistry().albumView = Ref(view);
  controllerRegistry().gridShown = false;
  controllerRegistry().albumIsCameraRoll = isCameraRoll(album);
  host(album, containingResult, filter, existingResults);
}

void gridWillAppear(PUZoomableGridViewController grid, Replaced<void(bool)> host, bool animated) {
  host(animated);
  controllerRegistry().recordLibrary(&ControllerRegistry::zoomableGrid, grid);
  controllerRegistry().gridShown = true;
}

void contentWillAppear(PXPhotosContentController content, Replaced<void(bool)> host, bool animated) {
  host(animated);
  controllerRegistry().recordLibrary(&ControllerRegistry::photosContent, content);
}

void curatedLibraryWillAppear(PXCuratedLibraryUIViewController library, Replaced<void(bool)> host,
                              bool animated) {
  host(animated);
  controllerRegistry().recordLibrary(&ControllerRegistry::curatedLibrary, library);
}

}  // namespace velvault12
