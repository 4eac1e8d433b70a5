#pragma once

#import "device/frameworks/Photos/Photos.h"
#import "device/frameworks/UIKit/UIKit.h"

/// "1 Photo", "2 Photos".
NSString* PUNumberOfPhotos(NSUInteger count);

/// A photo in a grid. It reads "Photo, 2020-05-01 12:00:00", or "Video, ...", by its creation date in UTC;
/// a selected one, "Photo, ..., selected".
@interface PUPhotosGridCell : UICollectionViewCell
- (void)_setAsset:(PHAsset*)asset selected:(BOOL)selected;
@end

@interface PUSectionedGridLayout : UICollectionViewLayout {
  CGSize _itemSize;
}
@property(nonatomic) CGSize itemSize;
@end

@interface PUPhotosSectionHeaderView : UICollectionReusableView {
  UILabel* _titleLabel;
}
@property(nonatomic, readonly) UILabel* titleLabel;
@end

/// The photos of a collection, fetched again each time it appears. Touching one shows it alone. "Select"
/// begins editing, in which touching a photo selects it, and its toolbar tells what can be done with the
/// selection.
@interface PUPhotosGridViewController : UICollectionViewController {
  PHFetchResult* _assets;
  NSMutableSet* _selectedAssets;
  BOOL _initiallyScrolledToBottom;
  BOOL _hasAppeared;
}
/// Whether it opens at its end, also when its collection does not start there.
@property(nonatomic) BOOL initiallyScrolledToBottom;
/// Empty outside of editing.
@property(nonatomic, readonly) NSSet* selectedAssets;
/// Takes the selection out of the collection, where the user may; else nothing happens. The block, which may
/// be nil, follows on the main thread.
- (void)_removeSelectedAssetsWithCompletion:(void (^)(void))done;
/// Shows what the library holds now.
- (void)_refetch;
- (PHAssetCollection*)_shownCollection;
/// Whether the days of its photos are told above them.
- (BOOL)_showsSectionHeader;
@end

/// All of the user's library.
@interface PUZoomableGridViewController : PUPhotosGridViewController
@end

@interface PUPhotosAlbumViewController : PUPhotosGridViewController {
  PHAssetCollection* _assetCollection;
}
@property(nonatomic, readonly) PHAssetCollection* assetCollection;
@property(nonatomic, readonly) BOOL shouldShowSectionHeaders;
- (void)setAssetCollection:(PHAssetCollection*)collection;
- (void)setAssetCollection:(PHAssetCollection*)collection
    fetchResultContainingAssetCollection:(PHFetchResult*)result
                         filterPredicate:(NSPredicate*)predicate
                    existingFetchResults:(id)results;
@end
