#import "device/frameworks/Photos/PHCollection.h"

#include <algorithm>
#include <cmath>
#include <set>

#import "device/frameworks/Photos/PHAsset.h"

namespace {

using device::AssetRow;
using device::CollectionRow;
using device::MediaType;
using device::PhotoDatabase;
using device::sharedPhotoDatabase;

struct SmartAlbum {
  NSInteger subtype;
  const char* title;
  /// Whether the asset belongs to it besides those that bear its subtype.
  bool (*holds)(const AssetRow& asset);
};

bool all(const AssetRow&) { return true; }
bool none(const AssetRow&) { return false; }

constexpr SmartAlbum kSmartAlbums[] = {
    {PHAssetCollectionSubtypeSmartAlbumUserLibrary, "Camera Roll", all},
    {1000000205, "All Photos", all},
    {206, "Recently Added", none},
    {1000000206, "Recently Edited", none},
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
    {1000000207, "Screen Recordings", none},
    {1000000208, "RAW", none},
    {PHAssetCollectionSubtypeSmartAlbumGeneric, "People", none},
    {PHAssetCollectionSubtypePlaces, "Places", none},
    {216, "Unable to Upload", none},
    {PHAssetCollectionSubtypeSmartAlbumAllHidden, "Hidden",
     [](const AssetRow& asset) { return asset.isHidden; }},
    {PHAssetCollectionSubtypeTrashBin, "Recently Deleted", none},
};

std::int64_t dayOf(const AssetRow& asset) {
  constexpr double kSecondsADay = 24 * 60 * 60;
  return static_cast<std::int64_t>(std::floor(asset.creationDate / kSecondsADay));
}

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
+ (PHAssetCollection*)_momentOfDay:(std::int64_t)day;
+ (PHAssetCollection*)_importHistory;
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

NSArray* moments() {
  std::set<std::int64_t> days;
  for (const AssetRow& row : sharedPhotoDatabase().allAssets()) {
    if (!row.isHidden) days.insert(dayOf(row));
  }
  NSMutableArray* made = [NSMutableArray array];
  for (const std::int64_t day : days) [made addObject:[PHAssetCollection _momentOfDay:day]];
  return made;
}

NSArray* collectionsOfType(NSInteger type) {
  if (type == PHAssetCollectionTypeAlbum) return albums(sharedPhotoDatabase().allAlbums());
  if (type == PHAssetCollectionTypeMoment) return moments();
  NSMutableArray* made = [NSMutableArray array];
  if (type == PHAssetCollectionTypeSmartAlbum) {
    for (const SmartAlbum& album : kSmartAlbums) [made addObject:[PHAssetCollection _smartAlbum:album]];
  } else if (type == PHAssetCollectionTypeImportHistory) {
    [made addObject:[PHAssetCollection _importHistory]];
  }
  return made;
}

NSArray* collectionsIn(std::int64_t folder) {
  NSMutableArray* made = [NSMutableArray array];
  for (const CollectionRow& row : sharedPhotoDatabase().collections(folder)) {
    if (row.subtype == PHAssetCollectionSubtypeAlbumCloudShared) continue;
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

+ (PHAssetCollection*)_collection:(NSString*)localIdentifier
                            title:(NSString*)title
                             type:(NSInteger)type
                          subtype:(NSInteger)subtype {
  PHAssetCollection* made = [[[self alloc] _initWithLocalIdentifier:localIdentifier identifier:0
                                                              title:title] autorelease];
  made->_assetCollectionType = type;
  made->_assetCollectionSubtype = subtype;
  return made;
}

+ (PHAssetCollection*)_album:(const CollectionRow&)row {
  PHAssetCollection* album = [self _collection:[self _localIdentifierOfAlbum:row.identifier]
                                         title:text(row.title)
                                          type:PHAssetCollectionTypeAlbum
                                       subtype:static_cast<NSInteger>(row.subtype)];
  album->_identifier = row.identifier;
  return album;
}

+ (PHAssetCollection*)_smartAlbum:(const SmartAlbum&)album {
  return [self _collection:[NSString stringWithFormat:@"smart-%ld/L0/040", static_cast<long>(album.subtype)]
                     title:text(album.title)
                      type:PHAssetCollectionTypeSmartAlbum
                   subtype:album.subtype];
}

+ (PHAssetCollection*)_momentOfDay:(std::int64_t)day {
  PHAssetCollection* moment =
      [self _collection:[NSString stringWithFormat:@"moment-%lld/L0/060", static_cast<long long>(day)]
                  title:nil
                   type:PHAssetCollectionTypeMoment
                subtype:0];
  moment->_day = day;
  return moment;
}

+ (PHAssetCollection*)_importHistory {
  return [self _collection:@"imports/L0/040"
                     title:@"Imports"
                      type:PHAssetCollectionTypeImportHistory
                   subtype:PHAssetCollectionSubtypeSmartAlbumGeneric];
}

+ (PHAssetCollection*)transientAssetCollectionWithAssets:(NSArray*)assets title:(NSString*)title {
  PHAssetCollection* made = [self _collection:[[NSUUID UUID] UUIDString]
                                        title:title
                                         type:PHAssetCollectionTypeAlbum
                                      subtype:PHAssetCollectionSubtypeAlbumRegular];
  made->_transientAssets = [assets copy];
  return made;
}

- (void)dealloc {
  [_transientAssets release];
  [super dealloc];
}

+ (PHFetchResult*)fetchAssetCollectionsWithType:(NSInteger)type
                                        subtype:(NSInteger)subtype
                                        options:(PHFetchOptions*)options {
  NSMutableArray* found = [NSMutableArray array];
  for (PHAssetCollection* collection in collectionsOfType(type)) {
    if (subtype == PHAssetCollectionSubtypeAny || subtype == [collection assetCollectionSubtype]) {
      [found addObject:collection];
    }
  }
  return [PHFetchResult _resultOf:found options:options];
}

+ (PHFetchResult*)fetchAssetCollectionsWithLocalIdentifiers:(NSArray*)identifiers
                                                    options:(PHFetchOptions*)options {
  NSMutableArray* found = [NSMutableArray array];
  for (const NSInteger type : {PHAssetCollectionTypeAlbum, PHAssetCollectionTypeSmartAlbum,
                               PHAssetCollectionTypeMoment, PHAssetCollectionTypeImportHistory}) {
    [found addObjectsFromArray:collectionsOfType(type)];
  }
  NSPredicate* isNamed = [NSPredicate predicateWithFormat:@"localIdentifier IN %@", identifiers];
  [found filterUsingPredicate:isNamed];
  return [PHFetchResult _resultOf:found options:options];
}

+ (PHFetchResult*)fetchMomentsWithOptions:(PHFetchOptions*)options {
  return [PHFetchResult _resultOf:moments() options:options];
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
  const PhotoDatabase& library = sharedPhotoDatabase();
  if (_identifier) return library.assetsInAlbum(_identifier);
  if (_assetCollectionType == PHAssetCollectionTypeAlbum) return [self _transientRows];
  std::vector<AssetRow> rows = library.allAssets();
  std::erase_if(rows, [&](const AssetRow& row) { return ![self _holds:row]; });
  return rows;
}

- (std::vector<AssetRow>)_transientRows {
  std::vector<AssetRow> rows;
  for (PHAsset* asset in _transientAssets) {
    if (const auto row = sharedPhotoDatabase().asset([asset _identifier])) rows.push_back(*row);
  }
  return rows;
}

/// For what is not kept but gathered from the whole library.
- (BOOL)_holds:(const AssetRow&)asset {
  if (_assetCollectionType == PHAssetCollectionTypeMoment) return dayOf(asset) == _day;
  if (_assetCollectionType == PHAssetCollectionTypeImportHistory) {
    return asset.smartSubtype == device::kImported;
  }
  return belongs(asset, _assetCollectionSubtype);
}

- (BOOL)canPerformEditOperation:(NSInteger)operation {
  return [super canPerformEditOperation:operation] &&
         _assetCollectionSubtype == PHAssetCollectionSubtypeAlbumRegular;
}

- (NSString*)title {
  return _localizedTitle;
}

- (NSUInteger)estimatedAssetCount {
  const bool isCounted = _assetCollectionType == PHAssetCollectionTypeAlbum ||
                         _assetCollectionType == PHAssetCollectionTypeMoment;
  if (!isCounted) return NSNotFound;
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
  list->_transientCollections = collections ? [collections copy] : [[NSArray alloc] init];
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

- (NSArray*)collections {
  return _transientCollections ? _transientCollections : collectionsIn(_identifier);
}

@end
