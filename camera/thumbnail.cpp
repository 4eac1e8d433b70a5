#include "camera/thumbnail.hpp"

#include "camera/newest_photo.hpp"

namespace velvault12 {

namespace {

constexpr CGSize kThumbnailPixels{175, 175};

/// Autoreleased; nil when the host has none for it.
UIImage imageOf(const Ref<PHAsset>& photo) {
  const auto options = makeObject<PHImageRequestOptions>();
  options->setSynchronous(true);
  options->setResizeMode(PHImageRequestOptions::ResizeMode::exact);
  // The block owns where it puts the image, in case that the host comes back to it later.
  const Ref<NSMutableArray> received = makeObject<NSMutableArray>();
  PHImageManager::defaultManager().requestImage(
      photo.get(), kThumbnailPixels, PHImageManager::ContentMode::aspectFit, options.get(),
      block<void(UIImage, NSDictionary)>(
          [received](UIImage image, NSDictionary) { received->addObject(image); }));
  if (received->count() == 0) return {};
  return Ref(UIImage(received->objectAtIndex(0).get())).autorelease();
}

}  // namespace

UIImage newestThumbnail(CAMImageWell, Replaced<UIImage()> host) {
  const Ref<PHAsset> photo = newestPhoto();
  const UIImage image = photo ? imageOf(photo) : UIImage();
  return image ? image : host();
}

}  // namespace velvault12
