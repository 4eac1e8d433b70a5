#pragma once

#import "device/frameworks/UIKit/UIViewController.h"

@interface UINavigationController : UIViewController {
  NSArray* _viewControllers;
  UINavigationBar* _navigationBar;
  UIToolbar* _toolbar;
  BOOL _toolbarHidden;
}
- (id)initWithRootViewController:(UIViewController*)root;
@property(nonatomic, readonly) UINavigationBar* navigationBar;
/// Shows the items of the controller on top, below it. Hidden at first.
@property(nonatomic, readonly) UIToolbar* toolbar;
@property(nonatomic, getter=isToolbarHidden) BOOL toolbarHidden;
- (void)setToolbarHidden:(BOOL)hidden animated:(BOOL)animated;
/// Root first.
@property(nonatomic, copy) NSArray* viewControllers;
@property(nonatomic, readonly) UIViewController* topViewController;
- (void)pushViewController:(UIViewController*)controller animated:(BOOL)animated;
/// What was popped, nil at the root.
- (UIViewController*)popViewControllerAnimated:(BOOL)animated;
- (NSArray*)popToRootViewControllerAnimated:(BOOL)animated;
- (void)setViewControllers:(NSArray*)controllers animated:(BOOL)animated;
@end
