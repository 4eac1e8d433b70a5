#import "device/frameworks/UIKit/UIColor.h"

@implementation UIColor

+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
  UIColor* color = [[[self alloc] init] autorelease];
  color->_red = red;
  color->_green = green;
  color->_blue = blue;
  color->_alpha = alpha;
  return color;
}

+ (UIColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
  return [self colorWithRed:white green:white blue:white alpha:alpha];
}

+ (UIColor*)clearColor {
  return [self colorWithRed:0 green:0 blue:0 alpha:0];
}

+ (UIColor*)whiteColor {
  return [self colorWithRed:1 green:1 blue:1 alpha:1];
}

+ (UIColor*)blackColor {
  return [self colorWithRed:0 green:0 blue:0 alpha:1];
}

- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha {
  if (red) *red = _red;
  if (green) *green = _green;
  if (blue) *blue = _blue;
  if (alpha) *alpha = _alpha;
  return YES;
}

- (BOOL)isEqual:(id)other {
  if (![other isKindOfClass:[UIColor class]]) return NO;
  UIColor* color = other;
  return _red == color->_red && _green == color->_green && _blue == color->_blue && _alpha == color->_alpha;
}

- (NSUInteger)hash {
  return static_cast<NSUInteger>(255 * (_red + 256 * (_green + 256 * (_blue + 256 * _alpha))));
}

@end

@implementation UIFont

@synthesize pointSize = _pointSize;
@synthesize _isBold = _bold;

+ (UIFont*)systemFontOfSize:(CGFloat)size {
  UIFont* font = [[[self alloc] init] autorelease];
  font->_pointSize = size;
  return font;
}

+ (UIFont*)boldSystemFontOfSize:(CGFloat)size {
  UIFont* font = [self systemFontOfSize:size];
  font->_bold = YES;
  return font;
}

- (UIFont*)fontWithSize:(CGFloat)size {
  return _bold ? [UIFont boldSystemFontOfSize:size] : [UIFont systemFontOfSize:size];
}

@end
