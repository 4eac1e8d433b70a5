#import "device/frameworks/UIKit/UIView.h"

#include <algorithm>
#include <cmath>

#import "device/frameworks/UIKit/UIApplication.h"
#import "device/frameworks/UIKit/UIDelayedBlock.h"
#import "device/frameworks/UIKit/UIGestureRecognizer.h"
#import "device/frameworks/UIKit/UIViewController.h"

@implementation UIView

@synthesize bounds = _bounds;
@synthesize center = _center;
@synthesize transform = _transform;
@synthesize alpha = _alpha;
@synthesize hidden = _hidden;
@synthesize tag = _tag;
@synthesize backgroundColor = _backgroundColor;
@synthesize autoresizesSubviews = _autoresizesSubviews;
@synthesize userInteractionEnabled = _userInteractionEnabled;
@synthesize layer = _layer;
@synthesize superview = _superview;
@synthesize accessibilityLabel = _accessibilityLabel;
@synthesize accessibilityIdentifier = _accessibilityIdentifier;
@synthesize _viewController = _viewController;

- (id)init {
  return [self initWithFrame:CGRectZero];
}

- (id)initWithFrame:(CGRect)frame {
  self = [super init];
  if (!self) return nil;
  _subviews = [[NSMutableArray alloc] init];
  _gestureRecognizers = [[NSMutableArray alloc] init];
  _layer = [[CALayer alloc] init];
  _transform = CGAffineTransformIdentity;
  _alpha = 1;
  _autoresizesSubviews = YES;
  _userInteractionEnabled = YES;
  [self setFrame:frame];
  [self setNeedsLayout];
  return self;
}

- (void)dealloc {
  for (UIView* subview in _subviews) subview->_superview = nil;
  for (UIGestureRecognizer* recognizer in _gestureRecognizers) [recognizer _setView:nil];
  [_subviews release];
  [_gestureRecognizers release];
  [_layer release];
  [_backgroundColor release];
  [_accessibilityLabel release];
  [_accessibilityIdentifier release];
  [super dealloc];
}

// Geometry. Centre, bounds and transform are what is kept, as in a layer; the frame follows from them.

- (CGRect)frame {
  const CGFloat width =
      std::abs(_transform.a) * _bounds.size.width + std::abs(_transform.c) * _bounds.size.height;
  const CGFloat height =
      std::abs(_transform.b) * _bounds.size.width + std::abs(_transform.d) * _bounds.size.height;
  return CGRectMake(_center.x + _transform.tx - width / 2, _center.y + _transform.ty - height / 2, width,
                    height);
}

- (void)setFrame:(CGRect)frame {
  [self setCenter:CGRectGetCenter(frame)];
  [self setBounds:{_bounds.origin, frame.size}];
}

- (void)setBounds:(CGRect)bounds {
  const bool resized = !CGSizeEqualToSize(bounds.size, _bounds.size);
  _bounds = bounds;
  if (resized) [self setNeedsLayout];
}

- (BOOL)clipsToBounds {
  return [_layer masksToBounds];
}

- (void)setClipsToBounds:(BOOL)clips {
  [_layer setMasksToBounds:clips];
}

// The tree.

- (NSArray*)subviews {
  return [NSArray arrayWithArray:_subviews];
}

- (UIWindow*)window {
  return [_superview window];
}

- (void)addSubview:(UIView*)view {
  [self insertSubview:view atIndex:static_cast<NSInteger>([_subviews count])];
}

- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index {
  if (!view) return;
  if (view == self) [NSException raise:NSInvalidArgumentException format:@"Can't add self as subview"];
  [[view retain] autorelease];
  [view removeFromSuperview];
  const auto end = static_cast<NSInteger>([_subviews count]);
  [_subviews insertObject:view atIndex:static_cast<NSUInteger>(std::clamp<NSInteger>(index, 0, end))];
  view->_superview = self;
  [self setNeedsLayout];
  if (view->_needsLayout) [view setNeedsLayout];
}

- (void)bringSubviewToFront:(UIView*)view {
  if (!view || view->_superview != self) return;
  [[view retain] autorelease];
  [_subviews removeObjectIdenticalTo:view];
  [_subviews addObject:view];
}

- (void)removeFromSuperview {
  UIView* superview = _superview;
  _superview = nil;
  [[self retain] autorelease];
  if (superview) [superview->_subviews removeObjectIdenticalTo:self];
}

- (UIView*)viewWithTag:(NSInteger)tag {
  if (_tag == tag) return self;
  for (UIView* subview in _subviews) {
    if (UIView* found = [subview viewWithTag:tag]) return found;
  }
  return nil;
}

- (UIResponder*)nextResponder {
  return _viewController ? static_cast<UIResponder*>(_viewController) : _superview;
}

- (UIViewController*)_viewControllerForAncestor {
  for (UIResponder* responder = self; responder; responder = [responder nextResponder]) {
    if ([responder isKindOfClass:[UIViewController class]]) return static_cast<UIViewController*>(responder);
  }
  return nil;
}

// Gestures.

- (NSArray*)gestureRecognizers {
  return [_gestureRecognizers count] ? [NSArray arrayWithArray:_gestureRecognizers] : nil;
}

- (void)addGestureRecognizer:(UIGestureRecognizer*)recognizer {
  [[recognizer retain] autorelease];
  [[recognizer view] removeGestureRecognizer:recognizer];
  [_gestureRecognizers addObject:recognizer];
  [recognizer _setView:self];
}

- (void)removeGestureRecognizer:(UIGestureRecognizer*)recognizer {
  if ([recognizer view] != self) return;
  [recognizer _setView:nil];
  [_gestureRecognizers removeObjectIdenticalTo:recognizer];
}

- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer*)recognizer {
  return YES;
}

// Layout.

- (void)setNeedsLayout {
  _needsLayout = YES;
  [[UIApplication sharedApplication] _scheduleLayout];
}

- (void)layoutIfNeeded {
  if (_needsLayout) {
    _needsLayout = NO;
    [_viewController viewWillLayoutSubviews];
    [self layoutSubviews];
    [_viewController viewDidLayoutSubviews];
  }
  for (UIView* subview in [self subviews]) [subview layoutIfNeeded];
}

- (void)layoutSubviews {
}

// Touches.

- (CGPoint)_convertPointToSuperview:(CGPoint)point {
  const CGRect frame = [self frame];
  return {point.x - _bounds.origin.x + frame.origin.x, point.y - _bounds.origin.y + frame.origin.y};
}

- (CGPoint)_convertPointToRoot:(CGPoint)point {
  for (UIView* view = self; view && view->_superview; view = view->_superview) {
    point = [view _convertPointToSuperview:point];
  }
  return point;
}

- (CGPoint)convertPoint:(CGPoint)point toView:(UIView*)view {
  point = [self _convertPointToRoot:point];
  if (!view) return point;
  const CGPoint origin = [view _convertPointToRoot:CGPointZero];
  return {point.x - origin.x, point.y - origin.y};
}

- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView*)view {
  if (view) return [view convertPoint:point toView:self];
  const CGPoint origin = [self _convertPointToRoot:CGPointZero];
  return {point.x - origin.x, point.y - origin.y};
}

- (BOOL)pointInside:(CGPoint)point withEvent:(id)event {
  return CGRectContainsPoint(_bounds, point);
}

- (UIView*)hitTest:(CGPoint)point withEvent:(id)event {
  if (_hidden || !_userInteractionEnabled || _alpha < 0.01) return nil;
  if (![self pointInside:point withEvent:event]) return nil;
  for (UIView* subview in [[self subviews] reverseObjectEnumerator]) {
    UIView* hit = [subview hitTest:[subview convertPoint:point fromView:self] withEvent:event];
    if (hit) return hit;
  }
  return self;
}

// Animation.

+ (void)animateWithDuration:(double)duration
                      delay:(double)delay
                    options:(NSUInteger)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
  if (delay > 0) {
    [UIDelayedBlock after:delay perform:animations];
  } else {
    animations();
  }
  if (!completion) return;
  [UIDelayedBlock after:delay + duration
                perform:^{
                  completion(YES);
                }];
}

@end
