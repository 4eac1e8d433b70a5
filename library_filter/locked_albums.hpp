#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace velvault12 {

/// The titles of the locked albums for one call of a hook: read when first asked for, once, so that every
/// call goes by the file as it is. A title matches only to the letter. Any thread.
class LockedAlbums {
 public:
  bool contains(std::string_view title);

 private:
  std::optional<std::unordered_set<std::string>> titles_;
};

}  // namespace velvault12
