#pragma once

#import "device/frameworks/Photos/Photos.h"
#import "device/frameworks/UIKit/UIKit.h"

@class PUAlbumListCellContentView;

@protocol PUAlbumListCellContentViewDelegate <NSObject>
- (void)albumListCellContentView:(PUAlbumListCellContentView*)view performDeleteAction:(id)action;
@end

/// A pile of an album's key photos, each a view of the photo's colour.
@interface PUStackView : UIView
- (void)_setColors:(NSArray*)colors;
@end

@interface PXUIButton : UIButton
@end

/// An album's tile.
@interface PUAlbumListCellContentView : UIView {
  PUStackView* _stackView;
  UITextField* _titleTextField;
  UILabel* _subtitleLabel;
  PXUIButton* _deleteButton;
  NSString* _title;
  CGSize _stackSize;
  id<PUAlbumListCellContentViewDelegate> _delegate;
  BOOL _editing;
  BOOL _showsDeleteButtonWhileEditing;
}
@property(nonatomic, copy) NSString* title;
@property(nonatomic, copy) NSString* subtitle;
@property(nonatomic, readonly) PUStackView* stackView;
/// None, as at first, is that of a square as wide as the tile.
@property(nonatomic, setter=_setStackSize:) CGSize _stackSize;
@property(nonatomic, readonly) UITextField* _titleTextField;
@property(nonatomic, readonly) UILabel* _subtitleLabel;
/// Nil outside editing. It reads "Delete <title>".
@property(nonatomic, readonly) PXUIButton* _deleteButton;
@property(nonatomic, assign) id<PUAlbumListCellContentViewDelegate> delegate;
@property(nonatomic) BOOL showsDeleteButtonWhileEditing;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
@end

@interface PUAlbumListCell : UICollectionViewCell {
  PUAlbumListCellContentView* _albumListCellContentView;
}
@property(nonatomic, readonly) PUAlbumListCellContentView* albumListCellContentView;
@end

@interface PUAlbumListCellContentViewHelperConfiguration : NSObject
/// Of a tile's pile of photos, in points.
- (CGSize)stackSize;
@end

/// Fills tiles for whoever shows them.
@interface PUAlbumListCellContentViewHelper : NSObject {
  PUAlbumListCellContentViewHelperConfiguration* _configuration;
}
/// In points, texts included. Ask anew each time that tiles are filled.
- (CGSize)albumCellSize;
/// How many photos or albums it holds.
- (NSString*)subtitleForCollection:(PHCollection*)collection;
/// Of the key photos, none for a folder.
- (NSArray*)_colorsOfCollection:(PHCollection*)collection;
- (void)_fill:(PUAlbumListCellContentView*)tile with:(PHCollection*)collection;
@end
