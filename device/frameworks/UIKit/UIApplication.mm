#import "device/frameworks/UIKit/UIApplication.h"

#include <vector>

#import "device/frameworks/UIKit/UIDevice.h"
#import "device/frameworks/UIKit/UIViewController.h"

struct UIApplicationWindows {
  std::vector<UIWindow*> visible;
};

namespace {
UIApplication* theApplication = nil;
}

@implementation UIWindow

@synthesize rootViewController = _rootViewController;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _hidden = YES;
  // What a phone's apps set themselves.
  [self setBackgroundColor:[UIColor whiteColor]];
  return self;
}

- (void)dealloc {
  [[UIApplication sharedApplication] _window:self isVisible:NO];
  [_rootViewController release];
  [super dealloc];
}

- (UIWindow*)window {
  return self;
}

- (UIResponder*)nextResponder {
  return [UIApplication sharedApplication];
}

- (void)setRootViewController:(UIViewController*)controller {
  if (controller == _rootViewController) return;
  if (!_hidden) [self _rootAppears:NO];
  [[_rootViewController viewIfLoaded] removeFromSuperview];
  [_rootViewController release];
  _rootViewController = [controller retain];
  if (!_hidden) [self _rootAppears:YES];
}

- (void)_rootAppears:(BOOL)appears {
  if (!appears) {
    [_rootViewController _willDisappear:NO];
    [_rootViewController _didDisappear:NO];
    return;
  }
  [_rootViewController _willAppear:NO];
  [[_rootViewController view] setFrame:[self bounds]];
  [self insertSubview:[_rootViewController view] atIndex:0];
  [self layoutIfNeeded];
  [_rootViewController _didAppear:NO];
}

- (void)setHidden:(BOOL)hidden {
  if (hidden == _hidden) return;
  [super setHidden:hidden];
  [[UIApplication sharedApplication] _window:self isVisible:!hidden];
  [self _rootAppears:!hidden];
}

- (void)makeKeyAndVisible {
  [self setHidden:NO];
  [[UIApplication sharedApplication] _makeKeyWindow:self];
}

@end

@implementation UIApplication

@synthesize keyWindow = _keyWindow;
@synthesize _isInBackground = _inBackground;
@synthesize _isLayoutScheduled = _layoutScheduled;

+ (UIApplication*)sharedApplication {
  return theApplication;
}

- (id)init {
  if (theApplication) {
    [NSException raise:NSInternalInconsistencyException
                format:@"There can only be one UIApplication instance."];
  }
  self = [super init];
  if (!self) return nil;
  _windows = new UIApplicationWindows;
  // For as long as the process lives.
  theApplication = [self retain];
  return self;
}

- (void)dealloc {
  [_ownWindow release];
  theApplication = nil;
  delete _windows;
  [super dealloc];
}

- (NSArray*)windows {
  return [NSArray arrayWithObjects:_windows->visible.data() count:_windows->visible.size()];
}

- (void)_window:(UIWindow*)window isVisible:(BOOL)visible {
  auto& windows = _windows->visible;
  std::erase(windows, window);
  if (visible) windows.push_back(window);
  if (!visible && _keyWindow == window) _keyWindow = nil;
}

- (void)_makeKeyWindow:(UIWindow*)window {
  _keyWindow = window;
}

- (void)_show:(UIViewController*)controller {
  _ownWindow = [[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
  [_ownWindow setRootViewController:controller];
  [_ownWindow makeKeyAndVisible];
}

- (void)_scheduleLayout {
  if (_layoutScheduled) return;
  _layoutScheduled = YES;
  [NSTimer scheduledTimerWithTimeInterval:0
                                   target:self
                                 selector:@selector(_layoutWindows)
                                 userInfo:nil
                                  repeats:NO];
}

- (void)_layoutWindows {
  _layoutScheduled = NO;
  for (UIWindow* window in [self windows]) [window layoutIfNeeded];
}

- (void)_enterBackground {
  if (_inBackground) return;
  _inBackground = YES;
  if ([self respondsToSelector:@selector(applicationDidEnterBackground:)]) {
    [self applicationDidEnterBackground:self];
  }
}

- (void)_enterForeground {
  if (!_inBackground) return;
  _inBackground = NO;
  if ([self respondsToSelector:@selector(applicationWillEnterForeground:)]) {
    [self applicationWillEnterForeground:self];
  }
}

@end
