#import "device/frameworks/CameraUI/CAMViewfinderViewController.h"

@interface CameraApplication : UIApplication
@end

@implementation CameraApplication

- (void)applicationDidFinishLaunching:(UIApplication*)application {
  [self _show:[[[CAMViewfinderViewController alloc] init] autorelease]];
}

@end
