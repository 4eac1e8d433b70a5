#import "device/frameworks/Photos/PHAsset.h"

#include <algorithm>
#include <vector>

#import "device/frameworks/Photos/PHCollection.h"
#include "device/frameworks/Photos/photo_database.hpp"
#import "device/frameworks/UIKit/UIColor.h"

namespace {

constexpr NSUInteger kKeyAssets = 3;

CGFloat channel(std::uint32_t color, int shift) { return ((color >> shift) & 0xff) / 255.0; }

}  // namespace

@implementation PHAsset

@synthesize mediaType = _mediaType;
@synthesize mediaSubtypes = _mediaSubtypes;
@synthesize creationDate = _creationDate;
@synthesize hidden = _hidden;
@synthesize favorite = _favorite;

- (id)_initWithRow:(const device::AssetRow&)row {
  NSString* identifier = [NSString stringWithFormat:@"%lld/L0/001", static_cast<long long>(row.identifier)];
  self = [super _initWithLocalIdentifier:identifier];
  if (!self) return nil;
  _mediaType = static_cast<NSInteger>(row.mediaType);
  if (row.smartSubtype == PHAssetCollectionSubtypeSmartAlbumLivePhotos) {
    _mediaSubtypes = PHAssetMediaSubtypePhotoLive;
  }
  _creationDate = [[NSDate dateWithTimeIntervalSince1970:row.creationDate] retain];
  _hidden = row.isHidden;
  _favorite = row.isFavorite;
  _color = row.color;
  return self;
}

- (void)dealloc {
  [_creationDate release];
  [super dealloc];
}

- (UIColor*)_pixelColor {
  return [UIColor colorWithRed:channel(_color, 16) green:channel(_color, 8) blue:channel(_color, 0) alpha:1];
}

- (NSString*)_creationDateInFormat:(NSString*)format {
  NSDateFormatter* formatter = [[[NSDateFormatter alloc] init] autorelease];
  [formatter setTimeZone:[NSTimeZone timeZoneForSecondsFromGMT:0]];
  [formatter setDateFormat:format];
  return [formatter stringFromDate:_creationDate];
}

- (NSString*)_day {
  return [self _creationDateInFormat:@"yyyy-MM-dd"];
}

- (NSString*)_words {
  NSString* kind = _mediaType == PHAssetMediaTypeVideo ? @"Video, " : @"Photo, ";
  return [kind stringByAppendingString:[self _creationDateInFormat:@"yyyy-MM-dd HH:mm:ss"]];
}

- (std::int64_t)_identifier {
  return [_localIdentifier longLongValue];
}

+ (PHFetchResult*)_resultOf:(const std::vector<device::AssetRow>&)rows options:(PHFetchOptions*)options {
  NSMutableArray* assets = [NSMutableArray array];
  for (const device::AssetRow& row : rows) {
    if (row.isHidden && ![options includeHiddenAssets]) continue;
    [assets addObject:[[[PHAsset alloc] _initWithRow:row] autorelease]];
  }
  return [PHFetchResult _resultOf:assets options:options];
}

+ (PHFetchResult*)fetchAssetsInAssetCollection:(PHAssetCollection*)collection
                                       options:(PHFetchOptions*)options {
  if (!collection) return [PHFetchResult _resultOf:[NSArray array] options:nil];
  return [self _resultOf:[collection _assetRows] options:options];
}

+ (PHFetchResult*)fetchAssetsWithMediaType:(NSInteger)type options:(PHFetchOptions*)options {
  std::vector<device::AssetRow> rows = device::sharedPhotoDatabase().allAssets();
  std::erase_if(rows, [&](const auto& row) { return static_cast<NSInteger>(row.mediaType) != type; });
  // In the order in which they were stored: a phone promises none to a fetch that is not sorted.
  std::ranges::sort(rows, {}, &device::AssetRow::identifier);
  return [self _resultOf:rows options:options];
}

+ (PHFetchResult*)fetchKeyAssetsInAssetCollection:(PHAssetCollection*)collection
                                          options:(PHFetchOptions*)options {
  if (!collection) return nil;
  NSArray* all = [[self _resultOf:[collection _assetRows] options:options] fetchedObjects];
  const NSUInteger count = std::min([all count], kKeyAssets);
  if (count == 0) return nil;
  const NSUInteger first = [collection keyAssetsAtEnd] ? [all count] - count : 0;
  return [PHFetchResult _resultOf:[all subarrayWithRange:NSMakeRange(first, count)] options:nil];
}

@end
