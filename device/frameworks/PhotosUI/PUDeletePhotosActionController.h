#pragma once

#import "device/frameworks/Photos/Photos.h"
#import "device/frameworks/UIKit/UIKit.h"

/// Deletes assets, once the user has confirmed it.
@interface PUDeletePhotosActionController : NSObject {
  NSArray* _assets;
}
- (id)initWithAssets:(NSArray*)assets;
- (BOOL)shouldSkipDeleteConfirmation;
/// Asks before the controller. The block follows on the main thread when the library has done it, or not at
/// all when the user cancels.
- (void)performFrom:(UIViewController*)controller completion:(void (^)(void))done;
@end
