#pragma once

#include "host/photos.hpp"
#include "library_filter/collection_rules.hpp"

namespace velvault12 {

/// What decides over a collection, asked of it. Whatever object stands in a list may be asked.
CollectionTraits traitsOf(PHAssetCollection collection);

}  // namespace velvault12
