#pragma once

#import "device/frameworks/Photos/Photos.h"

@interface PXSectionedDataSourceManager : NSObject
@end

@interface PXCollectionsDataSourceManager : PXSectionedDataSourceManager
@end

/// Which collections of a list are shown.
@interface PXPhotoKitCollectionsDataSourceManager : PXCollectionsDataSourceManager {
  PHCollectionList* _collectionList;
}
- (id)initWithCollectionList:(PHCollectionList*)list;
- (BOOL)_containsAnyAssets:(PHCollection*)collection;
/// Whether the owner may put it into another place of the list.
- (BOOL)canReorderCollection:(PHCollection*)collection;
/// What the owner made, and what else holds something now.
- (NSArray*)_collections;
@end

/// What the Photos app shows of a collection: hidden assets in the Hidden album only.
PHFetchResult* PUAssetsInCollection(PHAssetCollection* collection);
