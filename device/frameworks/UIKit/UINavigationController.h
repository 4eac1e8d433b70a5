#pragma once

#import "device/frameworks/UIKit/UIViewController.h"

@interface UINavigationController : UIViewController {
  NSArray* _viewControllers;
  UINavigationBar* _navigationBar;
}
- (id)initWithRootViewController:(UIViewController*)root;
@property(nonatomic, readonly) UINavigationBar* navigationBar;
/// Root first.
@property(nonatomic, copy) NSArray* viewControllers;
@property(nonatomic, readonly) UIViewController* topViewController;
- (void)pushViewController:(UIViewController*)controller animated:(BOOL)animated;
/// What was popped, nil at the root.
- (UIViewController*)popViewControllerAnimated:(BOOL)animated;
- (NSArray*)popToRootViewControllerAnimated:(BOOL)animated;
- (void)setViewControllers:(NSArray*)controllers animated:(BOOL)animated;
@end
