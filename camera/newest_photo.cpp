#include "camera/newest_photo.hpp"

namespace velvault12 {

Ref<PHAsset> newestPhoto() {
  const auto options = makeObject<PHFetchOptions>();
  options->setSortDescriptors(NSArray::of(NSSortDescriptor::make("creationDate", true)));
  return Ref(PHAsset::fetchWithMediaType(PHAsset::MediaType::image, options.get()).lastObject());
}

}  // namespace velvault12
