#pragma once

#import "device/frameworks/UIKit/UIView.h"

enum UIBlurEffectStyle : NSInteger {
  UIBlurEffectStyleExtraLight = 0,
  UIBlurEffectStyleLight = 1,
  UIBlurEffectStyleDark = 2,
};

@interface UIVisualEffect : NSObject
@end

@interface UIBlurEffect : UIVisualEffect {
  NSInteger _style;
}
+ (UIBlurEffect*)effectWithStyle:(NSInteger)style;
@property(nonatomic, readonly) NSInteger _style;
@end

/// Shows what is behind it through its effect. What is to be seen in front of that goes into its content
/// view.
@interface UIVisualEffectView : UIView {
  UIVisualEffect* _effect;
  UIView* _contentView;
}
- (id)initWithEffect:(UIVisualEffect*)effect;
@property(nonatomic, readonly) UIVisualEffect* effect;
/// Fills the view.
@property(nonatomic, readonly) UIView* contentView;
@end
