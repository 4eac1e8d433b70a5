#import "device/frameworks/UIKit/UIView.h"

#include <algorithm>
#include <cmath>
#include <utility>

#import "device/frameworks/UIKit/UIApplication.h"
#import "device/frameworks/UIKit/UIDelayedBlock.h"
#import "device/frameworks/UIKit/UIGestureRecognizer.h"
#include "device/frameworks/UIKit/UIViewAnimations.hpp"
#import "device/frameworks/UIKit/UIViewController.h"

namespace {

template <class Value>
void change(UIViewAnimations*& animations, UIAnimatedProperty<Value> UIViewAnimations::*property,
            Value& value, Value next) {
  using Property = UIAnimatedProperty<Value>;
  if (UIViewAnimation::current && Property::numbersOf(value) != Property::numbersOf(next)) {
    if (!animations) animations = new UIViewAnimations;
    Property& animated = animations->*property;
    animated = {animated.shown(value), *UIViewAnimation::current};
  }
  value = next;
}

/// While a block runs, also where it raises.
class AnimationBlock {
 public:
  explicit AnimationBlock(const UIViewAnimation* animation)
      : outer_(std::exchange(UIViewAnimation::current, animation)) {}
  ~AnimationBlock() { UIViewAnimation::current = outer_; }
  AnimationBlock(const AnimationBlock&) = delete;
  AnimationBlock& operator=(const AnimationBlock&) = delete;

 private:
  const UIViewAnimation* outer_;
};

}  // namespace

CGRect UIViewLook::frame() const {
  const CGFloat width =
      std::abs(transform.a) * bounds.size.width + std::abs(transform.c) * bounds.size.height;
  const CGFloat height =
      std::abs(transform.b) * bounds.size.width + std::abs(transform.d) * bounds.size.height;
  return CGRectMake(center.x + transform.tx - width / 2, center.y + transform.ty - height / 2, width, height);
}

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
  delete _animations;
  [super dealloc];
}

// Geometry. Centre, bounds and transform are what is kept, as in a layer; the frame follows from them.

- (CGRect)frame {
  return UIViewLook{_center, _bounds, _transform, _alpha}.frame();
}

- (void)setFrame:(CGRect)frame {
  [self setCenter:CGRectGetCenter(frame)];
  [self setBounds:{_bounds.origin, frame.size}];
}

- (void)setBounds:(CGRect)bounds {
  const bool resized = !CGSizeEqualToSize(bounds.size, _bounds.size);
  change(_animations, &UIViewAnimations::bounds, _bounds, bounds);
  if (resized) [self setNeedsLayout];
}

- (void)setCenter:(CGPoint)center {
  change(_animations, &UIViewAnimations::center, _center, center);
}

- (void)setTransform:(CGAffineTransform)transform {
  change(_animations, &UIViewAnimations::transform, _transform, transform);
}

- (void)setAlpha:(CGFloat)alpha {
  change(_animations, &UIViewAnimations::alpha, _alpha, alpha);
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
  if ([self _animationKeepsTouchesAway]) return nil;
  if (![self pointInside:point withEvent:event]) return nil;
  for (UIView* subview in [[self subviews] reverseObjectEnumerator]) {
    UIView* hit = [subview hitTest:[subview convertPoint:point fromView:self] withEvent:event];
    if (hit) return hit;
  }
  return self;
}

// Animation.

- (BOOL)_animationKeepsTouchesAway {
  return _animations && _animations->any([](const UIViewAnimation& animation) {
    return !animation.takesTouches && !animation.isOver();
  });
}

- (BOOL)_isMoving {
  return _animations && _animations->any([](const UIViewAnimation& animation) {
    return animation.hasBegun() && !animation.isOver();
  });
}

+ (void)animateWithDuration:(double)duration
                      delay:(double)delay
                    options:(NSUInteger)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
  const UIViewAnimation animation = {
      .start = UIViewAnimation::now() + delay,
      .duration = duration,
      .takesTouches = (options & UIViewAnimationOptionAllowUserInteraction) != 0};
  {
    const AnimationBlock block(delay + duration > 0 ? &animation : nullptr);
    animations();
  }
  // Without a completion too: it wakes who waits to see the end.
  [UIDelayedBlock after:delay + duration
                perform:^{
                  if (completion) completion(YES);
                }];
}

- (UIViewLook)_shownLook {
  const UIViewLook look = {_center, _bounds, _transform, _alpha};
  if (!_animations) return look;
  return {_animations->center.shown(look.center), _animations->bounds.shown(look.bounds),
          _animations->transform.shown(look.transform), _animations->alpha.shown(look.alpha)};
}

@end
