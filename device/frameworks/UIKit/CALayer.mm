#import "device/frameworks/UIKit/CALayer.h"

@implementation CALayer

@synthesize cornerRadius = _cornerRadius;
@synthesize opacity = _opacity;
@synthesize masksToBounds = _masksToBounds;

- (id)init {
  self = [super init];
  if (self) _opacity = 1;
  return self;
}

@end
