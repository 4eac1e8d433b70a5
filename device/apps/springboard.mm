#import "device/frameworks/UIKit/UIKit.h"

@interface FBSystemApp : UIApplication
@end

@implementation FBSystemApp
@end

@interface SpringBoard : FBSystemApp {
  UIWindow* _window;
}
@end

@implementation SpringBoard

- (void)dealloc {
  [_window release];
  [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
  _window = [[UIWindow alloc] _initShowing:[[[UIViewController alloc] init] autorelease]];
}

@end
