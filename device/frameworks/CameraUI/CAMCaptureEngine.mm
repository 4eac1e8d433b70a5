#import "device/frameworks/CameraUI/CAMCaptureEngine.h"

#include "device/frameworks/Dispatch.hpp"
#include "device/frameworks/Photos/photo_database.hpp"
#include "device/system/work_queue.hpp"

namespace {

device::WorkQueue& captureQueue() {
  static device::WorkQueue* const queue = new device::WorkQueue;
  return *queue;
}

/// What is in front of the lens, by the capture's number.
std::uint32_t colorOf(std::int64_t capture) {
  constexpr std::uint32_t kColors[] = {0x264653, 0xE76F51, 0xE9C46A, 0x9B5DE5, 0x00BBF9, 0xF15BB5};
  return kColors[static_cast<std::size_t>(capture) % std::size(kColors)];
}

}  // namespace

@implementation AVCapturePhotoOutput
@end

@implementation AVCaptureResolvedPhotoSettings

@synthesize uniqueID = _uniqueID;

+ (AVCaptureResolvedPhotoSettings*)_next {
  static std::int64_t captures = 0;
  AVCaptureResolvedPhotoSettings* settings = [[[self alloc] init] autorelease];
  settings->_uniqueID = ++captures;
  return settings;
}

@end

@implementation CAMCaptureEngine

@synthesize delegate = _delegate;

- (id)init {
  self = [super init];
  if (self) _output = [[AVCapturePhotoOutput alloc] init];
  return self;
}

- (void)dealloc {
  [_output release];
  [super dealloc];
}

- (void)_captureMediaType:(NSInteger)type {
  [self retain];
  captureQueue().post([self, type] {
    AVCaptureResolvedPhotoSettings* settings = [AVCaptureResolvedPhotoSettings _next];
    device::sharedPhotoDatabase().addAsset({.mediaType = static_cast<device::MediaType>(type),
                                            .creationDate = [[NSDate date] timeIntervalSince1970],
                                            .color = colorOf([settings uniqueID])});
    [self captureOutput:_output didFinishCaptureForResolvedSettings:settings error:nil];
    [self release];
  });
}

- (void)captureOutput:(AVCapturePhotoOutput*)output
    didFinishCaptureForResolvedSettings:(AVCaptureResolvedPhotoSettings*)settings
                                  error:(NSError*)error {
  dispatch_async_f(&_dispatch_main_q, [self retain], [](void* engine) {
    CAMCaptureEngine* self = [static_cast<CAMCaptureEngine*>(engine) autorelease];
    [self->_delegate captureEngineDidFinishCapture:self];
  });
}

@end
