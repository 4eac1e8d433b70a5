#include "photos/list/return_to_main.hpp"

#include "photos/list/album_lock.hpp"
#include "photos/list/lock_rules.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

void appEnteredBackground(PhotosApplication app, Replaced<void(UIApplication)> host, UIApplication argument) {
  if (isEnabled()) returnToMainView(app);
  host(argument);
}

void returnToMainView(PhotosApplication app) {
  const auto chosen = settings();
  if (!returnsToMainView(chosen->returnToMainDefault, chosen->returnToMainLocked,
                         albumLock().lockedAlbumOpened))
    return;
  app.tabbedLibraryViewController().selectedNavigationController().popToRoot(true);
}

}  // namespace velvault12
