#pragma once

#import "device/frameworks/PhotosUI/PUAlbumListCell.h"
#import "device/frameworks/PhotosUI/PXGadgetViewController.h"

/// An album in the strip.
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

/// The strip of the user's albums, "My Albums". Its "See All" leads to the full list.
@interface PUHorizontalAlbumListGadget : PXHorizontalCollectionGadget
@end

/// The first screen of the albums tab.
@interface PUAlbumsGadgetViewController : PXGadgetViewController
- (void)_handleDoneButton:(id)sender;
@end
