#include "photos/list/album_deletion.hpp"

#include "photos/list/album_lock.hpp"
#include "photos/list/album_title.hpp"
#include "photos/list/authentication_request.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

/// Adds the album itself, or all albums in the folder.
void collectAlbums(PHCollection collection, NSMutableArray albums) {
  if (const auto album = collection.as<PHAssetCollection>()) return albums.addObject(album);
  const auto folder = collection.as<PHCollectionList>();
  if (!folder) return;
  for (const auto member : PHCollection::fetchInFolder(folder)) collectAlbums(member, albums);
}

/// The title for whose owner is to be asked: the tile's own, or that of an album in its folder; nil when none
/// of them is locked.
NSString lockedTitle(NSString title, NSArray albums) {
  if (albumLock().isLocked(title.utf8())) return title;
  for (const Object album : albums) {
    const NSString inside = PHCollection(album.get()).localizedTitle();
    if (albumLock().isLocked(inside.utf8())) return inside;
  }
  return {};
}

/// Whether the deletion goes on to the host; if not, its owner has been asked for.
bool goesOn(PUAlbumListViewController list, PUAlbumListCellContentView tile, Object action, NSArray albums) {
  AlbumLock& lock = albumLock();
  if (lock.takePass()) {
    lock.pendingDeletion = {};
    // An answer can come when nothing waits.
    return static_cast<bool>(tile);
  }
  const NSString title = titleOf(list, tile);
  const NSString locked = lockedTitle(title, albums);
  if (!locked) return true;
  lock.pendingDeletion = {Ref(tile), Ref(action), title.utf8()};
  askOwner(list, AuthenticationMethod::deleteAlbum, locked);
  return false;
}

/// Whether no other album holds the photo.
bool isOnlyIn(NSArray albums, PHAsset photo) {
  // An album may hold thousands.
  const AutoreleasePool fetched;
  for (const auto album : PHAssetCollection::fetchContaining(photo, PHAssetCollection::Type::album)) {
    if (!albums.containsObject(album)) return false;
  }
  return true;
}

/// Photos that were moved out of the camera roll are hidden: once their album is gone, nothing would show
/// them.
void showPhotosOnlyIn(NSArray albums, PUAlbumListViewController list, PUAlbumListCellContentView tile,
                      Object action) {
  const auto photos = makeObject<NSMutableArray>();
  for (const Object album : albums) {
    for (const auto photo : PHAsset::fetchAllInAssetCollection(PHAssetCollection(album.get()))) {
      if (isOnlyIn(albums, photo)) photos->addObject(photo);
    }
  }
  log("-[<PUAlbumListViewController: %p> albumListCellContentView:%@ performDeleteAction:%@]: %@", list.get(),
      tile.get(), action.get(), photos->get());
  if (photos->count() > 0) PUAssetHidingHelper::apply(false, photos.get());
}

}  // namespace

bool skipDeleteConfirmation(PUDeletePhotosActionController, Replaced<bool()> host) {
  return isChosen(&Settings::skipDelete) || host();
}

void deleteAlbum(PUAlbumListViewController list, Replaced<void(PUAlbumListCellContentView, Object)> host,
                 PUAlbumListCellContentView tile, Object action) {
  const auto albums = makeObject<NSMutableArray>();
  collectAlbums(list.collectionOf(tile), albums.get());
  if (!goesOn(list, tile, action, albums.get())) return;
  showPhotosOnlyIn(albums.get(), list, tile, action);
  host(tile, action);
}

}  // namespace velvault12
