#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// A tile's two buttons, at its left edge while the album list is edited: one that moves its album's photos,
// one that locks the album or removes its lock.

/// `setEditing:animated:`.
void tileSetEditing(PUAlbumListCellContentView tile, Replaced<void(bool, bool)> host, bool editing,
                    bool animated);

/// `createButtons`: they slide in from the left. Those that are there stay.
void createButtons(PUAlbumListCellContentView tile);

// Wherever a tile's own button, the one that deletes its album, is laid out, the two others are there as
// well.

/// `layoutSubviews` of every button of its kind.
void buttonLayout(PXUIButton button, Replaced<void()> host);
/// `viewidLoad`, as it is spelled: lays the button out.
void buttonLoaded(PXUIButton button, Replaced<void()> host);

/// Puts them in their places; takes them away from a tile that is no longer to be edited.
void layOutButtons(PUAlbumListCellContentView tile);
void removeButtons(PUAlbumListCellContentView tile);

}  // namespace velvault12
