#pragma once

#import "device/frameworks/Photos/Photos.h"
#import "device/frameworks/UIKit/UIKit.h"

@interface PXSettings : NSObject
/// Sent once, by `init`.
- (void)setDefaultValues;
@end

@interface PUOneUpSettings : PXSettings {
  double _defaultMaximumZoomFactor;
}
+ (PUOneUpSettings*)sharedInstance;
@property(nonatomic) double defaultMaximumZoomFactor;
@end

@interface PUViewModel : NSObject
@end

@interface PUAssetViewModel : PUViewModel
/// Whether a live photo bears a badge.
@property(nonatomic, readonly) BOOL wantsIrisBadgeVisible;
@end

/// Fits a photo into the viewer.
@interface PUPhotoViewContentHelper : NSObject {
  CGSize _viewerSize;
}
@property(nonatomic, setter=_setViewerSize:) CGSize _viewerSize;
/// Where the photo lies in the viewer.
@property(nonatomic, readonly) CGRect imageContentFrame;
@end

/// One photo as large as it fits, which can be zoomed.
@interface PUOneUpViewController : UIViewController <UIScrollViewDelegate> {
  PHAsset* _asset;
  PUAssetViewModel* _assetViewModel;
  PUPhotoViewContentHelper* _contentHelper;
  UIScrollView* _scrollView;
  UIView* _photoView;
}
- (id)_initWithAsset:(PHAsset*)asset;
@end
