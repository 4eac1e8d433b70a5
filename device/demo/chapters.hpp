#pragma once

#include "device/demo/phone.hpp"
#include "device/demo/story.hpp"

namespace device {

// The parts of the story, after Photos has listed all of its albums. Each begins where the one before it
// ends.

/// An album is locked, opened by its owner or with the password, and made free again.
void tellAlbumLock(Story& story, Phone& phone);

/// Captures go into a new album, and the Camera remembers it.
void tellCamera(Story& story, Phone& phone);

/// Tiles show locks and hidden photos; albums and photos are moved out of the camera roll and come back.
void tellPhotos(Story& story, Phone& phone);

/// Another app, Photos and a shop's demonstration show one library.
void tellLibraryFilter(Story& story, Phone& phone);

/// Photos has other tabs, tiles, grids and another viewer.
void tellPresentation(Story& story, Phone& phone);

}  // namespace device
