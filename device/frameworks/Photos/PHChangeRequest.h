#pragma once

#import "device/frameworks/Photos/PHAsset.h"
#import "device/frameworks/Photos/PHCollection.h"

/// Stands for what a change is to make, under the identifier that it will have.
@interface PHObjectPlaceholder : PHObject
@end

/// All that is asked of a request, its making included, raises outside of a change block.
@interface PHChangeRequest : NSObject
@end

@interface PHAssetCollectionChangeRequest : PHChangeRequest {
  std::int64_t _album;
  PHObjectPlaceholder* _placeholderForCreatedAssetCollection;
}
+ (PHAssetCollectionChangeRequest*)creationRequestForAssetCollectionWithTitle:(NSString*)title;
/// The collection's present assets may be nil. Raises for a collection that nobody may edit.
+ (PHAssetCollectionChangeRequest*)changeRequestForAssetCollection:(PHAssetCollection*)collection
                                                            assets:(PHFetchResult*)assets;
/// Nil unless it makes an album.
@property(nonatomic, readonly) PHObjectPlaceholder* placeholderForCreatedAssetCollection;
- (void)addAssets:(id<NSFastEnumeration>)assets;
- (void)removeAssets:(id<NSFastEnumeration>)assets;
/// Their assets stay in the library. Raises when one of them is not the owner's to delete.
+ (void)deleteAssetCollections:(id<NSFastEnumeration>)collections;
@end

@interface PHCollectionListChangeRequest : PHChangeRequest
/// What they hold goes with them. Raises as for asset collections.
+ (void)deleteCollectionLists:(id<NSFastEnumeration>)lists;
@end

@interface PHAssetChangeRequest : PHChangeRequest {
  std::int64_t _asset;
  BOOL _hidden;
}
+ (PHAssetChangeRequest*)changeRequestForAsset:(PHAsset*)asset;
@property(nonatomic, getter=isHidden) BOOL hidden;
+ (void)deleteAssets:(id<NSFastEnumeration>)assets;
@end
