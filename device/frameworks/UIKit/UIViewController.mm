#import "device/frameworks/UIKit/UIViewController.h"

#import "device/frameworks/UIKit/UIApplication.h"
#import "device/frameworks/UIKit/UIDelayedBlock.h"
#import "device/frameworks/UIKit/UIDevice.h"
#import "device/frameworks/UIKit/UINavigationController.h"

/// Lies between what is presented and what is behind it, which it dims, and takes the touches for it.
@interface UITransitionView : UIView
@end

@implementation UITransitionView
@end

@implementation UIViewController

@synthesize parentViewController = _parentViewController;
@synthesize editing = _editing;
@synthesize toolbarItems = _toolbarItems;

- (void)dealloc {
  for (UIViewController* child in _childViewControllers) child->_parentViewController = nil;
  [_view _setViewController:nil];
  [_view release];
  [_presentationContainer removeFromSuperview];
  [_presentationContainer release];
  [_childViewControllers release];
  [_presentedViewController release];
  [_navigationItem release];
  [_tabBarItem release];
  [_toolbarItems release];
  [_title release];
  [super dealloc];
}

// The view.

- (UIView*)view {
  if (!_view) {
    [self loadView];
    [self viewDidLoad];
  }
  return _view;
}

- (UIView*)viewIfLoaded {
  return _view;
}

- (void)setView:(UIView*)view {
  if (view == _view) return;
  [_view _setViewController:nil];
  [_view release];
  _view = [view retain];
  [_view _setViewController:self];
}

- (void)loadView {
  [self setView:[[[UIView alloc] initWithFrame:[[UIScreen mainScreen] bounds]] autorelease]];
}

- (void)viewDidLoad {
}

- (void)viewWillAppear:(BOOL)animated {
}

- (void)viewDidAppear:(BOOL)animated {
}

- (void)viewWillDisappear:(BOOL)animated {
}

- (void)viewDidDisappear:(BOOL)animated {
}

- (void)viewWillLayoutSubviews {
}

- (void)viewDidLayoutSubviews {
}

- (UIResponder*)nextResponder {
  return [_view superview];
}

// What bars show of it.

- (NSString*)title {
  return _title;
}

- (void)setTitle:(NSString*)title {
  if (title != _title) {
    [_title release];
    _title = [title copy];
  }
  [[self navigationItem] setTitle:title];
  [[self tabBarItem] setTitle:title];
}

- (UINavigationItem*)navigationItem {
  if (!_navigationItem) {
    _navigationItem = [[UINavigationItem alloc] init];
    [_navigationItem setTitle:_title];
  }
  return _navigationItem;
}

- (UITabBarItem*)tabBarItem {
  if (!_tabBarItem) {
    _tabBarItem = [[UITabBarItem alloc] init];
    [_tabBarItem setTitle:_title];
  }
  return _tabBarItem;
}

- (void)setTabBarItem:(UITabBarItem*)item {
  if (item == _tabBarItem) return;
  [_tabBarItem release];
  _tabBarItem = [item retain];
}

- (void)setToolbarItems:(NSArray*)items {
  [_toolbarItems autorelease];
  _toolbarItems = [items copy];
  [[[self navigationController] viewIfLoaded] setNeedsLayout];
}

- (void)setEditing:(BOOL)editing {
  [self setEditing:editing animated:NO];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
  _editing = editing;
}

// Containment.

- (NSArray*)childViewControllers {
  return [NSArray arrayWithArray:_childViewControllers];
}

- (void)addChildViewController:(UIViewController*)child {
  if (child->_parentViewController == self) return;
  [[child retain] autorelease];
  [child removeFromParentViewController];
  if (!_childViewControllers) _childViewControllers = [[NSMutableArray alloc] init];
  [_childViewControllers addObject:child];
  child->_parentViewController = self;
}

- (void)removeFromParentViewController {
  UIViewController* parent = _parentViewController;
  _parentViewController = nil;
  [[self retain] autorelease];
  if (parent) [parent->_childViewControllers removeObjectIdenticalTo:self];
}

- (UINavigationController*)navigationController {
  UIViewController* ancestor = _parentViewController;
  while (ancestor && ![ancestor isKindOfClass:[UINavigationController class]])
    ancestor = ancestor->_parentViewController;
  return static_cast<UINavigationController*>(ancestor);
}

// Presentation. The outermost controller of a hierarchy presents for all of it.

- (UIViewController*)_outermostController {
  return _parentViewController ? [_parentViewController _outermostController] : self;
}

- (UIViewController*)presentedViewController {
  return [self _outermostController]->_presentedViewController;
}

- (void)_checkPresentation {
  if (!_presentingViewController && !_parentViewController) return;
  [NSException raise:NSInvalidArgumentException
              format:@"Application tried to present modally an active controller %@.", self];
}

- (void)presentViewController:(UIViewController*)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion {
  if (!controller) {
    [NSException raise:NSInvalidArgumentException
                format:@"Application tried to present a nil modal view controller on target %@.", self];
  }
  [controller _checkPresentation];
  UIViewController* presenter = [self _outermostController];
  UIWindow* window = [[self view] window];
  if (!window) {
    NSLog(@"Warning: Attempt to present %@ on %@ whose view is not in the window hierarchy!", controller,
          self);
    return;
  }
  if (presenter->_presentedViewController) {
    NSLog(@"Warning: Attempt to present %@ on %@ which is already presenting %@", controller, self,
          presenter->_presentedViewController);
    return;
  }
  presenter->_presentedViewController = [controller retain];
  controller->_presentingViewController = presenter;
  [controller _appearIn:window animated:animated];
  if (completion) [UIDelayedBlock after:0 perform:completion];
}

- (void)_appearIn:(UIWindow*)window animated:(BOOL)animated {
  _presentationContainer = [[UITransitionView alloc] initWithFrame:[window bounds]];
  [_presentationContainer setBackgroundColor:[UIColor colorWithWhite:0 alpha:0.4]];
  [self _willAppear:animated];
  [_presentationContainer addSubview:[self view]];
  [window addSubview:_presentationContainer];
  [_presentationContainer layoutIfNeeded];
  [self _didAppear:animated];
}

- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion {
  UIViewController* outermost = [self _outermostController];
  UIViewController* presenter =
      outermost->_presentedViewController ? outermost : outermost->_presentingViewController;
  [presenter _dismissPresented:animated];
  if (completion) completion();
}

- (void)_dismissPresented:(BOOL)animated {
  UIViewController* presented = [_presentedViewController autorelease];
  if (!presented) return;
  [presented _dismissPresented:animated];
  [presented _willDisappear:animated];
  _presentedViewController = nil;
  presented->_presentingViewController = nil;
  [presented->_presentationContainer removeFromSuperview];
  [presented->_presentationContainer release];
  presented->_presentationContainer = nil;
  [presented->_view removeFromSuperview];
  [presented _didDisappear:animated];
}

// Appearance.

- (NSArray*)_childrenOnScreen {
  return [self childViewControllers];
}

- (void)_willAppear:(BOOL)animated {
  if (_appeared) return;
  _appeared = YES;
  [self view];
  [self viewWillAppear:animated];
  for (UIViewController* child in [self _childrenOnScreen]) [child _willAppear:animated];
}

- (void)_didAppear:(BOOL)animated {
  [self viewDidAppear:animated];
  for (UIViewController* child in [self _childrenOnScreen]) [child _didAppear:animated];
}

- (void)_willDisappear:(BOOL)animated {
  if (!_appeared) return;
  _appeared = NO;
  [self viewWillDisappear:animated];
  for (UIViewController* child in [self _childrenOnScreen]) [child _willDisappear:animated];
}

- (void)_didDisappear:(BOOL)animated {
  [self viewDidDisappear:animated];
  for (UIViewController* child in [self _childrenOnScreen]) [child _didDisappear:animated];
}

- (void)_replaceOnScreen:(UIViewController*)old
                    with:(UIViewController*)child
                      in:(UIView*)container
                animated:(BOOL)animated {
  if (old == child) return;
  if (_appeared) {
    [old _willDisappear:animated];
    [child _willAppear:animated];
  }
  [[old viewIfLoaded] removeFromSuperview];
  if (child) [container insertSubview:[child view] atIndex:0];
  [container setNeedsLayout];
  if (!_appeared) return;
  [container layoutIfNeeded];
  [old _didDisappear:animated];
  [child _didAppear:animated];
}

@end
