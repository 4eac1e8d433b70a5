#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// How an album's tile looks: padlock and overlay over a locked album, buttons while the list is edited,
// hidden photos counted, texts in the chosen size. A tile is used for one album after the other, so that
// every layout decides anew; nothing is kept beside the views, which are found again by their tags.

/// `layoutSubviews`.
void layOutTile(PUAlbumListCellContentView tile, Replaced<void()> host);

/// `title`: empty when titles are not shown. To whatever asks the tile, its album then has no name.
NSString tileTitle(PUAlbumListCellContentView tile, Replaced<NSString()> host);

}  // namespace velvault12
