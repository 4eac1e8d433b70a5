#pragma once

#import "device/frameworks/Photos/PHObject.h"

@class PHAssetCollection;
@class UIColor;

enum PHAssetMediaType : NSInteger { PHAssetMediaTypeImage = 1, PHAssetMediaTypeVideo = 2 };

enum PHAssetMediaSubtype : NSUInteger { PHAssetMediaSubtypePhotoLive = 1 << 3 };

@interface PHAsset : PHObject {
  NSInteger _mediaType;
  NSUInteger _mediaSubtypes;
  NSDate* _creationDate;
  BOOL _hidden;
  BOOL _favorite;
  std::uint32_t _color;
}
@property(nonatomic, readonly) NSInteger mediaType;
@property(nonatomic, readonly) NSUInteger mediaSubtypes;
@property(nonatomic, readonly) NSDate* creationDate;
@property(nonatomic, readonly, getter=isHidden) BOOL hidden;
@property(nonatomic, readonly, getter=isFavorite) BOOL favorite;
/// The one colour of all its pixels.
@property(nonatomic, readonly) UIColor* _pixelColor;
/// "2020-05-01": of its creation date in UTC.
@property(nonatomic, readonly) NSString* _day;
/// "Photo, 2020-05-01 12:00:00", or "Video, ...": its creation date in UTC.
@property(nonatomic, readonly) NSString* _words;

// Options may be nil. Hidden assets are fetched only when the options include them.
+ (PHFetchResult*)fetchAssetsInAssetCollection:(PHAssetCollection*)collection
                                       options:(PHFetchOptions*)options;
+ (PHFetchResult*)fetchAssetsWithMediaType:(NSInteger)type options:(PHFetchOptions*)options;
/// The few that stand for the collection; nil when there are none.
+ (PHFetchResult*)fetchKeyAssetsInAssetCollection:(PHAssetCollection*)collection
                                          options:(PHFetchOptions*)options;

/// The asset's number in the library.
- (std::int64_t)_identifier;
@end
