#import "device/frameworks/UIKit/UIResponder.h"

@implementation UIResponder

- (UIResponder*)nextResponder {
  return nil;
}

@end

@implementation UITargetAction

@synthesize events = _events;

+ (UITargetAction*)target:(id)target action:(SEL)action events:(NSUInteger)events {
  UITargetAction* made = [[[self alloc] init] autorelease];
  made->_target = target;
  made->_action = action;
  made->_events = events;
  return made;
}

- (void)sendFrom:(id)sender {
  [_target performSelector:_action withObject:sender];
}

@end
