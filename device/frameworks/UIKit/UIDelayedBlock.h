#pragma once

#import <Foundation/Foundation.h>

/// Runs a block later on the main run loop. (GNUstep's own timers send messages to the block, which is no
/// object of this runtime.)
@interface UIDelayedBlock : NSObject {
  void (^_block)(void);
}
+ (void)after:(double)seconds perform:(void (^)(void))block;
@end
