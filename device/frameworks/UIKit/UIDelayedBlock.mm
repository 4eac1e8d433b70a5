#import "device/frameworks/UIKit/UIDelayedBlock.h"

@implementation UIDelayedBlock

+ (void)after:(double)seconds perform:(void (^)(void))block {
  UIDelayedBlock* delayed = [[[self alloc] init] autorelease];
  delayed->_block = Block_copy(block);
  [NSTimer scheduledTimerWithTimeInterval:seconds
                                   target:delayed
                                 selector:@selector(_fire:)
                                 userInfo:nil
                                  repeats:NO];
}

- (void)dealloc {
  Block_release(_block);
  [super dealloc];
}

- (void)_fire:(NSTimer*)timer {
  _block();
}

@end
