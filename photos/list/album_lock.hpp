#pragma once

#include <string_view>
#include <utility>

#include "host/photos_ui.hpp"
#include "host/reference.hpp"
#include "photos/list/lock_rules.hpp"

namespace velvault12 {

/// The Photos app's locked albums, and what waits for their owner. Main thread only.
class AlbumLock {
 public:
  /// Reads the list of locked albums afresh. Answers whether there was one; without one no album is locked.
  bool reload();
  /// As the last reload, or the last change since, left it.
  bool isLocked(std::string_view title) const { return titles_.contains(title); }
  void lock(std::string_view title);
  void removeLock(std::string_view title);
  /// Has the list saved as it is.
  void save() const;

  /// The unlock pass lets one action through, whichever comes first, and is then gone. Given and not used, it
  /// stays.
  void givePass() { hasPass_ = true; }
  bool hasPass() const { return hasPass_; }
  /// Uses the pass up; answers whether there was one.
  bool takePass() { return std::exchange(hasPass_, false); }

  /// An album was opened with the pass, and no other one chosen in the list since.
  bool lockedAlbumOpened = false;

  /// The last action of each kind, which runs again once its owner is known.
  Ref<NSIndexPath> pendingSelection;
  Ref<UIGestureRecognizer> pendingLongPress;
  struct Deletion {
    Ref<PUAlbumListCellContentView> tile;
    Ref<Object> action;
  };
  Deletion pendingDeletion;

 private:
  LockedTitles titles_;
  bool hasPass_ = false;
};

/// The process's one.
AlbumLock& albumLock();

}  // namespace velvault12
