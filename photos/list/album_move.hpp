#pragma once

#include "host/foundation.hpp"

namespace velvault12 {

/// Where all photos of an album go, in and out of the camera roll; they stay in the album either way.
enum class AlbumMove { returnToCameraRoll, moveOut };

/// Shows or hides all photos of the first album of that title, and tells of it on the screen: as it begins
/// and when it is done, or that there is nothing to do. Nothing waits for it. Main thread only.
void moveAlbumPhotos(NSString title, AlbumMove move);

/// Shows every hidden photo of the library again, in the same manner.
void returnAllPhotos();

}  // namespace velvault12
