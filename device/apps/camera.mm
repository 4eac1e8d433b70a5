#import "device/frameworks/CameraUI/CAMViewfinderViewController.h"

@interface CameraApplication : UIApplication {
  UIWindow* _window;
}
@end

@implementation CameraApplication

- (void)dealloc {
  [_window release];
  [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
  _window = [[UIWindow alloc] _initShowing:[[[CAMViewfinderViewController alloc] init] autorelease]];
}

@end
