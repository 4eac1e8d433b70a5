#pragma once

#import <Foundation/Foundation.h>

@interface UIResponder : NSObject
- (UIResponder*)nextResponder;
@end

/// Who is told of an event, and how. Retains nobody, as recognizers and controls do not.
@interface UITargetAction : NSObject {
  id _target;
  SEL _action;
  NSUInteger _events;
}
+ (UITargetAction*)target:(id)target action:(SEL)action events:(NSUInteger)events;
@property(nonatomic, readonly) NSUInteger events;
- (void)sendFrom:(id)sender;
@end
