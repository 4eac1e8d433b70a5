#pragma once

#import "device/frameworks/CameraUI/CAMBottomBar.h"
#import "device/frameworks/CameraUI/CAMCaptureEngine.h"

/// The camera's screen. Its shutter reads "Take Picture" or "Record Video", the button that switches between
/// the two "Video" or "Photo".
@interface CAMViewfinderViewController : UIViewController <CAMCaptureEngineDelegate> {
  CAMCaptureEngine* _captureEngine;
  CAMBottomBar* _bottomBar;
  NSInteger _mediaType;
}
@property(nonatomic, readonly) CAMCaptureEngine* _captureEngine;
@property(nonatomic, readonly) CAMBottomBar* _bottomBar;
@end
