#pragma once

#import "device/frameworks/UIKit/UIView.h"

@interface UIImage : NSObject {
  NSString* _path;
  NSData* _data;
}
/// Nil when there is no file, or no PNG or JPEG in it.
- (id)initWithContentsOfFile:(NSString*)path;
@property(nonatomic, readonly) NSString* _path;
@property(nonatomic, readonly) NSData* _data;
@end

/// Takes no touches unless told to.
@interface UIImageView : UIView {
  UIImage* _image;
}
- (id)initWithImage:(UIImage*)image;
@property(nonatomic, retain) UIImage* image;
@end
