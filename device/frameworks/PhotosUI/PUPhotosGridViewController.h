#pragma once

#import "device/frameworks/Photos/Photos.h"
#import "device/frameworks/UIKit/UIKit.h"

/// A photo in a grid. It reads "Photo, 2020-05-01 12:00:00", or "Video, ...", by its creation date in UTC.
@interface PUPhotosGridCell : UICollectionViewCell
- (void)_setAsset:(PHAsset*)asset;
@end

@interface PUPhotosGridViewController : UICollectionViewController {
  PHFetchResult* _assets;
}
/// What it shows, fetched again each time it appears.
- (PHFetchResult*)_fetchAssets;
@end

/// All of the user's library.
@interface PUZoomableGridViewController : PUPhotosGridViewController
@end

@interface PUPhotosAlbumViewController : PUPhotosGridViewController {
  PHAssetCollection* _assetCollection;
}
@property(nonatomic, readonly) PHAssetCollection* assetCollection;
- (void)setAssetCollection:(PHAssetCollection*)collection;
- (void)setAssetCollection:(PHAssetCollection*)collection
    fetchResultContainingAssetCollection:(PHFetchResult*)result
                         filterPredicate:(NSPredicate*)predicate
                    existingFetchResults:(id)results;
@end
