#pragma once

#import "device/frameworks/UIKit/UIColor.h"
#import "device/frameworks/UIKit/UIView.h"

@interface UIImage : NSObject {
  NSString* _path;
  NSData* _data;
  UIColor* _color;
  NSString* _name;
  CGSize _size;
  NSInteger _renderingMode;
}
/// Nil when there is no file, or no PNG or JPEG in it.
- (id)initWithContentsOfFile:(NSString*)path;
/// The same image to be drawn in that mode.
- (UIImage*)imageWithRenderingMode:(NSInteger)mode;
@property(nonatomic, readonly) NSInteger renderingMode;
@property(nonatomic, readonly) NSString* _path;
@property(nonatomic, readonly) NSData* _data;
/// In points; (0, 0) for a file's image, which nobody measures here.
@property(nonatomic, readonly) CGSize size;
/// What a person calls it: its file's name without the ending, or what it was made with.
@property(nonatomic, readonly) NSString* _name;
/// Nil for a file's image.
@property(nonatomic, readonly) UIColor* _color;
+ (UIImage*)_imageOfColor:(UIColor*)color size:(CGSize)size name:(NSString*)name;
@end

/// Takes no touches unless told to.
@interface UIImageView : UIView {
  UIImage* _image;
}
- (id)initWithImage:(UIImage*)image;
@property(nonatomic, retain) UIImage* image;
@end
