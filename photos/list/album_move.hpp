#pragma once

#include <string_view>

#include "host/foundation.hpp"
#include "host/uikit.hpp"

namespace velvault12 {

/// Where all photos of an album go, in and out of the camera roll; they stay in the album either way.
enum class AlbumMove { returnToCameraRoll, moveOut };

/// Shows or hides all photos of the first album of that title, and tells of it on the screen: as it begins
/// and when it is done, or that there is nothing to do. Nothing waits for it. Main thread only.
void moveAlbumPhotos(NSString title, AlbumMove move);

/// Asks which of the two it is to be for the album of that title, in a sheet that a pad points to that view.
void askWhereAlbumGoes(NSString album, std::string_view title, std::string_view message,
                       UIViewController presenter, UIView source);

/// Shows every hidden photo of the library again, in the same manner.
void returnAllPhotos();

}  // namespace velvault12
