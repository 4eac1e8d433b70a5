#pragma once

#import "device/frameworks/UIKit/UIView.h"

enum UIControlEvents : NSUInteger {
  UIControlEventTouchUpInside = 1 << 6,
  UIControlEventEditingChanged = 1 << 17,
};

enum NSTextAlignment : NSInteger {
  NSTextAlignmentLeft = 0,
  NSTextAlignmentCenter = 1,
  NSTextAlignmentRight = 2,
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
  UIColor* _currentTitleColor;
}
+ (id)buttonWithType:(NSInteger)type;
/// One title, of one colour, serves all states.
- (void)setTitle:(NSString*)title forState:(NSUInteger)state;
- (void)setTitleColor:(UIColor*)color forState:(NSUInteger)state;
@property(nonatomic, readonly) NSString* currentTitle;
/// Blue at first.
@property(nonatomic, readonly) UIColor* currentTitleColor;
@end

enum UITextBorderStyle : NSInteger { UITextBorderStyleNone = 0, UITextBorderStyleRoundedRect = 3 };

@interface UITextField : UIControl {
  NSString* _text;
  NSString* _placeholder;
  UIFont* _font;
  UIColor* _textColor;
  NSInteger _textAlignment;
  NSInteger _borderStyle;
  BOOL _secureTextEntry;
}
/// Never nil.
@property(nonatomic, copy) NSString* text;
@property(nonatomic, copy) NSString* placeholder;
@property(nonatomic, retain) UIFont* font;
@property(nonatomic, retain) UIColor* textColor;
@property(nonatomic) NSInteger textAlignment;
@property(nonatomic) NSInteger borderStyle;
@property(nonatomic, getter=isSecureTextEntry) BOOL secureTextEntry;
@end
