#pragma once

#import "device/frameworks/PhotosUI/PUAlbumListCell.h"

@class UITableView;

@interface PUCollectionView : UICollectionView
@end

/// The albums and folders of a collection list as tiles. "Edit" begins editing, in which each tile can be
/// deleted, and "Done" ends it.
@interface PUAlbumListViewController : UIViewController <UICollectionViewDataSource,
                                                         UICollectionViewDelegate,
                                                         PUAlbumListCellContentViewDelegate> {
  PHCollectionList* _collectionList;
  NSArray* _collections;
  PUCollectionView* _mainCollectionView;
  PUAlbumListCellContentViewHelper* _helper;
}
- (id)initWithCollectionList:(PHCollectionList*)list;

@property(nonatomic, readonly) UICollectionView* collectionView;
@property(nonatomic, readonly) PUCollectionView* _mainCollectionView;
/// Nil: the list is never shown as a table here.
@property(nonatomic, readonly) UITableView* _mainTableView;
/// Nil: nobody picks photos here.
@property(nonatomic, readonly) UIView* _pickerBannerView;

// Each of these raises for no index path.
- (PHCollection*)collectionAtIndexPath:(NSIndexPath*)path;
- (BOOL)isPlaceholderAtIndexPath:(NSIndexPath*)path;
- (void)didSelectItemAtIndexPath:(NSIndexPath*)path;
/// Nil when the tile is not in sight.
- (PUAlbumListCellContentView*)_preparedAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path;

- (NSIndexPath*)indexPathForAlbumListCellContentView:(PUAlbumListCellContentView*)tile;
- (NSString*)subtitleForCollection:(PHCollection*)collection;
/// Shows what the library holds now.
- (void)reloadContentView;
- (void)_handleDoneButton:(id)sender;
@end

/// Where touching the tile of a collection leads: the album's photos, or the folder's list.
UIViewController* PUViewControllerForCollection(PHCollection* collection);

@interface UIViewController (PhotosUI)
- (BOOL)pu_wantsTabBarVisible;
@end
