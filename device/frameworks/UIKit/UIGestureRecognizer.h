#pragma once

#import "device/frameworks/UIKit/UIView.h"

enum UIGestureRecognizerState : NSInteger {
  UIGestureRecognizerStatePossible = 0,
  UIGestureRecognizerStateBegan = 1,
  UIGestureRecognizerStateChanged = 2,
  UIGestureRecognizerStateEnded = 3,
  UIGestureRecognizerStateCancelled = 4,
  UIGestureRecognizerStateFailed = 5,
};

/// Neither its targets nor its delegate nor its view is retained; the view retains its recognizers.
@interface UIGestureRecognizer : NSObject {
  NSMutableArray* _targets;
  UIView* _view;
  id _delegate;
  NSInteger _state;
  BOOL _enabled;
}
- (id)initWithTarget:(id)target action:(SEL)action;
- (void)addTarget:(id)target action:(SEL)action;
@property(nonatomic, readonly) NSInteger state;
@property(nonatomic, readonly) UIView* view;
@property(nonatomic, assign) id delegate;
@property(nonatomic, getter=isEnabled) BOOL enabled;

- (void)_setView:(UIView*)view;
/// Whether the view and the delegate let it begin.
- (BOOL)_shouldBegin;
/// Enters a state and tells the targets of it, except of possible and failed.
- (void)_enterState:(NSInteger)state;
@end

@interface UITapGestureRecognizer : UIGestureRecognizer {
  NSUInteger _numberOfTapsRequired;
}
@property(nonatomic) NSUInteger numberOfTapsRequired;
@end

@interface UILongPressGestureRecognizer : UIGestureRecognizer {
  double _minimumPressDuration;
}
/// In seconds.
@property(nonatomic) double minimumPressDuration;
@end
