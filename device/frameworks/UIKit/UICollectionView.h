#pragma once

#import "device/frameworks/UIKit/UIView.h"

@class UICollectionReusableView, UICollectionView, UICollectionViewCell;

extern NSString* const UICollectionElementKindSectionHeader;

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
/// The scroll view zooms only with an answer.
- (UIView*)viewForZoomingInScrollView:(UIScrollView*)scrollView;
@end

@interface UIScrollView : UIView {
  CGSize _contentSize;
  CGFloat _maximumZoomScale;
  CGFloat _zoomScale;
  id _delegate;
}
@property(nonatomic) CGSize contentSize;
@property(nonatomic) CGPoint contentOffset;
@property(nonatomic) CGFloat maximumZoomScale;
/// Kept between 1 and the maximum. What is in the middle stays there, as far as the content reaches.
@property(nonatomic) CGFloat zoomScale;
@property(nonatomic, assign) id delegate;
/// Whether two fingers zoom it.
@property(nonatomic, readonly) BOOL _zooms;
/// Where the end of its content is in sight.
@property(nonatomic, readonly) CGPoint _endOffset;
/// Scrolls as a finger does.
- (void)_dragToContentOffset:(CGPoint)offset;
@end

@protocol UICollectionViewDataSource <NSObject>
- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section;
- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path;
@optional
- (UICollectionReusableView*)collectionView:(UICollectionView*)view
          viewForSupplementaryElementOfKind:(NSString*)kind
                                atIndexPath:(NSIndexPath*)path;
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

/// Rows from left to right under one another; a horizontal one has a single row.
@interface UICollectionViewLayout : NSObject {
  CGFloat _spacing;
  CGSize _headerReferenceSize;
  NSInteger _scrollDirection;
}
/// Between items, between lines and around them all.
@property(nonatomic, setter=_setSpacing:) CGFloat _spacing;
/// A header without height is none; its width is the collection view's.
@property(nonatomic) CGSize headerReferenceSize;
@property(nonatomic) NSInteger scrollDirection;
@end

/// What each of its subclasses has, and it has not.
@interface UICollectionViewLayout (ItemSize)
@property(nonatomic) CGSize itemSize;
@end

@interface UICollectionViewFlowLayout : UICollectionViewLayout {
  CGSize _itemSize;
}
@property(nonatomic) CGSize itemSize;
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
  UICollectionViewLayout* _layout;
  id<UICollectionViewDataSource> _dataSource;
  NSMutableDictionary* _cellClasses;
  NSMutableDictionary* _reusableCells;
  NSMutableDictionary* _visibleCells;
  UICollectionReusableView* _header;
  NSInteger _itemCount;
}
- (id)initWithFrame:(CGRect)frame collectionViewLayout:(UICollectionViewLayout*)layout;
@property(nonatomic, readonly) UICollectionViewLayout* collectionViewLayout;
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
