#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// What is on screen is recorded, so that it is known where its user selects photos and which album is open.

void albumViewSetAlbum(PUPhotosAlbumViewController view,
                       Replaced<void(PHAssetCollection, Object, NSPredicate, Object)> host,
                       PHAssetCollection album, Object containingResult, NSPredicate filter,
                       Object existingResults);
void gridWillAppear(PUZoomableGridViewController grid, Replaced<void(bool)> host, bool animated);
void contentWillAppear(PXPhotosContentController content, Replaced<void(bool)> host, bool animated);
void curatedLibraryWillAppear(PXCuratedLibraryUIViewController library, Replaced<void(bool)> host,
                              bool animated);

}  // namespace velvault12
