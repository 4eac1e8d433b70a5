#import "device/frameworks/CameraUI/CAMBottomBar.h"

namespace {

constexpr CGFloat kWellSize = 50;
constexpr CGFloat kShutterSize = 66;
constexpr CGFloat kRing = 3;
constexpr CGFloat kModeWidth = 60;
constexpr CGFloat kMargin = 20;

}  // namespace

@implementation CAMImageWell

@synthesize thumbnailImage = _thumbnailImage;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _thumbnailView = [[UIImageView alloc] init];
  [self addSubview:_thumbnailView];
  return self;
}

- (void)dealloc {
  [_thumbnailView release];
  [_thumbnailImage release];
  [super dealloc];
}

- (void)setThumbnailImage:(UIImage*)image animated:(BOOL)animated {
  [_thumbnailImage autorelease];
  _thumbnailImage = [image retain];
  [self setNeedsLayout];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  [_thumbnailView setFrame:[self bounds]];
  [_thumbnailView setImage:[self thumbnailImage]];
}

@end

/// A white disc in a white ring, which says what it does only to who cannot see it.
@implementation CUShutterButton

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  [self setBackgroundColor:[UIColor whiteColor]];
  _edge = [[UIView alloc] init];
  [_edge setBackgroundColor:[UIColor blackColor]];
  [_edge setUserInteractionEnabled:NO];
  _disc = [[UIView alloc] init];
  [_disc setBackgroundColor:[UIColor whiteColor]];
  [_disc setUserInteractionEnabled:NO];
  [self addSubview:_edge];
  [self addSubview:_disc];
  return self;
}

- (void)dealloc {
  [_edge release];
  [_disc release];
  [super dealloc];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  CGFloat inset = 0;
  for (UIView* part in @[ self, _edge, _disc ]) {
    const CGFloat size = [self bounds].size.width - 2 * inset;
    if (part != self) [part setFrame:CGRectMake(inset, inset, size, size)];
    [[part layer] setCornerRadius:size / 2];
    inset += kRing;
  }
}

@end

@implementation CAMBottomBar

@synthesize backgroundView = _backgroundView;
@synthesize imageWell = _imageWell;
@synthesize shutterButton = _shutterButton;
@synthesize _modeButton = _modeButton;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _backgroundView = [[UIView alloc] init];
  [_backgroundView setBackgroundColor:[UIColor blackColor]];
  _imageWell = [[CAMImageWell alloc] init];
  _shutterButton = [[CUShutterButton alloc] init];
  _modeButton = [[UIButton alloc] init];
  [_modeButton setTitleColor:[UIColor whiteColor] forState:0];
  for (UIView* view in @[ _backgroundView, _imageWell, _shutterButton, _modeButton ]) [self addSubview:view];
  return self;
}

- (void)dealloc {
  [_backgroundView release];
  [_imageWell release];
  [_shutterButton release];
  [_modeButton release];
  [super dealloc];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  const CGSize size = [self bounds].size;
  const CGFloat middle = size.height / 2;
  [_backgroundView setFrame:[self bounds]];
  [_imageWell setFrame:CGRectMake(kMargin, middle - kWellSize / 2, kWellSize, kWellSize)];
  [_shutterButton setFrame:CGRectMake(size.width / 2 - kShutterSize / 2, middle - kShutterSize / 2,
                                      kShutterSize, kShutterSize)];
  [_modeButton
      setFrame:CGRectMake(size.width - kMargin - kModeWidth, middle - kWellSize / 2, kModeWidth, kWellSize)];
}

@end

@implementation CAMMetalView

- (void)layoutSubviews {
  [super layoutSubviews];
}

@end
