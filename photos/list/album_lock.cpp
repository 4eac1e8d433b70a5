#include "photos/list/album_lock.hpp"

#include <algorithm>

#include "host/process_wide.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

bool AlbumLock::reload() {
  File read = readStrings(kLockedAlbumsFile);
  const bool isThere = read.has_value();
  if (read != expected_ && std::find(outdated_.begin(), outdated_.end(), read) != outdated_.end())
    return isThere;
  outdated_.clear();
  titles_ = LockedTitles(read.value_or(std::vector<std::string>()));
  expected_ = std::move(read);
  return isThere;
}

void AlbumLock::lock(std::string_view title) {
  titles_.add(title);
  save();
}

void AlbumLock::removeLock(std::string_view title) {
  titles_.remove(title);
  save();
}

void AlbumLock::save() {
  // Once each: while nobody saves, the same states come again and again.
  if (std::find(outdated_.begin(), outdated_.end(), expected_) == outdated_.end())
    outdated_.push_back(expected_);
  expected_ = titles_.all();
  saveArray(titles_.all(), kLockedAlbumsFile);
}

AlbumLock& albumLock() { return processWide<AlbumLock>(); }

}  // namespace velvault12
