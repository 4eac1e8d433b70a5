#import "device/frameworks/UIKit/UICollectionView.h"

#include <algorithm>
#include <vector>

NSString* const UICollectionElementKindSectionHeader = @"UICollectionElementKindSectionHeader";

@implementation NSIndexPath (UIKit)

+ (NSIndexPath*)indexPathForItem:(NSInteger)item inSection:(NSInteger)section {
  NSUInteger indexes[] = {static_cast<NSUInteger>(section), static_cast<NSUInteger>(item)};
  return [self indexPathWithIndexes:indexes length:2];
}

- (NSInteger)item {
  return static_cast<NSInteger>([self indexAtPosition:1]);
}

- (NSInteger)section {
  return static_cast<NSInteger>([self indexAtPosition:0]);
}

@end

@implementation UIScrollView

@synthesize contentSize = _contentSize;
@synthesize maximumZoomScale = _maximumZoomScale;
@synthesize zoomScale = _zoomScale;
@synthesize delegate = _delegate;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _maximumZoomScale = _zoomScale = 1;
  [self setClipsToBounds:YES];
  return self;
}

- (CGPoint)contentOffset {
  return _bounds.origin;
}

- (void)setContentOffset:(CGPoint)offset {
  [self setBounds:{offset, _bounds.size}];
  [self setNeedsLayout];
}

- (void)_dragToContentOffset:(CGPoint)offset {
  if ([_delegate respondsToSelector:@selector(scrollViewWillBeginDragging:)]) {
    [_delegate scrollViewWillBeginDragging:self];
  }
  [self setContentOffset:offset];
  if ([_delegate respondsToSelector:@selector(scrollViewDidScroll:)]) [_delegate scrollViewDidScroll:self];
}

- (CGPoint)_endOffset {
  return {std::max(_contentSize.width - _bounds.size.width, 0.0),
          std::max(_contentSize.height - _bounds.size.height, 0.0)};
}

- (void)_stayWithinContent {
  const CGPoint end = [self _endOffset];
  _bounds.origin = {std::clamp(_bounds.origin.x, 0.0, end.x), std::clamp(_bounds.origin.y, 0.0, end.y)};
}

// Zooming.

- (UIView*)_zoomedView {
  if (![_delegate respondsToSelector:@selector(viewForZoomingInScrollView:)]) return nil;
  return [_delegate viewForZoomingInScrollView:self];
}

- (BOOL)_zooms {
  return _maximumZoomScale > 1 && [self _zoomedView];
}

/// The view's frame grows by its size, not by a transform: touches here do not follow one.
- (void)setZoomScale:(CGFloat)scale {
  UIView* zoomed = [self _zoomedView];
  if (!zoomed) return;
  scale = std::max(1.0, std::min(scale, _maximumZoomScale));
  const CGFloat growth = scale / _zoomScale;
  _zoomScale = scale;
  const auto [origin, size] = [zoomed frame];
  [zoomed
      setFrame:CGRectMake(origin.x * growth, origin.y * growth, size.width * growth, size.height * growth)];
  _contentSize = {_contentSize.width * growth, _contentSize.height * growth};
  const CGPoint middle = CGRectGetCenter(_bounds);
  [self setContentOffset:{_bounds.origin.x + middle.x * (growth - 1),
                          _bounds.origin.y + middle.y * (growth - 1)}];
  [self _stayWithinContent];
}

@end

@implementation UICollectionViewLayout

@synthesize _spacing = _spacing;
@synthesize headerReferenceSize = _headerReferenceSize;
@synthesize scrollDirection = _scrollDirection;

@end

@implementation UICollectionViewFlowLayout

@synthesize itemSize = _itemSize;

- (id)init {
  self = [super init];
  if (!self) return nil;
  _itemSize = CGSizeMake(50, 50);
  _spacing = 10;
  return self;
}

@end

@implementation UICollectionReusableView

@synthesize reuseIdentifier = _reuseIdentifier;

- (void)dealloc {
  [_reuseIdentifier release];
  [super dealloc];
}

- (void)prepareForReuse {
}

@end

@implementation UICollectionViewCell

@synthesize contentView = _contentView;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _contentView = [[UIView alloc] initWithFrame:[self bounds]];
  [self addSubview:_contentView];
  return self;
}

- (void)dealloc {
  [_contentView release];
  [super dealloc];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  [_contentView setFrame:[self bounds]];
}

@end

@implementation UICollectionView

@synthesize collectionViewLayout = _layout;
@synthesize dataSource = _dataSource;

- (id)initWithFrame:(CGRect)frame collectionViewLayout:(UICollectionViewLayout*)layout {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _layout = [layout retain];
  _cellClasses = [[NSMutableDictionary alloc] init];
  _reusableCells = [[NSMutableDictionary alloc] init];
  _visibleCells = [[NSMutableDictionary alloc] init];
  _itemCount = -1;
  return self;
}

- (void)dealloc {
  [_layout release];
  [_cellClasses release];
  [_reusableCells release];
  [_visibleCells release];
  [super dealloc];
}

- (void)setDataSource:(id<UICollectionViewDataSource>)dataSource {
  _dataSource = dataSource;
  [self reloadData];
}

- (void)registerClass:(Class)cellClass forCellWithReuseIdentifier:(NSString*)identifier {
  [_cellClasses setObject:NSStringFromClass(cellClass) forKey:identifier];
}

- (id)dequeueReusableCellWithReuseIdentifier:(NSString*)identifier forIndexPath:(NSIndexPath*)path {
  NSMutableArray* reusable = [_reusableCells objectForKey:identifier];
  if ([reusable count]) {
    UICollectionViewCell* cell = [[[reusable lastObject] retain] autorelease];
    [reusable removeLastObject];
    [cell prepareForReuse];
    return cell;
  }
  NSString* name = [_cellClasses objectForKey:identifier];
  if (!name) {
    [NSException raise:NSInternalInconsistencyException
                format:@"could not dequeue a view of kind: UICollectionElementKindCell with identifier %@",
                       identifier];
  }
  UICollectionViewCell* cell = [[[NSClassFromString(name) alloc] initWithFrame:CGRectZero] autorelease];
  [cell setReuseIdentifier:identifier];
  return cell;
}

- (void)_recycleCellAtIndexPath:(NSIndexPath*)path {
  UICollectionViewCell* cell = [_visibleCells objectForKey:path];
  NSString* identifier = [cell reuseIdentifier];
  [cell removeFromSuperview];
  if (identifier) {
    NSMutableArray* reusable = [_reusableCells objectForKey:identifier];
    if (!reusable) [_reusableCells setObject:(reusable = [NSMutableArray array]) forKey:identifier];
    [reusable addObject:cell];
  }
  [_visibleCells removeObjectForKey:path];
}

- (void)reloadData {
  for (NSIndexPath* path in [self indexPathsForVisibleItems]) [self _recycleCellAtIndexPath:path];
  [_header removeFromSuperview];
  _header = nil;
  _itemCount = -1;
  [self setNeedsLayout];
}

- (NSInteger)numberOfSections {
  return 1;
}

- (NSInteger)numberOfItemsInSection:(NSInteger)section {
  if (_itemCount < 0) _itemCount = [_dataSource collectionView:self numberOfItemsInSection:section];
  return _itemCount;
}

- (CGSize)_sizeForItemAtIndexPath:(NSIndexPath*)path {
  if (![_delegate respondsToSelector:@selector(collectionView:layout:sizeForItemAtIndexPath:)]) {
    return [_layout itemSize];
  }
  return [_delegate collectionView:self layout:_layout sizeForItemAtIndexPath:path];
}

/// Where each item lies in the content, whose size follows from it.
- (std::vector<CGRect>)_itemFrames {
  const CGFloat spacing = [_layout _spacing];
  const bool wraps = [_layout scrollDirection] == UICollectionViewScrollDirectionVertical;
  std::vector<CGRect> frames;
  const CGFloat top = [_layout headerReferenceSize].height;
  CGPoint next = {spacing, top + spacing};
  CGFloat lineHeight = 0;
  _contentSize = {0, top};
  for (NSInteger item = 0; item < [self numberOfItemsInSection:0]; ++item) {
    const CGSize size = [self _sizeForItemAtIndexPath:[NSIndexPath indexPathForItem:item inSection:0]];
    if (wraps && next.x > spacing && next.x + size.width + spacing > _bounds.size.width) {
      next = {spacing, next.y + lineHeight + spacing};
      lineHeight = 0;
    }
    const CGRect frame = {next, size};
    frames.push_back(frame);
    next.x += size.width + spacing;
    lineHeight = std::max(lineHeight, size.height);
    _contentSize.width = std::max(_contentSize.width, CGRectGetMaxX(frame) + spacing);
    _contentSize.height = std::max(_contentSize.height, CGRectGetMaxY(frame) + spacing);
  }
  return frames;
}

- (void)layoutSubviews {
  [super layoutSubviews];
  const std::vector<CGRect> frames = [self _itemFrames];
  [self _stayWithinContent];
  for (std::size_t item = 0; item < frames.size(); ++item) {
    NSIndexPath* path = [NSIndexPath indexPathForItem:static_cast<NSInteger>(item) inSection:0];
    const bool isVisible = CGRectIntersectsRect(frames[item], _bounds);
    UICollectionViewCell* cell = [_visibleCells objectForKey:path];
    if (cell && !isVisible) [self _recycleCellAtIndexPath:path];
    if (!isVisible) continue;
    if (!cell) cell = [self _addCellAtIndexPath:path];
    [cell setFrame:frames[item]];
  }
  [self _layOutHeader];
}

- (void)_layOutHeader {
  const CGFloat height = [_layout headerReferenceSize].height;
  if (height <= 0) return;
  if (!_header) {
    // Not retained: it is a subview.
    _header = [_dataSource collectionView:self
        viewForSupplementaryElementOfKind:UICollectionElementKindSectionHeader
                              atIndexPath:[NSIndexPath indexPathForItem:0 inSection:0]];
    if (!_header) {
      [NSException raise:NSInternalInconsistencyException
                  format:@"the view returned from "
                         @"-collectionView:viewForSupplementaryElementOfKind:atIndexPath: is nil"];
    }
    [self addSubview:_header];
  }
  [_header setFrame:CGRectMake(0, 0, _bounds.size.width, height)];
}

- (UICollectionViewCell*)_addCellAtIndexPath:(NSIndexPath*)path {
  UICollectionViewCell* cell = [_dataSource collectionView:self cellForItemAtIndexPath:path];
  if (!cell) {
    [NSException raise:NSInternalInconsistencyException
                format:@"the collection view's data source did not return a valid cell from "
                       @"-collectionView:cellForItemAtIndexPath: for index path %@",
                       path];
  }
  [_visibleCells setObject:cell forKey:path];
  [self addSubview:cell];
  return cell;
}

- (NSArray*)visibleCells {
  return [_visibleCells objectsForKeys:[self indexPathsForVisibleItems] notFoundMarker:[NSNull null]];
}

- (NSArray*)indexPathsForVisibleItems {
  return [[_visibleCells allKeys] sortedArrayUsingSelector:@selector(compare:)];
}

- (UICollectionViewCell*)cellForItemAtIndexPath:(NSIndexPath*)path {
  return path ? [_visibleCells objectForKey:path] : nil;
}

- (NSIndexPath*)indexPathForCell:(UICollectionViewCell*)cell {
  for (NSIndexPath* path in _visibleCells) {
    if ([_visibleCells objectForKey:path] == cell) return path;
  }
  return nil;
}

- (void)_touchCell:(UICollectionViewCell*)cell {
  NSIndexPath* path = [self indexPathForCell:cell];
  if (!path) return;
  if ([_delegate respondsToSelector:@selector(collectionView:shouldSelectItemAtIndexPath:)] &&
      ![_delegate collectionView:self shouldSelectItemAtIndexPath:path]) {
    return;
  }
  if ([_delegate respondsToSelector:@selector(collectionView:didSelectItemAtIndexPath:)]) {
    [_delegate collectionView:self didSelectItemAtIndexPath:path];
  }
}

@end
