#include "photos/list/album_selection.hpp"

#include "photos/list/album_lock.hpp"
#include "photos/list/album_title.hpp"
#include "photos/list/authentication_request.hpp"
#include "photos/list/picker.hpp"

namespace velvault12 {

namespace {

/// Whether the selection goes on to the host; if not, its owner has been asked for.
template <class Controller>
bool goesOn(Controller controller, NSIndexPath path) {
  AlbumLock& lock = albumLock();
  if (lock.takePass()) {
    lock.pendingSelection = {};
    // An answer can come when nothing waits; the host knows no selection of nothing.
    return static_cast<bool>(path);
  }
  const NSString title = titleAt(controller, path);
  lock.pendingSelection = {Ref(path), title.utf8()};
  if (!lock.isLocked(title.utf8())) return true;
  askOwner(controller, AuthenticationMethod::openAlbum, title);
  return false;
}

}  // namespace

void selectInStrip(PUHorizontalAlbumListGadget strip, Replaced<void(UICollectionView, NSIndexPath)> host,
                   UICollectionView view, NSIndexPath path) {
  if (goesOn(strip, path)) host(view, path);
}

void selectInList(PUAlbumListViewController list, Replaced<void(NSIndexPath)> host, NSIndexPath path) {
  albumLock().lockedAlbumOpened = false;
  if (goesOn(list, path)) chooseAlbum(list, path, host);
}

}  // namespace velvault12
