#import "device/frameworks/UIKit/UINavigationController.h"

namespace {
constexpr CGFloat kStatusBarHeight = 44;
constexpr CGFloat kNavigationBarHeight = 44;
constexpr CGFloat kToolbarHeight = 44;
}  // namespace

@implementation UINavigationController

@synthesize toolbar = _toolbar;
@synthesize toolbarHidden = _toolbarHidden;

- (id)init {
  self = [super init];
  if (!self) return nil;
  _viewControllers = [[NSArray alloc] init];
  _navigationBar = [[UINavigationBar alloc] init];
  [_navigationBar setDelegate:self];
  _toolbar = [[UIToolbar alloc] init];
  _toolbarHidden = YES;
  return self;
}

- (id)initWithRootViewController:(UIViewController*)root {
  self = [self init];
  if (self) [self pushViewController:root animated:NO];
  return self;
}

- (void)dealloc {
  [_navigationBar setDelegate:nil];
  [_navigationBar release];
  [_toolbar release];
  [_viewControllers release];
  [super dealloc];
}

- (UINavigationBar*)navigationBar {
  return _navigationBar;
}

- (void)viewDidLoad {
  [super viewDidLoad];
  [[self view] addSubview:[self navigationBar]];
  [[self view] addSubview:_toolbar];
  if (UIViewController* top = [self topViewController]) [[self view] insertSubview:[top view] atIndex:0];
}

- (void)viewWillLayoutSubviews {
  [super viewWillLayoutSubviews];
  const CGSize size = [[self view] bounds].size;
  constexpr CGFloat kTop = kStatusBarHeight + kNavigationBarHeight;
  [_navigationBar setFrame:CGRectMake(0, kStatusBarHeight, size.width, kNavigationBarHeight)];
  const CGFloat end = size.height - (_toolbarHidden ? 0 : kToolbarHeight);
  [_toolbar setItems:[[self topViewController] toolbarItems]];
  [_toolbar setHidden:_toolbarHidden];
  [_toolbar setFrame:CGRectMake(0, end, size.width, kToolbarHeight)];
  [[[self topViewController] view] setFrame:CGRectMake(0, kTop, size.width, end - kTop)];
}

- (void)setToolbarHidden:(BOOL)hidden {
  [self setToolbarHidden:hidden animated:NO];
}

- (void)setToolbarHidden:(BOOL)hidden animated:(BOOL)animated {
  _toolbarHidden = hidden;
  [[self viewIfLoaded] setNeedsLayout];
}

- (NSArray*)viewControllers {
  return [NSArray arrayWithArray:_viewControllers];
}

- (UIViewController*)topViewController {
  return [_viewControllers lastObject];
}

- (NSArray*)_childrenOnScreen {
  return [_viewControllers count] ? [NSArray arrayWithObject:[self topViewController]] : nil;
}

- (void)setViewControllers:(NSArray*)controllers {
  [self setViewControllers:controllers animated:NO];
}

- (void)setViewControllers:(NSArray*)controllers animated:(BOOL)animated {
  NSArray* left = [_viewControllers autorelease];
  UIViewController* old = [self topViewController];
  _viewControllers = [controllers copy];
  for (UIViewController* controller in _viewControllers) [self addChildViewController:controller];
  [[self navigationBar] setItems:[_viewControllers valueForKey:@"navigationItem"]];
  if ([self viewIfLoaded]) {
    [self _replaceOnScreen:old with:[self topViewController] in:[self view] animated:animated];
  }
  for (UIViewController* controller in left) {
    if (![_viewControllers containsObject:controller]) [controller removeFromParentViewController];
  }
}

- (void)pushViewController:(UIViewController*)controller animated:(BOOL)animated {
  if ([_viewControllers containsObject:controller]) {
    [NSException
         raise:NSInvalidArgumentException
        format:@"Pushing the same view controller instance more than once is not supported (%@)", controller];
  }
  [self setViewControllers:[_viewControllers arrayByAddingObject:controller] animated:animated];
}

- (NSArray*)_popToCount:(NSUInteger)count animated:(BOOL)animated {
  if ([_viewControllers count] <= count) return nil;
  NSArray* popped = [_viewControllers subarrayWithRange:NSMakeRange(count, [_viewControllers count] - count)];
  [self setViewControllers:[_viewControllers subarrayWithRange:NSMakeRange(0, count)] animated:animated];
  return popped;
}

- (UIViewController*)popViewControllerAnimated:(BOOL)animated {
  const NSUInteger count = [_viewControllers count];
  return count > 1 ? [[self _popToCount:count - 1 animated:animated] lastObject] : nil;
}

- (NSArray*)popToRootViewControllerAnimated:(BOOL)animated {
  return [self _popToCount:1 animated:animated];
}

- (void)_navigationBarWantsBack:(UINavigationBar*)bar {
  [self popViewControllerAnimated:YES];
}

@end
