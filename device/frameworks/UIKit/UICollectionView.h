#pragma once

#import "device/frameworks/UIKit/UIView.h"

@class UICollectionView, UICollectionViewCell;

@interface NSIndexPath (UIKit)
+ (NSIndexPath*)indexPathForItem:(NSInteger)item inSection:(NSInteger)section;
- (NSInteger)item;
- (NSInteger)section;
@end

@class UIScrollView;

@protocol UIScrollViewDelegate <NSObject>
@optional
- (void)scrollViewWillBeginDragging:(UIScrollView*)scrollView;
- (void)scrollViewDidScroll:(UIScrollView*)scrollView;
@end

@interface UIScrollView : UIView {
  CGSize _contentSize;
  id _delegate;
}
@property(nonatomic) CGSize contentSize;
@property(nonatomic) CGPoint contentOffset;
@property(nonatomic, assign) id delegate;
/// Scrolls as a finger does.
- (void)_dragToContentOffset:(CGPoint)offset;
@end

@protocol UICollectionViewDataSource <NSObject>
- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section;
- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path;
@end

@class UICollectionViewLayout;

@protocol UICollectionViewDelegate <UIScrollViewDelegate>
@optional
- (BOOL)collectionView:(UICollectionView*)view shouldSelectItemAtIndexPath:(NSIndexPath*)path;
- (void)collectionView:(UICollectionView*)view didSelectItemAtIndexPath:(NSIndexPath*)path;
- (CGSize)collectionView:(UICollectionView*)view
                    layout:(UICollectionViewLayout*)layout
    sizeForItemAtIndexPath:(NSIndexPath*)path;
@end

enum UICollectionViewScrollDirection : NSInteger {
  UICollectionViewScrollDirectionVertical = 0,
  UICollectionViewScrollDirectionHorizontal = 1,
};

@interface UICollectionViewLayout : NSObject
@end

/// Rows from left to right under one another; a horizontal one has a single row.
@interface UICollectionViewFlowLayout : UICollectionViewLayout {
  CGSize _itemSize;
  CGFloat _spacing;
  NSInteger _scrollDirection;
}
@property(nonatomic) CGSize itemSize;
/// Between items, between lines and around them all.
@property(nonatomic, setter=_setSpacing:) CGFloat _spacing;
@property(nonatomic) NSInteger scrollDirection;
@end

@interface UICollectionReusableView : UIView {
  NSString* _reuseIdentifier;
}
@property(nonatomic, copy) NSString* reuseIdentifier;
- (void)prepareForReuse;
@end

@interface UICollectionViewCell : UICollectionReusableView {
  UIView* _contentView;
}
/// Fills the cell.
@property(nonatomic, readonly) UIView* contentView;
@end

/// One section of cells, of which those exist that are in sight.
@interface UICollectionView : UIScrollView {
  UICollectionViewFlowLayout* _layout;
  id<UICollectionViewDataSource> _dataSource;
  NSMutableDictionary* _cellClasses;
  NSMutableDictionary* _reusableCells;
  NSMutableDictionary* _visibleCells;
  NSInteger _itemCount;
}
- (id)initWithFrame:(CGRect)frame collectionViewLayout:(UICollectionViewFlowLayout*)layout;
@property(nonatomic, readonly) UICollectionViewFlowLayout* collectionViewLayout;
/// Not retained, nor is the delegate.
@property(nonatomic, assign) id<UICollectionViewDataSource> dataSource;
- (void)registerClass:(Class)cellClass forCellWithReuseIdentifier:(NSString*)identifier;
- (id)dequeueReusableCellWithReuseIdentifier:(NSString*)identifier forIndexPath:(NSIndexPath*)path;
- (void)reloadData;
- (NSInteger)numberOfSections;
- (NSInteger)numberOfItemsInSection:(NSInteger)section;
/// In the order of their items.
@property(nonatomic, readonly) NSArray* visibleCells;
@property(nonatomic, readonly) NSArray* indexPathsForVisibleItems;
/// Nil when the item is not in sight.
- (UICollectionViewCell*)cellForItemAtIndexPath:(NSIndexPath*)path;
- (NSIndexPath*)indexPathForCell:(UICollectionViewCell*)cell;
/// What a finger's touch of the cell does.
- (void)_touchCell:(UICollectionViewCell*)cell;
@end
