#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velvault12 {

/// The titles of the locked albums, in the order in which they were locked. An album is known by its title
/// alone: two of one title are locked together, and a renamed one is no longer locked. Titles match only when
/// they are the same to the letter. An empty one is never locked: while titles are not shown, every tile is
/// called so.
class LockedTitles {
 public:
  LockedTitles() = default;
  explicit LockedTitles(std::vector<std::string> titles) : titles_(std::move(titles)) {}

  bool contains(std::string_view title) const;
  void add(std::string_view title);
  /// Every occurrence.
  void remove(std::string_view title);
  const std::vector<std::string>& all() const { return titles_; }

 private:
  std::vector<std::string> titles_;
};

/// What a long press on an album does.
enum class LongPressOutcome { lock, askOwner, removeLock };
LongPressOutcome longPressOutcome(bool isLocked, bool hasPass);

/// What entering a password comes to. Without a stored one anything unlocks; the comparison trims nothing.
enum class PasswordOutcome { unlocks, unlocksWithoutPassword, isWrong };
PasswordOutcome passwordOutcome(const std::optional<std::string>& stored, std::string_view entered);

/// Whether leaving the app takes its album views off the screen.
bool returnsToMainView(bool always, bool afterLockedAlbum, bool lockedAlbumOpened);

}  // namespace velvault12
