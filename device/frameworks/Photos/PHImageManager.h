#pragma once

#import "device/frameworks/Photos/PHAsset.h"
#import "device/frameworks/UIKit/CoreGraphics.h"

@class UIImage;

enum PHImageContentMode : NSInteger { PHImageContentModeAspectFit = 0, PHImageContentModeAspectFill = 1 };

enum PHImageRequestOptionsResizeMode : NSInteger {
  PHImageRequestOptionsResizeModeNone = 0,
  PHImageRequestOptionsResizeModeFast = 1,
  PHImageRequestOptionsResizeModeExact = 2,
};

@interface PHImageRequestOptions : NSObject {
  BOOL _synchronous;
  NSInteger _resizeMode;
}
@property(nonatomic, getter=isSynchronous) BOOL synchronous;
/// Fast at first.
@property(nonatomic) NSInteger resizeMode;
@end

@interface PHImageManager : NSObject
+ (PHImageManager*)defaultManager;
/// The target size is in pixels. The handler runs once: before this returns with a synchronous request, later
/// on the main queue otherwise. Raises without an asset. Answers the request's number.
- (std::int32_t)requestImageForAsset:(PHAsset*)asset
                          targetSize:(CGSize)target
                         contentMode:(NSInteger)mode
                             options:(PHImageRequestOptions*)options
                       resultHandler:(void (^)(UIImage* image, NSDictionary* info))handler;
@end
