#pragma once

#include "host/photos_ui.hpp"

namespace velvault12 {

/// `syncAlbums`: asks what is to be moved, by what is on top: the list of albums can have all of the
/// library's photos returned to the camera roll, an open album its own returned or moved out. Over anything
/// else it does nothing.
void syncAlbums(PUNavigationController navigation);

}  // namespace velvault12
