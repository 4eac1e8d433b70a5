#import "device/frameworks/PhotosUI/PXCollectionsDataSourceManager.h"

namespace {

/// Unlike smart albums, which the phone gathers.
bool isKept(PHCollection* collection) {
  return ![collection isKindOfClass:[PHAssetCollection class]] ||
         [static_cast<PHAssetCollection*>(collection) assetCollectionType] == PHAssetCollectionTypeAlbum;
}

}  // namespace

PHFetchResult* PUAssetsInCollection(PHAssetCollection* collection) {
  PHFetchOptions* options = nil;
  if ([collection assetCollectionSubtype] == PHAssetCollectionSubtypeSmartAlbumAllHidden) {
    options = [[[PHFetchOptions alloc] init] autorelease];
    [options setIncludeHiddenAssets:YES];
  }
  return [PHAsset fetchAssetsInAssetCollection:collection options:options];
}

@implementation PXSectionedDataSourceManager
@end

@implementation PXCollectionsDataSourceManager
@end

@implementation PXPhotoKitCollectionsDataSourceManager

- (id)initWithCollectionList:(PHCollectionList*)list {
  self = [super init];
  if (self) _collectionList = [list retain];
  return self;
}

- (void)dealloc {
  [_collectionList release];
  [super dealloc];
}

- (BOOL)_containsAnyAssets:(PHCollection*)collection {
  return [collection isKindOfClass:[PHAssetCollection class]] &&
         [PUAssetsInCollection(static_cast<PHAssetCollection*>(collection)) count] > 0;
}

- (BOOL)canReorderCollection:(PHCollection*)collection {
  return [collection canPerformEditOperation:PHCollectionEditOperationRearrangeContent];
}

- (NSArray*)_collections {
  NSMutableArray* shown = [NSMutableArray array];
  for (PHCollection* collection in [_collectionList collections]) {
    if (isKept(collection) || [self _containsAnyAssets:collection]) [shown addObject:collection];
  }
  return shown;
}

@end
