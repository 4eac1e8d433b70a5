#import "device/frameworks/UIKit/CALayer.h"

@implementation CALayer

@synthesize cornerRadius = _cornerRadius;
@synthesize masksToBounds = _masksToBounds;

@end
