#include "photos/list/album_lock.hpp"

#include "host/process_wide.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

bool AlbumLock::reload() {
  auto titles = readStrings(kLockedAlbumsFile);
  const bool wasThere = titles.has_value();
  titles_ = LockedTitles(std::move(titles).value_or(std::vector<std::string>()));
  return wasThere;
}

void AlbumLock::lock(std::string_view title) {
  titles_.add(title);
  save();
}

void AlbumLock::removeLock(std::string_view title) {
  titles_.remove(title);
  save();
}

void AlbumLock::save() const { saveArray(titles_.all(), kLockedAlbumsFile); }

AlbumLock& albumLock() { return processWide<AlbumLock>(); }

}  // namespace velvault12
