#pragma once

#include <span>

#import "device/frameworks/PhotosUI/PUAlbumListCell.h"
#import "device/frameworks/PhotosUI/PXCollectionsDataSourceManager.h"

@class PUPhotosGridViewController, UITableView;

@interface PUCollectionView : UICollectionView
@end

/// The albums and folders of a collection list as tiles, and behind those of the top level "People" and
/// "Places", unless these are empty. "Edit" begins editing, in which each tile can be deleted, and "Done"
/// ends it. Or it lets the user pick the album that selected photos are added to, which is neither of these
/// two.
@interface PUAlbumListViewController : UIViewController <UICollectionViewDataSource,
                                                         UICollectionViewDelegate,
                                                         PUAlbumListCellContentViewDelegate> {
  PXPhotoKitCollectionsDataSourceManager* _dataSourceManager;
  PHCollectionList* (*_fetchList)();
  NSArray* _collections;
  PUCollectionView* _mainCollectionView;
  PUAlbumListCellContentViewHelper* _helper;
  PUPhotosGridViewController* _source;
  UIView* _pickerBannerView;
  BOOL _isTopLevel;
}
- (id)initWithCollectionList:(PHCollectionList*)list;
/// Fetches its list each time that it is reloaded.
- (id)_initFetchingCollectionList:(PHCollectionList* (*)())fetch;

@property(nonatomic, readonly) UICollectionView* collectionView;
@property(nonatomic, readonly) PUCollectionView* _mainCollectionView;
/// Nil: the list is never shown as a table here.
@property(nonatomic, readonly) UITableView* _mainTableView;
/// "Add 2 Photos to an album", above the list; nil unless it picks.
@property(nonatomic, readonly) UIView* _pickerBannerView;

// Each of these raises for no index path.
- (PHCollection*)collectionAtIndexPath:(NSIndexPath*)path;
- (BOOL)isPlaceholderAtIndexPath:(NSIndexPath*)path;
- (void)didSelectItemAtIndexPath:(NSIndexPath*)path;
/// Nil when the tile is not in sight.
- (PUAlbumListCellContentView*)_preparedAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path;

- (NSIndexPath*)indexPathForAlbumListCellContentView:(PUAlbumListCellContentView*)tile;
- (NSString*)subtitleForCollection:(PHCollection*)collection;
/// Asked each time that it is reloaded, as is the other.
- (BOOL)showPeople;
- (BOOL)showPlaces;
/// Shows what the library holds now.
- (void)reloadContentView;
- (void)_handleDoneButton:(id)sender;
/// Makes it pick the album for the photos that are selected there when the user chooses. Before it is shown.
- (void)_pickFor:(PUPhotosGridViewController*)source;
@end

/// The list of all that is at the top level.
PHCollectionList* PUUserCollections();

struct PUCollectionKind {
  NSInteger type;
  NSInteger subtype;
};
inline constexpr PUCollectionKind PUSharedAlbumKinds[] = {
    {PHAssetCollectionTypeAlbum, PHAssetCollectionSubtypeAlbumCloudShared}};

/// A list of what the library holds of these kinds now.
PHCollectionList* PUCollectionsOfKinds(std::span<const PUCollectionKind> kinds, NSString* title);

/// Where touching the tile of a collection leads: the album's photos, or the folder's list.
UIViewController* PUViewControllerForCollection(PHCollection* collection);

@interface UIViewController (PhotosUI)
- (BOOL)pu_wantsTabBarVisible;
@end
