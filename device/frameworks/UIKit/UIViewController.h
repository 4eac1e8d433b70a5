#pragma once

#import "device/frameworks/UIKit/UIBars.h"
#import "device/frameworks/UIKit/UIView.h"

@class UINavigationController;

@interface UIViewController : UIResponder {
  UIView* _view;
  UIView* _presentationContainer;
  UIViewController* _parentViewController;
  NSMutableArray* _childViewControllers;
  UIViewController* _presentedViewController;
  UIViewController* _presentingViewController;
  UINavigationItem* _navigationItem;
  UITabBarItem* _tabBarItem;
  NSArray* _toolbarItems;
  NSString* _title;
  BOOL _editing;
  BOOL _appeared;
}

/// Made by `loadView` when first asked for.
@property(nonatomic, retain) UIView* view;
@property(nonatomic, readonly) UIView* viewIfLoaded;
- (void)loadView;
- (void)viewDidLoad;
- (void)viewWillAppear:(BOOL)animated;
- (void)viewDidAppear:(BOOL)animated;
- (void)viewWillDisappear:(BOOL)animated;
- (void)viewDidDisappear:(BOOL)animated;
- (void)viewWillLayoutSubviews;
- (void)viewDidLayoutSubviews;

@property(nonatomic, copy) NSString* title;
@property(nonatomic, readonly) UINavigationItem* navigationItem;
@property(nonatomic, retain) UITabBarItem* tabBarItem;
@property(nonatomic, copy) NSArray* toolbarItems;
@property(nonatomic, getter=isEditing) BOOL editing;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;

@property(nonatomic, readonly) UIViewController* parentViewController;
@property(nonatomic, readonly) NSArray* childViewControllers;
@property(nonatomic, readonly) UINavigationController* navigationController;
- (void)addChildViewController:(UIViewController*)child;
- (void)removeFromParentViewController;

/// What the receiver or one of its ancestors presents.
@property(nonatomic, readonly) UIViewController* presentedViewController;
- (void)presentViewController:(UIViewController*)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion;
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion;

/// Raises when the controller is in no state to be presented.
- (void)_checkPresentation;

// The appearance calls, passed on to the children on screen.
- (void)_willAppear:(BOOL)animated;
- (void)_didAppear:(BOOL)animated;
- (void)_willDisappear:(BOOL)animated;
- (void)_didDisappear:(BOOL)animated;
/// The children that appear and disappear with the receiver: all of them, but for containers.
- (NSArray*)_childrenOnScreen;
/// Gives the place of the child's view `old` to that of `child`, at the back of `container`.
- (void)_replaceOnScreen:(UIViewController*)old
                    with:(UIViewController*)child
                      in:(UIView*)container
                animated:(BOOL)animated;
@end
