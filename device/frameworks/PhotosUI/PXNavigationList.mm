#import "device/frameworks/PhotosUI/PXNavigationList.h"

#import "device/frameworks/PhotosUI/PUAlbumListViewController.h"

namespace {
NSString* const kCell = @"PXNavigationListCell";
constexpr CGFloat kRowHeight = 44;
constexpr CGFloat kMargin = 16;
constexpr CGFloat kDetailWidth = 80;
constexpr CGFloat kSquareSize = 16;
constexpr CGFloat kSquareSpacing = 2;
}  // namespace

@implementation PXNavigationListCell

@synthesize titleLabel = _titleLabel;
@synthesize detailLabel = _detailLabel;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _squares = [[NSMutableArray alloc] init];
  _titleLabel = [[UILabel alloc] init];
  _detailLabel = [[UILabel alloc] init];
  [_detailLabel setTextColor:[UIColor colorWithWhite:0.55 alpha:1]];
  [_detailLabel setTextAlignment:NSTextAlignmentRight];
  [[self contentView] addSubview:_titleLabel];
  [[self contentView] addSubview:_detailLabel];
  return self;
}

- (void)dealloc {
  [_squares release];
  [_titleLabel release];
  [_detailLabel release];
  [super dealloc];
}

- (void)_setColors:(NSArray*)colors {
  for (UIView* square in _squares) [square removeFromSuperview];
  [_squares removeAllObjects];
  for (UIColor* color in colors) {
    UIView* square = [[[UIView alloc] init] autorelease];
    [square setBackgroundColor:color];
    [_squares addObject:square];
    [[self contentView] addSubview:square];
  }
  [self setNeedsLayout];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  const CGSize size = [self bounds].size;
  CGFloat right = size.width - kMargin - kDetailWidth;
  [_detailLabel setFrame:CGRectMake(right, 0, kDetailWidth, size.height)];
  for (UIView* square in [_squares reverseObjectEnumerator]) {
    right -= kSquareSize + kSquareSpacing;
    [square setFrame:CGRectMake(right, (size.height - kSquareSize) / 2, kSquareSize, kSquareSize)];
  }
  [_titleLabel setFrame:CGRectMake(kMargin, 0, right - kMargin, size.height)];
}

@end

@implementation PXNavigationListController

@synthesize _dataSourceManager = _dataSourceManager;

- (id)init {
  UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
  [layout setItemSize:CGSizeMake([[UIScreen mainScreen] bounds].size.width, kRowHeight)];
  [layout _setSpacing:0];
  return [super initWithCollectionViewLayout:layout];
}

- (void)dealloc {
  [_dataSourceManager release];
  [_collections release];
  [super dealloc];
}

- (void)viewDidLoad {
  [super viewDidLoad];
  [[self collectionView] registerClass:[PXNavigationListCell class] forCellWithReuseIdentifier:kCell];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [_collections release];
  _collections = [[_dataSourceManager _collections] copy];
  [[self collectionView] reloadData];
}

- (PHCollection*)_collectionAtIndexPath:(NSIndexPath*)path {
  return [_collections objectAtIndex:static_cast<NSUInteger>([path item])];
}

- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section {
  return static_cast<NSInteger>([_collections count]);
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path {
  PXNavigationListCell* cell = [view dequeueReusableCellWithReuseIdentifier:kCell forIndexPath:path];
  PUAlbumListCellContentViewHelper* helper = [[[PUAlbumListCellContentViewHelper alloc] init] autorelease];
  PHCollection* collection = [self _collectionAtIndexPath:path];
  [[cell titleLabel] setText:[collection localizedTitle]];
  [[cell detailLabel] setText:[helper subtitleForCollection:collection]];
  return cell;
}

- (void)collectionView:(UICollectionView*)view didSelectItemAtIndexPath:(NSIndexPath*)path {
  UIViewController* next = PUViewControllerForCollection([self _collectionAtIndexPath:path]);
  [[self navigationController] pushViewController:next animated:YES];
}

@end

@implementation PXNavigationListGadget

- (NSUInteger)gadgetType {
  return PXGadgetTypeNavigationList;
}

- (NSString*)localizedTitle {
  return [self title];
}

- (UIView*)contentView {
  return [self view];
}

- (CGSize)sizeThatFits:(CGSize)size {
  return CGSizeMake(size.width, kRowHeight * static_cast<CGFloat>([_collections count]));
}

@end
