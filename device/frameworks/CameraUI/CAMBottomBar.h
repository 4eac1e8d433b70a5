#pragma once

#import "device/frameworks/UIKit/UIKit.h"

/// The button with the latest capture, which is an image view within it.
@interface CAMImageWell : UIButton {
  UIImageView* _thumbnailView;
  UIImage* _thumbnailImage;
}
@property(nonatomic, readonly) UIImage* thumbnailImage;
- (void)setThumbnailImage:(UIImage*)image animated:(BOOL)animated;
@end

@interface CUShutterButton : UIButton {
  UIView* _edge;
  UIView* _disc;
}
@end

/// Below the viewfinder: the image well, the shutter and the button that switches between photo and video.
@interface CAMBottomBar : UIView {
  UIView* _backgroundView;
  CAMImageWell* _imageWell;
  CUShutterButton* _shutterButton;
  UIButton* _modeButton;
}
@property(nonatomic, readonly) UIView* backgroundView;
@property(nonatomic, readonly) CAMImageWell* imageWell;
@property(nonatomic, readonly) CUShutterButton* shutterButton;
@property(nonatomic, readonly) UIButton* _modeButton;
@end

/// What a shutter lies on in other layouts. It has no background view.
@interface CAMMetalView : UIView
@end
