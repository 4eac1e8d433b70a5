#import "device/frameworks/UIKit/UIImage.h"

#include <string_view>

namespace {

bool isPicture(NSData* data) {
  const std::string_view bytes(static_cast<const char*>([data bytes]), [data length]);
  return bytes.starts_with("\x89PNG\r\n\x1a\n") || bytes.starts_with("\xff\xd8\xff");
}

}  // namespace

@implementation UIImage

@synthesize _path = _path;
@synthesize _data = _data;
@synthesize size = _size;
@synthesize _name = _name;
@synthesize renderingMode = _renderingMode;
@synthesize _color = _color;

- (id)initWithContentsOfFile:(NSString*)path {
  self = [super init];
  if (!self) return nil;
  _path = [path copy];
  _data = [[NSData dataWithContentsOfFile:path] retain];
  _name = [[[path lastPathComponent] stringByDeletingPathExtension] copy];
  if (isPicture(_data)) return self;
  [self release];
  return nil;
}

+ (UIImage*)_imageOfColor:(UIColor*)color size:(CGSize)size name:(NSString*)name {
  UIImage* image = [[[self alloc] init] autorelease];
  image->_color = [color retain];
  image->_size = size;
  image->_name = [name copy];
  return image;
}

- (UIImage*)imageWithRenderingMode:(NSInteger)mode {
  UIImage* image = [[[[self class] alloc] init] autorelease];
  image->_path = [_path copy];
  image->_data = [_data retain];
  image->_color = [_color retain];
  image->_name = [_name copy];
  image->_size = _size;
  image->_renderingMode = mode;
  return image;
}

- (void)dealloc {
  [_path release];
  [_data release];
  [_name release];
  [_color release];
  [super dealloc];
}

@end

@implementation UIImageView

@synthesize image = _image;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (self) [self setUserInteractionEnabled:NO];
  return self;
}

- (id)initWithImage:(UIImage*)image {
  self = [self initWithFrame:CGRectZero];
  if (self) [self setImage:image];
  return self;
}

- (void)dealloc {
  [_image release];
  [super dealloc];
}

/// A person who cannot see a picture still knows it by its name.
- (NSString*)accessibilityLabel {
  if (_accessibilityLabel) return _accessibilityLabel;
  return [_image _name];
}

@end
