#pragma once

#import "device/frameworks/UIKit/CoreGraphics.h"

@interface CALayer : NSObject {
  CGFloat _cornerRadius;
  BOOL _masksToBounds;
}
@property(nonatomic) CGFloat cornerRadius;
@property(nonatomic) BOOL masksToBounds;
@end
