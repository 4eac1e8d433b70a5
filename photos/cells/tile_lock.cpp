#include "photos/cells/tile_lock.hpp"

#include <string>
#include <utility>

#include "photos/list/album_lock.hpp"
#include "photos/list/album_move.hpp"
#include "photos/list/authentication_request.hpp"
#include "photos/list/controller_registry.hpp"

namespace velvault12 {

namespace {

void askOwner(PUAlbumListCellContentView tile, TileMethod method) {
  tileUnlockAlbum(tile, static_cast<int>(method), tile.title());
}

/// Whether the tile waits for that answer and still shows the album whose owner was asked. It waits once.
bool wasWaiting(PUAlbumListCellContentView tile, int method) {
  const auto pending = std::exchange(albumLock().pendingTileAction, {});
  return pending.tile.get() == tile && pending.method == method && pending.title == tile.title().utf8();
}

/// Shows the list as it is now. The strip does not know how.
void reloadAround(PUAlbumListCellContentView tile) {
  tile.viewControllerForAncestor().trySend<"reloadContentView", void()>();
}

void removeLock(PUAlbumListCellContentView tile, const std::string& title) {
  albumLock().removeLock(title);
  UIDevice::currentDevice().tick();
  reloadAround(tile);
  controllerRegistry().albumList->trySend<"viewDidLayoutSubviews", void()>();
}

}  // namespace

void lockAlbum(PUAlbumListCellContentView tile) {
  AlbumLock& lock = albumLock();
  const bool hasList = lock.reload();
  controllerRegistry().recordRequesting(tile);
  if (!hasList) return;
  const std::string title = tile.title().utf8();
  // While titles are not shown the tile does not know its album.
  if (title.empty()) return;
  if (!lock.isLocked(title)) {
    lock.lock(title);
    reloadAround(tile);
  } else if (std::exchange(lock.tileAuthorised, false)) {
    removeLock(tile, title);
  } else {
    askOwner(tile, TileMethod::lockAlbum);
  }
}

void askToMoveAlbum(PUAlbumListCellContentView tile) {
  albumLock().reload();
  if (albumLock().isLocked(tile.title().utf8())) {
    askOwner(tile, TileMethod::moveAlbum);
  } else {
    moveAlbum(tile);
  }
}

void moveAlbum(PUAlbumListCellContentView tile) {
  // The title and not the tile, which may show another album by then.
  const NSString title = tile.title();
  if (title.utf8().empty()) return;
  askWhereAlbumGoes(title, "Move Album", "Return album photos to the camera roll or move them out?",
                    tile.viewControllerForAncestor(), tile);
}

void tileUnlockAlbum(PUAlbumListCellContentView tile, int method, NSString album) {
  albumLock().pendingTileAction = {Ref(tile), method, tile.title().utf8()};
  unlockAlbum(tile, method, album);
}

void tileRequestPassword(PUAlbumListCellContentView tile, int method) {
  askForPassword(tile.viewControllerForAncestor(), tile, method, "Incorrect password.");
}

void tileUnlockAuthorised(PUAlbumListCellContentView tile, int method) {
  // Any process can say that there is an answer, and say it twice.
  if (!wasWaiting(tile, method)) return;
  AlbumLock& lock = albumLock();
  lock.tileAuthorised = true;
  switch (static_cast<TileMethod>(method)) {
    case TileMethod::lockAlbum:
      // Its lock may be gone by then: an answer never locks.
      if (lock.reload() && lock.isLocked(tile.title().utf8())) lockAlbum(tile);
      break;
    case TileMethod::moveAlbum:
      moveAlbum(tile);
      break;
  }
}

}  // namespace velvault12
