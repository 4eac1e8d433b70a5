#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/photos_ui.hpp"
#include "host/reference.hpp"
#include "photos/list/lock_rules.hpp"

namespace velvault12 {

/// The Photos app's locked albums, and what waits for their owner. Main thread only.
class AlbumLock {
 public:
  /// Reads the list of locked albums afresh. Answers whether there was one; without one no album is locked. A
  /// file that is still as it was before a change made here does not count: the change is on its way to it.
  bool reload();
  /// As the last reload, or the last change since, left it.
  bool isLocked(std::string_view title) const { return titles_.contains(title); }
  void lock(std::string_view title);
  void removeLock(std::string_view title);
  /// Has the list saved as it is.
  void save();

  /// The unlock pass lets one action through, whichever comes first, and is then gone. Given and not used, it
  /// stays.
  void givePass() { hasPass_ = true; }
  bool hasPass() const { return hasPass_; }
  /// Uses the pass up; answers whether there was one.
  bool takePass() { return std::exchange(hasPass_, false); }

  /// A tile was told that its owner is known, and has not removed a lock since. It is no pass: it lets a tile
  /// remove the next lock, whichever album's it is.
  bool tileAuthorised = false;

  /// An album was opened with the pass, and no other one chosen in the list since.
  bool lockedAlbumOpened = false;

  // The last action of each kind, which runs again once its owner is known, and the title of the album that
  // it was meant for: by then, the place or the tile may show another one.
  struct Selection {
    Ref<NSIndexPath> path;
    std::string title;
  };
  struct LongPress {
    Ref<UIGestureRecognizer> recognizer;
    std::string title;
  };
  struct Deletion {
    Ref<PUAlbumListCellContentView> tile;
    Ref<Object> action;
    std::string title;
  };
  struct TileAction {
    Ref<PUAlbumListCellContentView> tile;
    int method = 0;
    std::string title;
  };
  Selection pendingSelection;
  LongPress pendingLongPress;
  Deletion pendingDeletion;
  TileAction pendingTileAction;

 private:
  using File = std::optional<std::vector<std::string>>;

  LockedTitles titles_;
  /// What the file holds or will, once all that was sent has been saved, and what it holds until then.
  File expected_;
  std::vector<File> outdated_;
  bool hasPass_ = false;
};

/// The process's one.
AlbumLock& albumLock();

}  // namespace velvault12
