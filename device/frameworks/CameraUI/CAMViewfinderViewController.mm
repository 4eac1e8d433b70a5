#import "device/frameworks/CameraUI/CAMViewfinderViewController.h"

#import "device/frameworks/Photos/Photos.h"

namespace {

constexpr CGFloat kBarHeight = 141;

PHAsset* newestAsset() {
  return [[PHAsset fetchAssetsInAssetCollection:[PHAssetCollection _cameraRoll] options:nil] lastObject];
}

}  // namespace

@implementation CAMViewfinderViewController

@synthesize _captureEngine = _captureEngine;
@synthesize _bottomBar = _bottomBar;

- (id)init {
  self = [super init];
  if (!self) return nil;
  _captureEngine = [[CAMCaptureEngine alloc] init];
  [_captureEngine setDelegate:self];
  return self;
}

- (void)dealloc {
  [_captureEngine setDelegate:nil];
  [_captureEngine release];
  [_bottomBar release];
  [super dealloc];
}

- (void)viewDidLoad {
  [super viewDidLoad];
  [[self view] setBackgroundColor:[UIColor colorWithWhite:0.15 alpha:1]];
  const CGSize size = [[self view] bounds].size;
  const CGRect frame = CGRectMake(0, size.height - kBarHeight, size.width, kBarHeight);
  _bottomBar = [[CAMBottomBar alloc] initWithFrame:frame];
  [[_bottomBar shutterButton] addTarget:self
                                 action:@selector(_shutterPressed)
                       forControlEvents:UIControlEventTouchUpInside];
  [[_bottomBar _modeButton] addTarget:self
                               action:@selector(_modePressed)
                     forControlEvents:UIControlEventTouchUpInside];
  [[self view] addSubview:_bottomBar];
  [self _capture:PHAssetMediaTypeImage];
  [self captureEngineDidFinishCapture:_captureEngine];
}

- (void)_capture:(NSInteger)type {
  const bool isVideo = type == PHAssetMediaTypeVideo;
  _mediaType = type;
  [[_bottomBar shutterButton] setAccessibilityLabel:isVideo ? @"Record Video" : @"Take Picture"];
  [[_bottomBar _modeButton] setTitle:isVideo ? @"Photo" : @"Video" forState:0];
}

- (void)_modePressed {
  [self _capture:_mediaType == PHAssetMediaTypeVideo ? PHAssetMediaTypeImage : PHAssetMediaTypeVideo];
}

- (void)_shutterPressed {
  [_captureEngine _captureMediaType:_mediaType];
}

- (void)captureEngineDidFinishCapture:(CAMCaptureEngine*)engine {
  PHAsset* newest = newestAsset();
  if (!newest) return;
  PHImageRequestOptions* options = [[[PHImageRequestOptions alloc] init] autorelease];
  [options setSynchronous:YES];
  CAMImageWell* well = [_bottomBar imageWell];
  [[PHImageManager defaultManager] requestImageForAsset:newest
                                             targetSize:CGSizeMake(100, 100)
                                            contentMode:0
                                                options:options
                                          resultHandler:^(UIImage* image, NSDictionary*) {
                                            [well setThumbnailImage:image animated:NO];
                                          }];
}

@end
