#pragma once

#include <vector>

#import "device/frameworks/Photos/PHObject.h"
#include "device/frameworks/Photos/photo_database.hpp"

@class PHAsset, PHCollectionList;

enum PHAssetCollectionType : NSInteger {
  PHAssetCollectionTypeAlbum = 1,
  PHAssetCollectionTypeSmartAlbum = 2,
  PHAssetCollectionTypeMoment = 3,
  PHAssetCollectionTypeImportHistory = 9,
};

enum PHAssetCollectionSubtype : NSInteger {
  PHAssetCollectionSubtypeAlbumRegular = 2,
  PHAssetCollectionSubtypeAlbumSyncedAlbum = 5,
  PHAssetCollectionSubtypeAlbumCloudShared = 101,
  PHAssetCollectionSubtypeSmartAlbumGeneric = 200,
  PHAssetCollectionSubtypeSmartAlbumVideos = 202,
  PHAssetCollectionSubtypeSmartAlbumFavorites = 203,
  PHAssetCollectionSubtypeSmartAlbumAllHidden = 205,
  PHAssetCollectionSubtypeSmartAlbumUserLibrary = 209,
  PHAssetCollectionSubtypeSmartAlbumLivePhotos = 213,
  PHAssetCollectionSubtypeTrashBin = 1000000201,
  PHAssetCollectionSubtypePlaces = 1000000203,
  PHAssetCollectionSubtypeAny = NSIntegerMax,
};

enum PHCollectionEditOperation : NSInteger {
  PHCollectionEditOperationDeleteContent = 1,
  PHCollectionEditOperationRemoveContent = 2,
  PHCollectionEditOperationAddContent = 3,
  PHCollectionEditOperationCreateContent = 4,
  PHCollectionEditOperationRearrangeContent = 5,
  PHCollectionEditOperationDelete = 6,
  PHCollectionEditOperationRename = 7,
};

@interface PHCollection : PHObject {
  std::int64_t _identifier;
  NSString* _localizedTitle;
}
/// May be nil.
@property(nonatomic, readonly) NSString* localizedTitle;
/// The number of an album or folder in the library, 0 for what is not kept there.
@property(nonatomic, readonly) std::int64_t _identifier;
/// Whether the owner may do that: anything to albums and folders of the phone's own, nothing to others.
- (BOOL)canPerformEditOperation:(NSInteger)operation;
/// The albums and folders at the top level, without shared albums.
+ (PHFetchResult*)fetchTopLevelUserCollectionsWithOptions:(PHFetchOptions*)options;
/// Those in a folder.
+ (PHFetchResult*)fetchCollectionsInCollectionList:(PHCollectionList*)list options:(PHFetchOptions*)options;
@end

@interface PHAssetCollection : PHCollection {
  NSInteger _assetCollectionType;
  NSInteger _assetCollectionSubtype;
  std::int64_t _day;
  NSArray* _transientAssets;
}
@property(nonatomic, readonly) NSString* title;
@property(nonatomic, readonly) NSInteger assetCollectionType;
@property(nonatomic, readonly) NSInteger assetCollectionSubtype;
/// Without the hidden ones; NSNotFound for a smart album or the import history, which have no quick estimate.
@property(nonatomic, readonly) NSUInteger estimatedAssetCount;
@property(nonatomic, readonly) BOOL isTrashBin;
@property(nonatomic, readonly) BOOL startsAtEnd;
@property(nonatomic, readonly) BOOL keyAssetsAtEnd;

+ (PHFetchResult*)fetchAssetCollectionsWithType:(NSInteger)type
                                        subtype:(NSInteger)subtype
                                        options:(PHFetchOptions*)options;
+ (PHFetchResult*)fetchAssetCollectionsWithLocalIdentifiers:(NSArray*)identifiers
                                                    options:(PHFetchOptions*)options;
/// One for each day (in UTC) of the library's assets that are not hidden, oldest first. They have no titles.
+ (PHFetchResult*)fetchMomentsWithOptions:(PHFetchOptions*)options;
/// Never finds a smart album.
+ (PHFetchResult*)fetchAssetCollectionsContainingAsset:(PHAsset*)asset
                                              withType:(NSInteger)type
                                               options:(PHFetchOptions*)options;

/// An album that is kept nowhere and cannot be edited: these assets in their order, while the library has
/// them.
+ (PHAssetCollection*)transientAssetCollectionWithAssets:(NSArray*)assets title:(NSString*)title;

/// The smart album of all that the library holds.
+ (PHAssetCollection*)_cameraRoll;
+ (NSString*)_localIdentifierOfAlbum:(std::int64_t)identifier;
/// Its assets as the library holds them now, hidden ones included.
- (std::vector<device::AssetRow>)_assetRows;
@end

/// A folder. It has no title, type or trash bin of an asset collection.
@interface PHCollectionList : PHCollection {
  NSArray* _transientCollections;
}
/// Its members as the library holds them now.
@property(nonatomic, readonly) NSArray* collections;
/// A list that is kept nowhere.
+ (PHCollectionList*)transientCollectionListWithCollections:(NSArray*)collections title:(NSString*)title;
/// One list with all that is at the top level, "PXUserCollectionsSectionTitle".
+ (PHFetchResult*)fetchRootAlbumCollectionListWithOptions:(PHFetchOptions*)options;
@end
