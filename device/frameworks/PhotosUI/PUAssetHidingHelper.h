#pragma once

#import "device/frameworks/Photos/Photos.h"

/// Hides assets, or shows them again.
@interface PUAssetHidingHelper : NSObject {
  NSArray* _assets;
}
@property(nonatomic, copy) NSArray* assets;
/// The handler, which may be nil, runs on the photo library's thread once the library has changed or refused.
- (void)applyHiddenState:(BOOL)hidden completionHandler:(void (^)(void))handler;
@end
