#import "device/frameworks/Photos/PHCollection.h"

#include <algorithm>

#import "device/frameworks/Photos/PHAsset.h"
#include "device/frameworks/Photos/shared_photo_database.hpp"

namespace {

using device::AssetRow;
using device::CollectionRow;
using device::MediaType;
using device::sharedPhotoDatabase;

struct SmartAlbum {
  NSInteger subtype;
  const char* title;
  /// Whether the asset belongs to it besides those that bear its subtype.
  bool (*holds)(const AssetRow& asset);
};

bool none(const AssetRow&) { return false; }

constexpr SmartAlbum kSmartAlbums[] = {
    {PHAssetCollectionSubtypeSmartAlbumUserLibrary, "Camera Roll", [](const AssetRow&) { return true; }},
    {206, "Recently Added", none},
    {PHAssetCollectionSubtypeSmartAlbumFavorites, "Favorites",
     [](const AssetRow& asset) { return asset.isFavorite; }},
    {PHAssetCollectionSubtypeSmartAlbumVideos, "Videos",
     [](const AssetRow& asset) { return asset.mediaType == MediaType::video; }},
    {210, "Selfies", none},
    {213, "Live Photos", none},
    {212, "Portrait", none},
    {201, "Panoramas", none},
    {204, "Time-lapse", none},
    {208, "Slo-mo", none},
    {207, "Bursts", none},
    {211, "Screenshots", none},
    {214, "Animated", none},
    {215, "Long Exposure", none},
    {1000000203, "Places", none},
    {PHAssetCollectionSubtypeSmartAlbumAllHidden, "Hidden",
     [](const AssetRow& asset) { return asset.isHidden; }},
    {PHAssetCollectionSubtypeTrashBin, "Recently Deleted", none},
};

bool belongs(const AssetRow& asset, NSInteger smartSubtype) {
  if (asset.smartSubtype == smartSubtype) return true;
  const auto album = std::ranges::find(kSmartAlbums, smartSubtype, &SmartAlbum::subtype);
  return album != std::end(kSmartAlbums) && album->holds(asset);
}

}  // namespace

@interface PHCollection (Making)
- (id)_initWithLocalIdentifier:(NSString*)localIdentifier
                    identifier:(std::int64_t)identifier
                         title:(NSString*)title;
@end

@interface PHAssetCollection (Making)
+ (PHAssetCollection*)_album:(const CollectionRow&)row;
+ (PHAssetCollection*)_smartAlbum:(const SmartAlbum&)album;
@end

@interface PHCollectionList (Making)
+ (PHCollectionList*)_folder:(const CollectionRow&)row;
@end

namespace {

NSString* text(const std::string& utf8) {
  NSString* made = [NSString stringWithUTF8String:utf8.c_str()];
  return made ? made : @"";
}

NSArray* albums(const std::vector<CollectionRow>& rows) {
  NSMutableArray* made = [NSMutableArray array];
  for (const CollectionRow& row : rows) {
    if (!row.isFolder) [made addObject:[PHAssetCollection _album:row]];
  }
  return made;
}

NSArray* collectionsIn(std::int64_t folder) {
  NSMutableArray* made = [NSMutableArray array];
  for (const CollectionRow& row : sharedPhotoDatabase().collections(folder)) {
    [made addObject:row.isFolder ? [PHCollectionList _folder:row] : [PHAssetCollection _album:row]];
  }
  return made;
}

}  // namespace

@implementation PHCollection

@synthesize localizedTitle = _localizedTitle;
@synthesize _identifier = _identifier;

- (id)_initWithLocalIdentifier:(NSString*)localIdentifier
                    identifier:(std::int64_t)identifier
                         title:(NSString*)title {
  self = [super _initWithLocalIdentifier:localIdentifier];
  if (!self) return nil;
  _identifier = identifier;
  _localizedTitle = [title copy];
  return self;
}

- (void)dealloc {
  [_localizedTitle release];
  [super dealloc];
}

- (BOOL)canPerformEditOperation:(NSInteger)operation {
  return _identifier != 0;
}

+ (PHFetchResult*)fetchTopLevelUserCollectionsWithOptions:(PHFetchOptions*)options {
  return [PHFetchResult _resultOf:collectionsIn(0) options:options];
}

+ (PHFetchResult*)fetchCollectionsInCollectionList:(PHCollectionList*)list options:(PHFetchOptions*)options {
  return [PHFetchResult _resultOf:collectionsIn([list _identifier]) options:options];
}

@end

@implementation PHAssetCollection

@synthesize assetCollectionType = _assetCollectionType;
@synthesize assetCollectionSubtype = _assetCollectionSubtype;

+ (PHAssetCollection*)_album:(const CollectionRow&)row {
  PHAssetCollection* album =
      [[[self alloc] _initWithLocalIdentifier:[self _localIdentifierOfAlbum:row.identifier]
                                   identifier:row.identifier
                                        title:text(row.title)] autorelease];
  album->_assetCollectionType = PHAssetCollectionTypeAlbum;
  album->_assetCollectionSubtype = static_cast<NSInteger>(row.subtype);
  return album;
}

+ (PHAssetCollection*)_smartAlbum:(const SmartAlbum&)album {
  NSString* identifier = [NSString stringWithFormat:@"smart-%ld/L0/040", static_cast<long>(album.subtype)];
  PHAssetCollection* made = [[[self alloc] _initWithLocalIdentifier:identifier
                                                         identifier:0
                                                              title:text(album.title)] autorelease];
  made->_assetCollectionType = PHAssetCollectionTypeSmartAlbum;
  made->_assetCollectionSubtype = album.subtype;
  return made;
}

+ (PHFetchResult*)fetchAssetCollectionsWithType:(NSInteger)type
                                        subtype:(NSInteger)subtype
                                        options:(PHFetchOptions*)options {
  NSMutableArray* found = [NSMutableArray array];
  const auto isAskedFor = [&](NSInteger other) {
    return subtype == PHAssetCollectionSubtypeAny || subtype == other;
  };
  if (type == PHAssetCollectionTypeAlbum) {
    for (PHAssetCollection* album in albums(sharedPhotoDatabase().allAlbums())) {
      if (isAskedFor([album assetCollectionSubtype])) [found addObject:album];
    }
  }
  if (type == PHAssetCollectionTypeSmartAlbum) {
    for (const SmartAlbum& album : kSmartAlbums) {
      if (isAskedFor(album.subtype)) [found addObject:[self _smartAlbum:album]];
    }
  }
  return [PHFetchResult _resultOf:found options:options];
}

+ (PHFetchResult*)fetchAssetCollectionsWithLocalIdentifiers:(NSArray*)identifiers
                                                    options:(PHFetchOptions*)options {
  NSMutableArray* found = [NSMutableArray arrayWithArray:albums(sharedPhotoDatabase().allAlbums())];
  for (const SmartAlbum& album : kSmartAlbums) [found addObject:[self _smartAlbum:album]];
  NSPredicate* isNamed = [NSPredicate predicateWithFormat:@"localIdentifier IN %@", identifiers];
  [found filterUsingPredicate:isNamed];
  return [PHFetchResult _resultOf:found options:options];
}

+ (PHFetchResult*)fetchAssetCollectionsContainingAsset:(PHAsset*)asset
                                              withType:(NSInteger)type
                                               options:(PHFetchOptions*)options {
  NSArray* found = type == PHAssetCollectionTypeAlbum
                       ? albums(sharedPhotoDatabase().albumsContaining([asset _identifier]))
                       : [NSArray array];
  return [PHFetchResult _resultOf:found options:options];
}

+ (PHAssetCollection*)_cameraRoll {
  return [[self fetchAssetCollectionsWithType:PHAssetCollectionTypeSmartAlbum
                                      subtype:PHAssetCollectionSubtypeSmartAlbumUserLibrary
                                      options:nil] firstObject];
}

+ (NSString*)_localIdentifierOfAlbum:(std::int64_t)identifier {
  return [NSString stringWithFormat:@"%lld/L0/040", static_cast<long long>(identifier)];
}

- (std::vector<AssetRow>)_assetRows {
  if (_assetCollectionType == PHAssetCollectionTypeAlbum) {
    return sharedPhotoDatabase().assetsInAlbum(_identifier);
  }
  std::vector<AssetRow> rows = sharedPhotoDatabase().allAssets();
  std::erase_if(rows, [&](const AssetRow& row) { return !belongs(row, _assetCollectionSubtype); });
  return rows;
}

- (BOOL)canPerformEditOperation:(NSInteger)operation {
  return _assetCollectionSubtype == PHAssetCollectionSubtypeAlbumRegular;
}

- (NSString*)title {
  return _localizedTitle;
}

- (NSUInteger)estimatedAssetCount {
  if (_assetCollectionType != PHAssetCollectionTypeAlbum) return NSNotFound;
  const std::vector<AssetRow> rows = [self _assetRows];
  return static_cast<NSUInteger>(std::ranges::count(rows, false, &AssetRow::isHidden));
}

- (BOOL)isTrashBin {
  return _assetCollectionSubtype == PHAssetCollectionSubtypeTrashBin;
}

- (BOOL)startsAtEnd {
  return _assetCollectionSubtype == PHAssetCollectionSubtypeSmartAlbumUserLibrary;
}

- (BOOL)keyAssetsAtEnd {
  return _assetCollectionSubtype == PHAssetCollectionSubtypeSmartAlbumUserLibrary;
}

@end

@implementation PHCollectionList

+ (PHCollectionList*)_folder:(const CollectionRow&)row {
  NSString* identifier = [NSString stringWithFormat:@"%lld/L0/020", static_cast<long long>(row.identifier)];
  return [[[self alloc] _initWithLocalIdentifier:identifier identifier:row.identifier
                                           title:text(row.title)] autorelease];
}

+ (PHCollectionList*)transientCollectionListWithCollections:(NSArray*)collections title:(NSString*)title {
  NSString* identifier = [[NSUUID UUID] UUIDString];
  PHCollectionList* list = [[[self alloc] _initWithLocalIdentifier:identifier identifier:0
                                                             title:title] autorelease];
  list->_transientCollections = [collections copy];
  return list;
}

+ (PHFetchResult*)fetchRootAlbumCollectionListWithOptions:(PHFetchOptions*)options {
  PHCollectionList* root =
      [[[self alloc] _initWithLocalIdentifier:@"root/L0/020"
                                   identifier:0
                                        title:@"PXUserCollectionsSectionTitle"] autorelease];
  return [PHFetchResult _resultOf:[NSArray arrayWithObject:root] options:options];
}

- (void)dealloc {
  [_transientCollections release];
  [super dealloc];
}

- (NSInteger)collectionListType {
  return PHCollectionListTypeFolder;
}

- (NSInteger)collectionListSubtype {
  return 100;
}

- (NSArray*)collections {
  return _transientCollections ? _transientCollections : collectionsIn(_identifier);
}

@end
