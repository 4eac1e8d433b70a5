#include "library_filter/collection_traits.hpp"

#include <cstdint>

namespace velvault12 {

CollectionTraits traitsOf(PHAssetCollection collection) {
  CollectionTraits traits;
  traits.type = static_cast<CollectionTraits::Type>(collection.type());
  traits.subtype = static_cast<std::int64_t>(collection.subtype());
  traits.tellsSubtype = collection.tellsSubtype();
  traits.isTrashBin = collection.isTrashBin();
  if (const NSString title = collection.title()) traits.title = title.utf8();
  return traits;
}

}  // namespace velvault12
