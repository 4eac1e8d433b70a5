#pragma once

#import "device/frameworks/UIKit/UIView.h"

enum UIControlEvents : NSUInteger {
  UIControlEventTouchUpInside = 1 << 6,
  UIControlEventEditingChanged = 1 << 17,
};

@interface UILabel : UIView {
  NSString* _text;
  UIFont* _font;
  UIColor* _textColor;
  NSInteger _textAlignment;
  NSInteger _numberOfLines;
  CGFloat _minimumScaleFactor;
  BOOL _adjustsFontSizeToFitWidth;
  BOOL _adjustsLetterSpacingToFitWidth;
}
@property(nonatomic, copy) NSString* text;
@property(nonatomic, retain) UIFont* font;
@property(nonatomic, retain) UIColor* textColor;
@property(nonatomic) NSInteger textAlignment;
@property(nonatomic) NSInteger numberOfLines;
@property(nonatomic) CGFloat minimumScaleFactor;
@property(nonatomic) BOOL adjustsFontSizeToFitWidth;
@property(nonatomic) BOOL adjustsLetterSpacingToFitWidth;
@end

/// Its targets are not retained.
@interface UIControl : UIView {
  NSMutableArray* _targets;
  BOOL _enabled;
}
@property(nonatomic, getter=isEnabled) BOOL enabled;
- (void)addTarget:(id)target action:(SEL)action forControlEvents:(NSUInteger)events;
- (void)sendActionsForControlEvents:(NSUInteger)events;
@end

@interface UIButton : UIControl {
  NSString* _currentTitle;
}
+ (id)buttonWithType:(NSInteger)type;
/// One title serves all states.
- (void)setTitle:(NSString*)title forState:(NSUInteger)state;
@property(nonatomic, readonly) NSString* currentTitle;
@end

@interface UITextField : UIControl {
  NSString* _text;
  NSString* _placeholder;
  UIFont* _font;
  UIColor* _textColor;
  BOOL _secureTextEntry;
}
/// Never nil.
@property(nonatomic, copy) NSString* text;
@property(nonatomic, copy) NSString* placeholder;
@property(nonatomic, retain) UIFont* font;
@property(nonatomic, retain) UIColor* textColor;
@property(nonatomic, getter=isSecureTextEntry) BOOL secureTextEntry;
@end
