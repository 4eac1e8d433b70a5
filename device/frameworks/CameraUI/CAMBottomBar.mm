#import "device/frameworks/CameraUI/CAMBottomBar.h"

namespace {

constexpr CGFloat kWellSize = 50;
constexpr CGFloat kShutterSize = 66;
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

@implementation CUShutterButton
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
