#import "device/frameworks/UIKit/UIControls.h"

@implementation UILabel

@synthesize text = _text;
@synthesize font = _font;
@synthesize textColor = _textColor;
@synthesize textAlignment = _textAlignment;
@synthesize numberOfLines = _numberOfLines;
@synthesize minimumScaleFactor = _minimumScaleFactor;
@synthesize adjustsFontSizeToFitWidth = _adjustsFontSizeToFitWidth;
@synthesize adjustsLetterSpacingToFitWidth = _adjustsLetterSpacingToFitWidth;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _font = [[UIFont systemFontOfSize:17] retain];
  _textColor = [[UIColor blackColor] retain];
  _numberOfLines = 1;
  [self setUserInteractionEnabled:NO];
  return self;
}

- (void)dealloc {
  [_text release];
  [_font release];
  [_textColor release];
  [super dealloc];
}

- (NSString*)accessibilityLabel {
  return _accessibilityLabel ? _accessibilityLabel : _text;
}

@end

@implementation UIControl

@synthesize enabled = _enabled;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _targets = [[NSMutableArray alloc] init];
  _enabled = YES;
  return self;
}

- (void)dealloc {
  [_targets release];
  [super dealloc];
}

- (void)addTarget:(id)target action:(SEL)action forControlEvents:(NSUInteger)events {
  [_targets addObject:[UITargetAction target:target action:action events:events]];
}

- (void)sendActionsForControlEvents:(NSUInteger)events {
  [[self retain] autorelease];
  for (UITargetAction* target in [NSArray arrayWithArray:_targets]) {
    if ([target events] & events) [target sendFrom:self];
  }
}

@end

@implementation UIButton

@synthesize currentTitle = _currentTitle;

+ (id)buttonWithType:(NSInteger)type {
  return [[[self alloc] init] autorelease];
}

- (void)dealloc {
  [_currentTitle release];
  [_currentTitleColor release];
  [super dealloc];
}

- (void)setTitle:(NSString*)title forState:(NSUInteger)state {
  [_currentTitle autorelease];
  _currentTitle = [title copy];
  [self setNeedsLayout];
}

- (UIColor*)currentTitleColor {
  return _currentTitleColor ? _currentTitleColor : [UIColor colorWithRed:0 green:0.48 blue:1 alpha:1];
}

- (void)setTitleColor:(UIColor*)color forState:(NSUInteger)state {
  [_currentTitleColor autorelease];
  _currentTitleColor = [color retain];
}

- (void)layoutSubviews {
  [super layoutSubviews];
}

- (NSString*)accessibilityLabel {
  return _accessibilityLabel ? _accessibilityLabel : _currentTitle;
}

@end

@implementation UITextField

@synthesize text = _text;
@synthesize placeholder = _placeholder;
@synthesize font = _font;
@synthesize textColor = _textColor;
@synthesize textAlignment = _textAlignment;
@synthesize borderStyle = _borderStyle;
@synthesize secureTextEntry = _secureTextEntry;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _text = @"";
  _font = [[UIFont systemFontOfSize:17] retain];
  _textColor = [[UIColor blackColor] retain];
  return self;
}

- (void)dealloc {
  [_text release];
  [_placeholder release];
  [_font release];
  [_textColor release];
  [super dealloc];
}

- (void)setText:(NSString*)text {
  [_text autorelease];
  _text = text ? [text copy] : @"";
}

- (NSString*)accessibilityLabel {
  if (_accessibilityLabel) return _accessibilityLabel;
  if (![_text length]) return _placeholder;
  if (!_secureTextEntry) return _text;
  return [@"" stringByPaddingToLength:[_text length] withString:@"•" startingAtIndex:0];
}

@end
