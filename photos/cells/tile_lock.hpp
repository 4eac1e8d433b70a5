#pragma once

#include "host/photos_ui.hpp"

namespace velvault12 {

// What a tile's buttons do, and how a tile has its album's owner authenticated: as the lists do, with methods
// of its own.

/// What waits for the owner of a tile's album. It travels to SpringBoard and back as a number.
enum class TileMethod : int { lockAlbum = 0, moveAlbum = 1 };

/// Locks the album; of a locked one, asks for the owner, and then removes the lock. Without a list of locked
/// albums, which the strip and the list start as they come on screen, nothing happens.
void lockAlbum(PUAlbumListCellContentView tile);

/// Opens the sheet with which all photos of the album are moved; of a locked album, once its owner is known.
void askToMoveAlbum(PUAlbumListCellContentView tile);
void moveAlbum(PUAlbumListCellContentView tile);

/// `unlockAlbum:withAlbum:` asks as the lists do; the tile waits for the answer.
void tileUnlockAlbum(PUAlbumListCellContentView tile, int method, NSString album);

/// `requestPassword:`
void tileRequestPassword(PUAlbumListCellContentView tile, int method);

/// `unlockAuthorised:` goes on with what was held back, unless the tile shows another album by now. A method
/// that is none of the known ones only leaves the tiles authorised, and so does a move: the next lock is
/// removed without asking again. When nothing waits nothing happens.
void tileUnlockAuthorised(PUAlbumListCellContentView tile, int method);

}  // namespace velvault12
