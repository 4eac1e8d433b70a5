#pragma once

#include "host/photos_ui.hpp"

namespace velvault12 {

// The title of the album that the strip or the list shows at a place, or in a tile. A tile that is out of
// sight has none to tell, nor has any while titles are not shown; the album has it all the same.

NSString titleAt(PUHorizontalAlbumListGadget strip, NSIndexPath path);
NSString titleAt(PUAlbumListViewController list, NSIndexPath path);
NSString titleOf(PUAlbumListViewController list, PUAlbumListCellContentView tile);

/// Whether it is called as the camera roll is on an English phone.
bool isCameraRoll(PHCollection collection);

}  // namespace velvault12
