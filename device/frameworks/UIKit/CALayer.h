#pragma once

#import "device/frameworks/UIKit/CoreGraphics.h"

@interface CALayer : NSObject {
  CGFloat _cornerRadius;
  float _opacity;
  BOOL _masksToBounds;
}
@property(nonatomic) CGFloat cornerRadius;
@property(nonatomic) float opacity;
@property(nonatomic) BOOL masksToBounds;
@end
