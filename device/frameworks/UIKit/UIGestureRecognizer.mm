#import "device/frameworks/UIKit/UIGestureRecognizer.h"

@implementation UIGestureRecognizer

@synthesize state = _state;
@synthesize view = _view;
@synthesize delegate = _delegate;
@synthesize enabled = _enabled;

- (id)init {
  return [self initWithTarget:nil action:NULL];
}

- (id)initWithTarget:(id)target action:(SEL)action {
  self = [super init];
  if (!self) return nil;
  _targets = [[NSMutableArray alloc] init];
  _enabled = YES;
  if (target) [self addTarget:target action:action];
  return self;
}

- (void)dealloc {
  [_targets release];
  [super dealloc];
}

- (void)addTarget:(id)target action:(SEL)action {
  [_targets addObject:[UITargetAction target:target action:action events:0]];
}

- (void)_setView:(UIView*)view {
  _view = view;
}

- (BOOL)_shouldBegin {
  if (![_view gestureRecognizerShouldBegin:self]) return NO;
  if (_delegate == _view || ![_delegate respondsToSelector:@selector(gestureRecognizerShouldBegin:)])
    return YES;
  return [_delegate gestureRecognizerShouldBegin:self];
}

- (void)_enterState:(NSInteger)state {
  _state = state;
  if (state == UIGestureRecognizerStatePossible || state == UIGestureRecognizerStateFailed) return;
  [[self retain] autorelease];
  for (UITargetAction* target in [NSArray arrayWithArray:_targets]) [target sendFrom:self];
}

@end

@implementation UITapGestureRecognizer

@synthesize numberOfTapsRequired = _numberOfTapsRequired;

- (id)initWithTarget:(id)target action:(SEL)action {
  self = [super initWithTarget:target action:action];
  if (self) _numberOfTapsRequired = 1;
  return self;
}

@end

@implementation UILongPressGestureRecognizer

@synthesize minimumPressDuration = _minimumPressDuration;

- (id)initWithTarget:(id)target action:(SEL)action {
  self = [super initWithTarget:target action:action];
  if (self) _minimumPressDuration = 0.5;
  return self;
}

@end
