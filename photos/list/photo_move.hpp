#pragma once

#include "host/photos_ui.hpp"

namespace velvault12 {

// What the user's selected photos leave and come back to: the camera roll, by being hidden and shown again,
// and the album that they were selected in. Without a selection nothing happens but the log's line. Nothing
// waits: the photo library makes one change after the other, in its own time.

// `reloadCameraRollWithMove:` of the strip and the list, each under its name in the log: takes the photos out
// of the camera roll and out of their album, before the host puts them into another. Not to be moved, they
// stay.
void stripReloadCameraRoll(PUHorizontalAlbumListGadget strip, bool move);
void listReloadCameraRoll(PUAlbumListViewController list, bool move);

/// `returnSelectedPhotos:` brings the photos back to the camera roll, out of their album only if they are to
/// be moved, and ends the selection.
void returnSelectedPhotos(PUAlbumListViewController list, bool move);

/// `handleCameraTap:` asks which of the two, if an album has been opened at all. A pad's sheet points to the
/// sender, a button of a bar.
void handleCameraTap(PUAlbumListViewController list, Object sender);

}  // namespace velvault12
