#import "device/frameworks/UIKit/UIVisualEffect.h"

@implementation UIVisualEffect
@end

@implementation UIBlurEffect

@synthesize _style = _style;

+ (UIBlurEffect*)effectWithStyle:(NSInteger)style {
  UIBlurEffect* effect = [[[self alloc] init] autorelease];
  effect->_style = style;
  return effect;
}

@end

@implementation UIVisualEffectView

@synthesize effect = _effect;
@synthesize contentView = _contentView;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _contentView = [[UIView alloc] init];
  [super insertSubview:_contentView atIndex:0];
  return self;
}

- (id)initWithEffect:(UIVisualEffect*)effect {
  self = [self initWithFrame:CGRectZero];
  if (self) _effect = [effect retain];
  return self;
}

- (void)dealloc {
  [_effect release];
  [_contentView release];
  [super dealloc];
}

- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index {
  [NSException
       raise:NSInternalInconsistencyException
      format:@"%@ has been added as a subview to %@. Do not add subviews directly to the visual effect "
             @"view itself, instead add them to the -contentView.",
             view, self];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  [_contentView setFrame:[self bounds]];
}

@end
