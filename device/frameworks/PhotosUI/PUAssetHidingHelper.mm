#import "device/frameworks/PhotosUI/PUAssetHidingHelper.h"

@implementation PUAssetHidingHelper

@synthesize assets = _assets;

- (void)dealloc {
  [_assets release];
  [super dealloc];
}

- (void)applyHiddenState:(BOOL)hidden completionHandler:(void (^)(void))handler {
  // Blocks of this runtime keep no object. By its index, so that only an array will do.
  NSMutableArray* assets = [[NSMutableArray alloc] init];
  for (NSUInteger index = 0; index < [_assets count]; ++index)
    [assets addObject:[_assets objectAtIndex:index]];
  [[PHPhotoLibrary sharedPhotoLibrary]
      performChanges:^{
        for (PHAsset* asset in assets) {
          [[PHAssetChangeRequest changeRequestForAsset:asset] setHidden:hidden];
        }
      }
      completionHandler:^(BOOL, NSError*) {
        [assets release];
        if (handler) handler();
      }];
}

@end
