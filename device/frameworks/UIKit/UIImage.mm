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

- (id)initWithContentsOfFile:(NSString*)path {
  self = [super init];
  if (!self) return nil;
  _path = [path copy];
  _data = [[NSData dataWithContentsOfFile:path] retain];
  if (isPicture(_data)) return self;
  [self release];
  return nil;
}

- (void)dealloc {
  [_path release];
  [_data release];
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

/// A person who cannot read a picture still knows it: by the name of its file, as the screen reader does.
- (NSString*)accessibilityLabel {
  if (_accessibilityLabel) return _accessibilityLabel;
  return [[[_image _path] lastPathComponent] stringByDeletingPathExtension];
}

@end
