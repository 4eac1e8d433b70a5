#import "device/frameworks/PhotosUI/PUOneUpViewController.h"

#include <algorithm>

#import "device/frameworks/PhotosUI/PUPhotosGridViewController.h"

namespace {
/// Of every photo, its width by its height.
constexpr CGFloat kAspectRatio = 3.0 / 4;
constexpr CGRect kBadgeFrame = {{12, 12}, {48, 22}};
}  // namespace

@implementation PXSettings

- (id)init {
  self = [super init];
  if (self) [self setDefaultValues];
  return self;
}

- (void)setDefaultValues {
}

@end

@implementation PUOneUpSettings

@synthesize defaultMaximumZoomFactor = _defaultMaximumZoomFactor;

+ (PUOneUpSettings*)sharedInstance {
  static PUOneUpSettings* const settings = [PUOneUpSettings new];
  return settings;
}

- (void)setDefaultValues {
  [super setDefaultValues];
  [self setDefaultMaximumZoomFactor:6];
}

@end

@implementation PUViewModel
@end

@implementation PUAssetViewModel

// As in iOS 10.3; later versions have no such method.
- (BOOL)wantsIrisBadgeVisible {
  return NO;
}

@end

@implementation PUPhotoViewContentHelper

@synthesize _viewerSize = _viewerSize;

- (CGRect)imageContentFrame {
  const CGFloat width = std::min(_viewerSize.width, _viewerSize.height * kAspectRatio);
  const CGFloat height = width / kAspectRatio;
  return CGRectMake((_viewerSize.width - width) / 2, (_viewerSize.height - height) / 2, width, height);
}

@end

@implementation PUOneUpViewController

- (id)_initWithAsset:(PHAsset*)asset {
  self = [super init];
  if (!self) return nil;
  _asset = [asset retain];
  _assetViewModel = [[PUAssetViewModel alloc] init];
  _contentHelper = [[PUPhotoViewContentHelper alloc] init];
  [self setTitle:[asset _day]];
  return self;
}

- (void)dealloc {
  [_scrollView setDelegate:nil];
  [_asset release];
  [_assetViewModel release];
  [_contentHelper release];
  [_scrollView release];
  [_photoView release];
  [super dealloc];
}

- (void)viewDidLoad {
  [super viewDidLoad];
  _scrollView = [[UIScrollView alloc] init];
  [_scrollView setMaximumZoomScale:[[PUOneUpSettings sharedInstance] defaultMaximumZoomFactor]];
  [_scrollView setDelegate:self];
  [[self view] addSubview:_scrollView];
  _photoView = [[UIView alloc] init];
  [_photoView setBackgroundColor:[_asset _pixelColor]];
  [_photoView setAccessibilityLabel:[_asset _words]];
  [_scrollView addSubview:_photoView];
  const bool isLive = ([_asset mediaSubtypes] & PHAssetMediaSubtypePhotoLive) != 0;
  if (isLive && [_assetViewModel wantsIrisBadgeVisible]) [self _addBadge];
}

- (void)_addBadge {
  UILabel* badge = [[[UILabel alloc] initWithFrame:kBadgeFrame] autorelease];
  [badge setText:@"LIVE"];
  [badge setFont:[UIFont boldSystemFontOfSize:12]];
  [badge setTextAlignment:NSTextAlignmentCenter];
  [badge setBackgroundColor:[UIColor colorWithWhite:0.9 alpha:0.8]];
  [[badge layer] setCornerRadius:4];
  [[self view] addSubview:badge];
}

- (void)viewWillLayoutSubviews {
  [super viewWillLayoutSubviews];
  const CGRect bounds = [[self view] bounds];
  [_scrollView setZoomScale:1];
  [_scrollView setFrame:bounds];
  [_scrollView setContentSize:bounds.size];
  [_contentHelper _setViewerSize:bounds.size];
  [_photoView setFrame:[_contentHelper imageContentFrame]];
}

- (UIView*)viewForZoomingInScrollView:(UIScrollView*)scrollView {
  return _photoView;
}

@end
