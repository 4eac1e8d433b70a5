#pragma once

#import "device/frameworks/UIKit/CoreGraphics.h"

@class UIFont;

@interface NSString (NSStringDrawing)
/// Of one line, cut off where it does not fit: the letters are all of one width here.
- (CGSize)sizeWithFont:(UIFont*)font constrainedToSize:(CGSize)size lineBreakMode:(NSInteger)mode;
@end
