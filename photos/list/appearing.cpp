#include "photos/list/appearing.hpp"

#include "host/process_wide.hpp"
#include "host/reference.hpp"
#include "photos/list/album_lock.hpp"
#include "photos/list/controller_registry.hpp"
#include "photos/list/list_editing.hpp"
#include "photos/list/tile_measures.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

struct AlbumPaths {
  Ref<NSMutableDictionary> known;
};

void reloadLockedAlbums() {
  if (!albumLock().reload()) albumLock().save();
}

void reloadAlbumPaths() {
  processWide<AlbumPaths>().known = mutableCopy(NSDictionary::contentsOfFile(kLockedAlbumsPathsFile));
}

}  // namespace

void stripWillAppear(PUHorizontalAlbumListGadget strip, Replaced<void(bool)> host, bool animated) {
  host(animated);
  if (!isEnabled()) return;
  tileMeasures().measure();
  reloadLockedAlbums();
  controllerRegistry().lastRequesting = Ref<Object>(strip);
}

void listWillAppear(PUAlbumListViewController list, Replaced<void(bool)> host, bool animated) {
  host(animated);
  controllerRegistry().albumList = Ref<Object>(list);
  if (!isEnabled()) return;
  reloadLockedAlbums();
  reloadAlbumPaths();
}

void listDidLayoutSubviews(PUAlbumListViewController list, Replaced<void()> host) {
  host();
  controllerRegistry().albumList = Ref<Object>(list);
  updateBarButtons(list);
}

void listWillBeginDragging(PUAlbumListViewController list, Replaced<void(UIScrollView)> host,
                           UIScrollView view) {
  host(view);
  if (isEnabled()) list.reloadContentView();
}

}  // namespace velvault12
