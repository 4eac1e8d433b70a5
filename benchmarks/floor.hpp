#pragma once

#include "host/foundation.hpp"
#include "startup/shared_files.hpp"

namespace velvault12::benchmarks {

/// One read of the list of locked albums, made into what is quickest to ask. A missing file has no titles.
inline Ref<NSSet> readLockedTitles() {
  const Ref<NSArray> titles = NSArray::contentsOfFile(kLockedAlbumsFile);
  return NSSet::of(titles.get());
}

}  // namespace velvault12::benchmarks
