#include "photos/list/appearing.hpp"

#include "photos/list/album_lock.hpp"
#include "photos/list/controller_registry.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

void reloadLockedAlbums() {
  if (!albumLock().reload()) albumLock().save();
}

}  // namespace

void stripWillAppear(PUHorizontalAlbumListGadget strip, Replaced<void(bool)> host, bool animated) {
  host(animated);
  if (!settings().enabled) return;
  reloadLockedAlbums();
  controllerRegistry().lastRequesting = Ref<Object>(strip);
}

void listWillAppear(PUAlbumListViewController list, Replaced<void(bool)> host, bool animated) {
  host(animated);
  controllerRegistry().albumList = Ref<Object>(list);
  if (settings().enabled) reloadLockedAlbums();
}

void listDidLayoutSubviews(PUAlbumListViewController list, Replaced<void()> host) {
  host();
  controllerRegistry().albumList = Ref<Object>(list);
}

}  // namespace velvault12
