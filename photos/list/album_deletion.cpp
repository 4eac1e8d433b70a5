#include "photos/list/album_deletion.hpp"

#include "photos/list/album_lock.hpp"
#include "photos/list/authentication_request.hpp"

namespace velvault12 {

namespace {

/// Whether the deletion goes on to the host; if not, its owner has been asked for.
bool goesOn(PUAlbumListViewController list, PUAlbumListCellContentView tile, Object action) {
  AlbumLock& lock = albumLock();
  if (lock.takePass()) {
    lock.pendingDeletion = {};
    // An answer can come when nothing waits.
    return static_cast<bool>(tile);
  }
  const NSString title = tile.title();
  if (!title || !lock.isLocked(title.utf8())) return true;
  lock.pendingDeletion = {Ref(tile), Ref(action)};
  askOwner(list, AuthenticationMethod::deleteAlbum, title);
  return false;
}

}  // namespace

void deleteAlbum(PUAlbumListViewController list, Replaced<void(PUAlbumListCellContentView, Object)> host,
                 PUAlbumListCellContentView tile, Object action) {
  if (goesOn(list, tile, action)) host(tile, action);
}

}  // namespace velvault12
