#import "device/frameworks/Photos/PHImageManager.h"

#include <Block.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <memory>

#include "device/frameworks/Dispatch.hpp"
#import "device/frameworks/UIKit/UIImage.h"

namespace {

/// The pixels of every photo.
constexpr CGSize kOriginal = {3024, 4032};
/// What can be decoded fast comes in steps of so many pixels.
constexpr CGFloat kFastStep = 8;

CGFloat stepped(CGFloat pixels) { return std::ceil(pixels / kFastStep) * kFastStep; }

CGSize resized(CGSize target, NSInteger contentMode, NSInteger resizeMode) {
  if (resizeMode == PHImageRequestOptionsResizeModeNone) return kOriginal;
  const CGFloat across = target.width / kOriginal.width;
  const CGFloat down = target.height / kOriginal.height;
  const CGFloat scale =
      contentMode == PHImageContentModeAspectFill ? std::max(across, down) : std::min(across, down);
  const CGSize exact = {std::round(scale * kOriginal.width), std::round(scale * kOriginal.height)};
  if (resizeMode == PHImageRequestOptionsResizeModeExact) return exact;
  return {stepped(exact.width), stepped(exact.height)};
}

struct Delivery {
  void (^handler)(UIImage*, NSDictionary*);
  UIImage* image;
};

void deliver(void* context) {
  const std::unique_ptr<Delivery> delivery(static_cast<Delivery*>(context));
  delivery->handler(delivery->image, [NSDictionary dictionary]);
  Block_release(delivery->handler);
  [delivery->image release];
}

}  // namespace

@implementation PHImageRequestOptions

@synthesize synchronous = _synchronous;
@synthesize resizeMode = _resizeMode;

- (id)init {
  self = [super init];
  if (self) _resizeMode = PHImageRequestOptionsResizeModeFast;
  return self;
}

@end

@implementation PHImageManager

+ (PHImageManager*)defaultManager {
  static PHImageManager* const manager = [PHImageManager new];
  return manager;
}

- (std::int32_t)requestImageForAsset:(PHAsset*)asset
                          targetSize:(CGSize)target
                         contentMode:(NSInteger)mode
                             options:(PHImageRequestOptions*)options
                       resultHandler:(void (^)(UIImage*, NSDictionary*))handler {
  static std::atomic<std::int32_t> requests = 0;
  if (!asset) [NSException raise:NSInvalidArgumentException format:@"An image of no asset was asked for"];
  const NSInteger resizeMode = options ? [options resizeMode] : PHImageRequestOptionsResizeModeFast;
  UIImage* image = [UIImage _imageOfColor:[asset _pixelColor]
                                     size:resized(target, mode, resizeMode)
                                     name:[asset _words]];
  auto* const delivery = new Delivery{Block_copy(handler), [image retain]};
  if ([options isSynchronous]) {
    deliver(delivery);
  } else {
    dispatch_async_f(&_dispatch_main_q, delivery, deliver);
  }
  return ++requests;
}

@end
