#import "device/frameworks/UIKit/UIKit.h"

@interface FBSystemApp : UIApplication
@end

@implementation FBSystemApp
@end

@interface SpringBoard : FBSystemApp
@end

@implementation SpringBoard

- (void)applicationDidFinishLaunching:(UIApplication*)application {
  [self _show:[[[UIViewController alloc] init] autorelease]];
}

@end
