#import "device/frameworks/PhotosUI/PUTabbedLibraryViewController.h"

#import "device/frameworks/PhotosUI/PUAlbumsGadgetViewController.h"
#import "device/frameworks/PhotosUI/PUPhotosGridViewController.h"

@implementation PUNavigationController

- (UIViewController*)_currentToolbarViewController {
  return [self topViewController];
}

@end

@implementation PUTabbedLibraryViewController

- (id)init {
  self = [super init];
  if (!self) return nil;
  NSMutableArray* tabs = [NSMutableArray array];
  const Class roots[] = {[PUZoomableGridViewController class], [PUAlbumsGadgetViewController class]};
  for (const Class root : roots) {
    UIViewController* controller = [[[root alloc] init] autorelease];
    PUNavigationController* tab = [PUNavigationController alloc];
    tab = [[tab initWithRootViewController:controller] autorelease];
    [tab setTabBarItem:[controller tabBarItem]];
    [tabs addObject:tab];
  }
  [self setViewControllers:tabs];
  [self setSelectedIndex:[tabs count] - 1];
  return self;
}

- (UINavigationController*)selectedNavigationController {
  return static_cast<UINavigationController*>([self selectedViewController]);
}

@end

@implementation PLPhotosApplication

- (void)dealloc {
  [_window release];
  [_tabbedLibraryViewController release];
  [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
  _tabbedLibraryViewController = [[PUTabbedLibraryViewController alloc] init];
  _window = [[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
  [_window setRootViewController:_tabbedLibraryViewController];
  [_window makeKeyAndVisible];
}

- (PUTabbedLibraryViewController*)_tabbedLibraryViewController {
  return _tabbedLibraryViewController;
}

@end
