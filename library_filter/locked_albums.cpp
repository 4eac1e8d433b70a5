#include "library_filter/locked_albums.hpp"

#include <utility>
#include <vector>

#include "host/reference.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

std::unordered_set<std::string> readTitles() {
  // An app may fetch from thousands of albums before its own pool is drained.
  const AutoreleasePool pool;
  std::unordered_set<std::string> titles;
  for (std::string& title : readStrings(kLockedAlbumsFile).value_or(std::vector<std::string>()))
    titles.insert(std::move(title));
  return titles;
}

}  // namespace

bool LockedAlbums::contains(std::string_view title) {
  if (!titles_) titles_ = readTitles();
  return titles_->count(std::string(title)) > 0;
}

}  // namespace velvault12
