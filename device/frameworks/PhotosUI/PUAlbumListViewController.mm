#import "device/frameworks/PhotosUI/PUAlbumListViewController.h"

#include "device/frameworks/Photos/shared_photo_database.hpp"
#import "device/frameworks/PhotosUI/PUPhotosGridViewController.h"

namespace {
NSString* const kCell = @"PUAlbumListCell";
constexpr CGFloat kSpacing = 16;
}  // namespace

UIViewController* PUViewControllerForCollection(PHCollection* collection) {
  if (![collection isKindOfClass:[PHAssetCollection class]]) {
    PUAlbumListViewController* list = [PUAlbumListViewController alloc];
    list = [[list initWithCollectionList:(PHCollectionList*)collection] autorelease];
    [list setTitle:[collection localizedTitle]];
    return list;
  }
  PUPhotosAlbumViewController* album = [[[PUPhotosAlbumViewController alloc] init] autorelease];
  [album setAssetCollection:(PHAssetCollection*)collection];
  return album;
}

@implementation UIViewController (PhotosUI)

- (BOOL)pu_wantsTabBarVisible {
  return YES;
}

@end

@implementation PUCollectionView
@end

@implementation PUAlbumListViewController

@synthesize _mainCollectionView = _mainCollectionView;

- (id)initWithCollectionList:(PHCollectionList*)list {
  self = [super init];
  if (!self) return nil;
  _collectionList = [list retain];
  _helper = [[PUAlbumListCellContentViewHelper alloc] init];
  [self _updateNavigationItem];
  return self;
}

- (void)dealloc {
  [_mainCollectionView setDelegate:nil];
  [_mainCollectionView setDataSource:nil];
  [_mainCollectionView release];
  [_collectionList release];
  [_collections release];
  [_helper release];
  [super dealloc];
}

- (UICollectionView*)collectionView {
  return _mainCollectionView;
}

- (UITableView*)_mainTableView {
  return nil;
}

- (UIView*)_pickerBannerView {
  return nil;
}

- (void)viewDidLoad {
  [super viewDidLoad];
  UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
  [layout setItemSize:[_helper albumCellSize]];
  [layout _setSpacing:kSpacing];
  _mainCollectionView = [[PUCollectionView alloc] initWithFrame:[[self view] bounds]
                                           collectionViewLayout:layout];
  [_mainCollectionView registerClass:[PUAlbumListCell class] forCellWithReuseIdentifier:kCell];
  [_mainCollectionView setDataSource:self];
  [_mainCollectionView setDelegate:self];
  [[self view] addSubview:_mainCollectionView];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [self reloadContentView];
}

- (void)viewWillLayoutSubviews {
  [super viewWillLayoutSubviews];
  [_mainCollectionView setFrame:[[self view] bounds]];
}

- (void)viewDidLayoutSubviews {
  [super viewDidLayoutSubviews];
}

- (void)reloadContentView {
  [_collections release];
  _collections = [[_collectionList collections] copy];
  [_mainCollectionView reloadData];
}

// Its items.

- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section {
  return static_cast<NSInteger>([_collections count]);
}

- (PHCollection*)collectionAtIndexPath:(NSIndexPath*)path {
  if (!path) [NSException raise:NSInvalidArgumentException format:@"no index path for a collection"];
  return [_collections objectAtIndex:static_cast<NSUInteger>([path item])];
}

- (BOOL)isPlaceholderAtIndexPath:(NSIndexPath*)path {
  return [self collectionAtIndexPath:path] == nil;
}

- (NSString*)subtitleForCollection:(PHCollection*)collection {
  return [_helper subtitleForCollection:collection];
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path {
  PHCollection* collection = [self collectionAtIndexPath:path];
  PUAlbumListCell* cell = [view dequeueReusableCellWithReuseIdentifier:kCell forIndexPath:path];
  PUAlbumListCellContentView* tile = [cell albumListCellContentView];
  [_helper _fill:tile with:collection];
  [tile setSubtitle:[self subtitleForCollection:collection]];
  [tile setDelegate:self];
  [tile setEditing:[self isEditing] animated:NO];
  return cell;
}

- (PUAlbumListCellContentView*)_preparedAlbumListCellContentViewAtIndexPath:(NSIndexPath*)path {
  if (!path) [NSException raise:NSInvalidArgumentException format:@"no index path for a tile"];
  return [static_cast<PUAlbumListCell*>([_mainCollectionView cellForItemAtIndexPath:path])
      albumListCellContentView];
}

- (NSIndexPath*)indexPathForAlbumListCellContentView:(PUAlbumListCellContentView*)tile {
  for (PUAlbumListCell* cell in [_mainCollectionView visibleCells]) {
    if ([cell albumListCellContentView] == tile) return [_mainCollectionView indexPathForCell:cell];
  }
  return nil;
}

// Opening one.

- (BOOL)collectionView:(UICollectionView*)view shouldSelectItemAtIndexPath:(NSIndexPath*)path {
  return ![self isEditing];
}

- (void)collectionView:(UICollectionView*)view didSelectItemAtIndexPath:(NSIndexPath*)path {
  [self didSelectItemAtIndexPath:path];
}

- (void)didSelectItemAtIndexPath:(NSIndexPath*)path {
  UIViewController* next = PUViewControllerForCollection([self collectionAtIndexPath:path]);
  [[self navigationController] pushViewController:next animated:YES];
}

// Editing.

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
  [super setEditing:editing animated:animated];
  [self _updateNavigationItem];
  for (PUAlbumListCell* cell in [_mainCollectionView visibleCells]) {
    [[cell albumListCellContentView] setEditing:editing animated:animated];
  }
}

- (void)_updateNavigationItem {
  const BOOL editing = [self isEditing];
  UIBarButtonItem* item = [UIBarButtonItem alloc];
  item = [item initWithTitle:editing ? @"Done" : @"Edit"
                       style:0
                      target:self
                      action:editing ? @selector(_handleDoneButton:) : @selector(_handleEditButton:)];
  [[self navigationItem] setRightBarButtonItem:[item autorelease]];
}

- (void)_handleEditButton:(id)sender {
  [self setEditing:YES animated:YES];
}

- (void)_handleDoneButton:(id)sender {
  [self setEditing:NO animated:YES];
}

- (void)albumListCellContentView:(PUAlbumListCellContentView*)tile performDeleteAction:(id)action {
  PHCollection* collection = [self collectionAtIndexPath:[self indexPathForAlbumListCellContentView:tile]];
  device::sharedPhotoDatabase().removeCollection([collection _identifier]);
  [self reloadContentView];
}

@end
