#pragma once

#import "device/frameworks/UIKit/UIViewController.h"

@interface UITabBarController : UIViewController {
  NSArray* _viewControllers;
  UITabBar* _tabBar;
  NSUInteger _selectedIndex;
}
@property(nonatomic, readonly) UITabBar* tabBar;
@property(nonatomic, copy) NSArray* viewControllers;
@property(nonatomic) NSUInteger selectedIndex;
@property(nonatomic, readonly) UIViewController* selectedViewController;
@end
