#pragma once

#import "device/frameworks/PhotosUI/PUAlbumListCell.h"
#import "device/frameworks/PhotosUI/PXCollectionsDataSourceManager.h"
#import "device/frameworks/PhotosUI/PXGadgetViewController.h"

enum PUAlbumListType : NSUInteger {
  PUAlbumListTypeUserAlbums = 1,
  PUAlbumListTypeSharedAlbums = 2,
  PUAlbumListTypePeopleAndPlaces = 3,
};

@interface PXGadgetProvider : NSObject
@end

@interface PUAlbumsGadgetProvider : PXGadgetProvider {
  NSUInteger _albumListType;
}
- (id)initWithAlbumListType:(NSUInteger)type;
@property(nonatomic, readonly) NSUInteger albumListType;
@end

/// An album in a strip.
@interface PUAlbumGadget : NSObject <PXGadget> {
  PHCollection* _collection;
  PUAlbumListCellContentViewHelper* _helper;
  PUAlbumListCellContentView* _albumListCellContentView;
}
- (id)initWithCollection:(PHCollection*)collection;
/// Setting it shows what the collection holds now.
@property(nonatomic, retain) PHCollection* collection;
@property(nonatomic, readonly) NSString* title;
@property(nonatomic, readonly) PUAlbumListCellContentView* albumListCellContentView;
@end

/// A strip of albums. That of the user's has a "See All" that leads to the full list.
@interface PUHorizontalAlbumListGadget : PXHorizontalCollectionGadget {
  PUAlbumsGadgetProvider* _provider;
  PXPhotoKitCollectionsDataSourceManager* _dataSourceManager;
}
- (id)initWithProvider:(PUAlbumsGadgetProvider*)provider;
@property(nonatomic, readonly) PUAlbumsGadgetProvider* provider;
@property(nonatomic, retain, setter=_setDataSourceManager:)
    PXPhotoKitCollectionsDataSourceManager* _dataSourceManager;
@end

/// The first screen of the albums tab: a strip or a list for each kind of album, unless it would be empty.
@interface PUAlbumsGadgetViewController : PXGadgetViewController {
  NSArray* _sections;
}
- (void)_handleDoneButton:(id)sender;
@end
