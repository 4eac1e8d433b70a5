#import "device/frameworks/PhotosUI/PUTabbedLibraryViewController.h"

#import "device/frameworks/PhotosUI/PUAlbumListViewController.h"
#import "device/frameworks/PhotosUI/PUAlbumsGadgetViewController.h"
#import "device/frameworks/PhotosUI/PUPhotosGridViewController.h"

namespace {

UIViewController* photos() { return [[[PUZoomableGridViewController alloc] init] autorelease]; }

UIViewController* memories() {
  UIViewController* screen = [[[UIViewController alloc] init] autorelease];
  [screen setTitle:@"Memories"];
  return screen;
}

PHCollectionList* sharedAlbums() { return PUCollectionsOfKinds(PUSharedAlbumKinds, @"Shared"); }

UIViewController* shared() {
  PUAlbumListViewController* list = [PUAlbumListViewController alloc];
  list = [[list _initFetchingCollectionList:sharedAlbums] autorelease];
  [list setTitle:@"Shared"];
  return list;
}

UIViewController* albums() { return [[[PUAlbumsGadgetViewController alloc] init] autorelease]; }

struct Tab {
  int contentMode;
  UIViewController* (*makeRoot)();
};

// The numbers are assumed: what a phone has there is not known.
constexpr Tab kTabs[] = {
    {0, photos},
    {11, memories},
    {12, shared},
    {13, albums},
};

bool contains(NSArray* contentModes, int contentMode) {
  for (id each in contentModes) {
    if (![each isKindOfClass:[NSNumber class]]) {
      [NSException raise:NSInvalidArgumentException format:@"%@ is no content mode", each];
    }
    if ([each intValue] == contentMode) return true;
  }
  return false;
}

}  // namespace

@implementation PUNavigationController

- (void)setViewControllers:(NSArray*)controllers animated:(BOOL)animated {
  UIViewController* old = [self topViewController];
  [super setViewControllers:controllers animated:animated];
  PUTabbedLibraryViewController* tabs =
      static_cast<PUTabbedLibraryViewController*>([self parentViewController]);
  if ([self topViewController] != old && [tabs selectedViewController] == self) [tabs _updateTabBar];
}

- (UIViewController*)_currentToolbarViewController {
  return [self topViewController];
}

@end

@implementation PUTabbedLibraryViewController

- (id)init {
  self = [super init];
  if (!self) return nil;
  NSArray* excluded = [self excludedContentModes];
  NSMutableArray* tabs = [NSMutableArray array];
  for (const Tab& kind : kTabs) {
    if (contains(excluded, kind.contentMode)) continue;
    UIViewController* root = kind.makeRoot();
    PUNavigationController* tab = [PUNavigationController alloc];
    tab = [[tab initWithRootViewController:root] autorelease];
    [tab setTabBarItem:[root tabBarItem]];
    [tabs addObject:tab];
  }
  [self setViewControllers:tabs];
  [self setSelectedIndex:[tabs count] - 1];
  return self;
}

- (NSArray*)excludedContentModes {
  return [NSArray array];
}

- (void)setSelectedIndex:(NSUInteger)index {
  [super setSelectedIndex:index];
  [self _updateTabBar];
}

- (void)_updateTabBar {
  UIViewController* top = [[self selectedNavigationController] topViewController];
  [[self tabBar] setHidden:![top pu_wantsTabBarVisible]];
}

- (UINavigationController*)selectedNavigationController {
  return static_cast<UINavigationController*>([self selectedViewController]);
}

@end

@implementation PLPhotosApplication

- (void)applicationDidFinishLaunching:(UIApplication*)application {
  _tabbedLibraryViewController = [[[PUTabbedLibraryViewController alloc] init] autorelease];
  [self _show:_tabbedLibraryViewController];
}

- (PUTabbedLibraryViewController*)_tabbedLibraryViewController {
  return _tabbedLibraryViewController;
}

@end
