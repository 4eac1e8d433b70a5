#pragma once

#import "device/frameworks/Photos/PHAsset.h"

@class CAMCaptureEngine;

@interface AVCapturePhotoOutput : NSObject
@end

@interface AVCaptureResolvedPhotoSettings : NSObject {
  std::int64_t _uniqueID;
}
/// The capture's number.
@property(nonatomic, readonly) std::int64_t uniqueID;
@end

@protocol CAMCaptureEngineDelegate <NSObject>
/// On the main thread.
- (void)captureEngineDidFinishCapture:(CAMCaptureEngine*)engine;
@end

@interface CAMCaptureEngine : NSObject {
  id<CAMCaptureEngineDelegate> _delegate;
  AVCapturePhotoOutput* _output;
}
@property(nonatomic, assign) id<CAMCaptureEngineDelegate> delegate;
/// Stores a photo or video of this moment in the library, on a queue of its own.
- (void)_captureMediaType:(NSInteger)type;
/// The last callback of a capture, on that queue.
- (void)captureOutput:(AVCapturePhotoOutput*)output
    didFinishCaptureForResolvedSettings:(AVCaptureResolvedPhotoSettings*)settings
                                  error:(NSError*)error;
@end
