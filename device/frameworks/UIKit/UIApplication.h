#pragma once

#import "device/frameworks/UIKit/UIView.h"

@class UIViewController;

/// Hidden at first. Nobody but its maker retains it: a window that is let go of leaves the screen.
@interface UIWindow : UIView {
  UIViewController* _rootViewController;
}
@property(nonatomic, retain) UIViewController* rootViewController;
- (void)makeKeyAndVisible;
@end

/// One a process. It takes the part of its own delegate, as the system's apps do.
@interface UIApplication : UIResponder {
  struct UIApplicationWindows* _windows;
  UIWindow* _ownWindow;
  UIWindow* _keyWindow;
  BOOL _inBackground;
  BOOL _layoutScheduled;
}
+ (UIApplication*)sharedApplication;
@property(nonatomic, readonly) UIWindow* keyWindow;
/// The visible windows, backmost first.
@property(nonatomic, readonly) NSArray* windows;

/// Lays out all windows at the run loop's next turn.
- (void)_scheduleLayout;
@property(nonatomic, readonly) BOOL _isLayoutScheduled;
- (void)_layoutWindows;
- (void)_window:(UIWindow*)window isVisible:(BOOL)visible;
- (void)_makeKeyWindow:(UIWindow*)window;
/// Fills the screen with the controller at once, in a window of the app's own. Once an app.
- (void)_show:(UIViewController*)controller;

@property(nonatomic, readonly) BOOL _isInBackground;
- (void)_enterBackground;
- (void)_enterForeground;
@end

/// What an app's own application class may implement.
@interface NSObject (UIApplicationDelegate)
- (void)applicationDidFinishLaunching:(UIApplication*)application;
- (void)applicationDidEnterBackground:(UIApplication*)application;
- (void)applicationWillEnterForeground:(UIApplication*)application;
@end
