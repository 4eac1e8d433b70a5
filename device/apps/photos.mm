#import "device/frameworks/PhotosUI/PUTabbedLibraryViewController.h"

@interface PhotosApplication : PLPhotosApplication
@end

@implementation PhotosApplication

- (void)applicationDidFinishLaunching:(UIApplication*)application {
  [super applicationDidFinishLaunching:application];
}

- (void)applicationDidEnterBackground:(UIApplication*)application {
}

@end
