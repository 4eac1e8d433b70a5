#include "photos/list/lock_rules.hpp"

#include <algorithm>

namespace velvault12 {

bool LockedTitles::contains(std::string_view title) const {
  return !title.empty() && std::find(titles_.begin(), titles_.end(), title) != titles_.end();
}

void LockedTitles::add(std::string_view title) {
  if (!title.empty()) titles_.emplace_back(title);
}

void LockedTitles::remove(std::string_view title) { std::erase(titles_, title); }

LongPressOutcome longPressOutcome(bool isLocked, bool hasPass) {
  if (!isLocked) return LongPressOutcome::lock;
  return hasPass ? LongPressOutcome::removeLock : LongPressOutcome::askOwner;
}

PasswordOutcome passwordOutcome(const std::optional<std::string>& stored, std::string_view entered) {
  if (!stored) return PasswordOutcome::unlocksWithoutPassword;
  return *stored == entered ? PasswordOutcome::unlocks : PasswordOutcome::isWrong;
}

bool returnsToMainView(bool always, bool afterLockedAlbum, bool lockedAlbumOpened) {
  return always || (afterLockedAlbum && lockedAlbumOpened);
}

}  // namespace velvault12
