#pragma once

#import "device/frameworks/UIKit/CALayer.h"
#import "device/frameworks/UIKit/CoreGraphics.h"
#import "device/frameworks/UIKit/UIColor.h"
#import "device/frameworks/UIKit/UIResponder.h"

@class UIGestureRecognizer, UIViewController, UIWindow;

enum UIViewAnimationOptions : NSUInteger { UIViewAnimationOptionAllowUserInteraction = 2 };

/// What of a view animations move.
struct UIViewLook {
  CGPoint center;
  CGRect bounds;
  CGAffineTransform transform;
  CGFloat alpha;

  CGRect frame() const;
};

@interface UIView : UIResponder {
  UIView* _superview;
  NSMutableArray* _subviews;
  NSMutableArray* _gestureRecognizers;
  UIViewController* _viewController;
  CALayer* _layer;
  UIColor* _backgroundColor;
  NSString* _accessibilityLabel;
  NSString* _accessibilityIdentifier;
  CGPoint _center;
  CGRect _bounds;
  CGAffineTransform _transform;
  CGFloat _alpha;
  struct UIViewAnimations* _animations;
  NSInteger _tag;
  BOOL _hidden;
  BOOL _autoresizesSubviews;
  BOOL _userInteractionEnabled;
  BOOL _needsLayout;
}

- (id)initWithFrame:(CGRect)frame;

@property(nonatomic) CGRect frame;
@property(nonatomic) CGRect bounds;
@property(nonatomic) CGPoint center;
@property(nonatomic) CGAffineTransform transform;
@property(nonatomic) CGFloat alpha;
@property(nonatomic, getter=isHidden) BOOL hidden;
@property(nonatomic) NSInteger tag;
@property(nonatomic, retain) UIColor* backgroundColor;
@property(nonatomic) BOOL clipsToBounds;
@property(nonatomic) BOOL autoresizesSubviews;
@property(nonatomic, getter=isUserInteractionEnabled) BOOL userInteractionEnabled;
@property(nonatomic, readonly) CALayer* layer;

@property(nonatomic, readonly) UIView* superview;
/// A copy, backmost first.
@property(nonatomic, readonly) NSArray* subviews;
@property(nonatomic, readonly) UIWindow* window;
- (void)addSubview:(UIView*)view;
- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index;
- (void)bringSubviewToFront:(UIView*)view;
- (void)removeFromSuperview;
- (UIView*)viewWithTag:(NSInteger)tag;

/// Nil when there are none.
@property(nonatomic, readonly) NSArray* gestureRecognizers;
- (void)addGestureRecognizer:(UIGestureRecognizer*)recognizer;
- (void)removeGestureRecognizer:(UIGestureRecognizer*)recognizer;
- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer*)recognizer;

- (void)setNeedsLayout;
/// Lays out the receiver and its descendants now, each only if it was marked.
- (void)layoutIfNeeded;
- (void)layoutSubviews;

/// A nil view stands for the window.
- (CGPoint)convertPoint:(CGPoint)point toView:(UIView*)view;
- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView*)view;
- (BOOL)pointInside:(CGPoint)point withEvent:(id)event;
/// The frontmost view that a finger at the point would touch, nil when it touches none.
- (UIView*)hitTest:(CGPoint)point withEvent:(id)event;

/// The block runs at once, and what it changes has its new value at once. Shown is the way there, which
/// begins after the delay; until its end, a view takes touches only with the option that allows them.
+ (void)animateWithDuration:(double)duration
                      delay:(double)delay
                    options:(NSUInteger)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;

/// As it is on screen at this moment, on its way where an animation runs.
@property(nonatomic, readonly) UIViewLook _shownLook;
/// Whether one of its animations has begun and is not over.
@property(nonatomic, readonly) BOOL _isMoving;

/// What the view says to a person: its text, where it has one.
@property(nonatomic, copy) NSString* accessibilityLabel;
@property(nonatomic, copy) NSString* accessibilityIdentifier;

- (UIViewController*)_viewControllerForAncestor;
/// The controller whose view the receiver is. Not retained.
@property(nonatomic, assign, setter=_setViewController:) UIViewController* _viewController;
@end
