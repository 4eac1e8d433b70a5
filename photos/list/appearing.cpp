#include "photos/list/appearing.hpp"

#include "photos/list/album_lock.hpp"
#include "photos/list/controller_registry.hpp"
#include "photos/list/list_editing.hpp"
#include "photos/list/tile_measures.hpp"
#include "photos/list/tile_measures_rules.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

void reloadLockedAlbums() {
  if (!albumLock().reload()) albumLock().save();
}

}  // namespace

void stripWillAppear(PUHorizontalAlbumListGadget strip, Replaced<void(bool)> host, bool animated) {
  host(animated);
  if (!settings()->enabled) return;
  tileMeasures().overlaySide = albumSize(UIScreen::mainScreen().bounds().size.width);
  reloadLockedAlbums();
  controllerRegistry().lastRequesting = Ref<Object>(strip);
}

void listWillAppear(PUAlbumListViewController list, Replaced<void(bool)> host, bool animated) {
  host(animated);
  controllerRegistry().albumList = Ref<Object>(list);
  if (settings()->enabled) reloadLockedAlbums();
}

void listDidLayoutSubviews(PUAlbumListViewController list, Replaced<void()> host) {
  host();
  controllerRegistry().albumList = Ref<Object>(list);
  updateBarButtons(list);
}

}  // namespace velvault12
