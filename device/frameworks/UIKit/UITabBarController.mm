#import "device/frameworks/UIKit/UITabBarController.h"

#import "device/frameworks/UIKit/UINavigationController.h"

namespace {
constexpr CGFloat kTabBarHeight = 83;
}

@implementation UITabBarController

@synthesize tabBar = _tabBar;
@synthesize selectedIndex = _selectedIndex;

- (id)init {
  self = [super init];
  if (!self) return nil;
  _tabBar = [[UITabBar alloc] init];
  [_tabBar setDelegate:self];
  return self;
}

- (void)dealloc {
  [_tabBar setDelegate:nil];
  [_tabBar release];
  [_viewControllers release];
  [super dealloc];
}

- (void)viewDidLoad {
  [super viewDidLoad];
  [[self view] addSubview:_tabBar];
  if (UIViewController* selected = [self selectedViewController]) {
    [[self view] insertSubview:[selected view] atIndex:0];
  }
}

- (void)viewWillLayoutSubviews {
  [super viewWillLayoutSubviews];
  const CGSize size = [[self view] bounds].size;
  const CGFloat contentHeight = size.height - ([_tabBar isHidden] ? 0 : kTabBarHeight);
  [_tabBar setFrame:CGRectMake(0, size.height - kTabBarHeight, size.width, kTabBarHeight)];
  [[[self selectedViewController] view] setFrame:CGRectMake(0, 0, size.width, contentHeight)];
}

- (NSArray*)viewControllers {
  return _viewControllers;
}

- (void)setViewControllers:(NSArray*)controllers {
  UIViewController* old = [self selectedViewController];
  NSArray* left = [_viewControllers autorelease];
  _viewControllers = [controllers copy];
  _selectedIndex = 0;
  for (UIViewController* controller in _viewControllers) [self addChildViewController:controller];
  [_tabBar setItems:[_viewControllers valueForKey:@"tabBarItem"]];
  if ([self viewIfLoaded]) {
    [self _replaceOnScreen:old with:[self selectedViewController] in:[self view] animated:NO];
  }
  for (UIViewController* controller in left) {
    if (![_viewControllers containsObject:controller]) [controller removeFromParentViewController];
  }
}

- (UIViewController*)selectedViewController {
  return _selectedIndex < [_viewControllers count] ? [_viewControllers objectAtIndex:_selectedIndex] : nil;
}

- (void)setSelectedIndex:(NSUInteger)index {
  UIViewController* old = [self selectedViewController];
  _selectedIndex = index;
  [_tabBar setSelectedItem:[[self selectedViewController] tabBarItem]];
  if (![self viewIfLoaded]) return;
  [self _replaceOnScreen:old with:[self selectedViewController] in:[self view] animated:NO];
}

- (NSArray*)_childrenOnScreen {
  UIViewController* selected = [self selectedViewController];
  return selected ? [NSArray arrayWithObject:selected] : nil;
}

/// Touching the tab that is already selected leads back to its first screen.
- (void)tabBar:(UITabBar*)bar didSelectItem:(UITabBarItem*)item {
  const NSUInteger index = [[bar items] indexOfObjectIdenticalTo:item];
  UIViewController* selected = [self selectedViewController];
  if (index != _selectedIndex) {
    [self setSelectedIndex:index];
  } else if ([selected isKindOfClass:[UINavigationController class]]) {
    [static_cast<UINavigationController*>(selected) popToRootViewControllerAnimated:YES];
  }
}

@end
