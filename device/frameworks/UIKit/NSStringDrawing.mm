#import "device/frameworks/UIKit/NSStringDrawing.h"

#include <algorithm>
#include <cmath>

#import "device/frameworks/UIKit/UIColor.h"

@implementation NSString (NSStringDrawing)

- (CGSize)sizeWithFont:(UIFont*)font constrainedToSize:(CGSize)size lineBreakMode:(NSInteger)mode {
  constexpr CGFloat kLetterWidth = 0.55;
  constexpr CGFloat kLineHeight = 1.2;
  const CGFloat points = [font pointSize];
  const CGFloat width = std::ceil(points * kLetterWidth * static_cast<CGFloat>([self length]));
  return {std::min(width, size.width), std::min(std::ceil(points * kLineHeight), size.height)};
}

@end
