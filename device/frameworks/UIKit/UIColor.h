#pragma once

#import <Foundation/Foundation.h>

@interface UIColor : NSObject {
  CGFloat _red, _green, _blue, _alpha;
}
+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
+ (UIColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha;
+ (UIColor*)clearColor;
+ (UIColor*)whiteColor;
+ (UIColor*)blackColor;
- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha;
@end

@interface UIFont : NSObject {
  CGFloat _pointSize;
  BOOL _bold;
}
+ (UIFont*)systemFontOfSize:(CGFloat)size;
+ (UIFont*)boldSystemFontOfSize:(CGFloat)size;
@property(nonatomic, readonly) CGFloat pointSize;
@property(nonatomic, readonly) BOOL _isBold;
- (UIFont*)fontWithSize:(CGFloat)size;
@end
