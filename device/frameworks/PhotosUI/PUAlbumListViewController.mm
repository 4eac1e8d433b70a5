#import "device/frameworks/PhotosUI/PUAlbumListViewController.h"

#import "device/frameworks/PhotosUI/PULibraryChange.h"
#import "device/frameworks/PhotosUI/PUPhotosGridViewController.h"

namespace {

NSString* const kCell = @"PUAlbumListCell";
constexpr CGFloat kSpacing = 16;
constexpr CGFloat kBannerHeight = 44;

void addUnlessEmpty(NSInteger smartAlbumSubtype, NSMutableArray* albums) {
  for (PHAssetCollection* album in
       [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeSmartAlbum
                                                subtype:smartAlbumSubtype
                                                options:nil]) {
    if ([PUAssetsInCollection(album) count]) [albums addObject:album];
  }
}

}  // namespace

PHCollectionList* PUUserCollections() {
  return [[PHCollectionList fetchRootAlbumCollectionListWithOptions:nil] firstObject];
}

PHCollectionList* PUCollectionsOfKinds(std::span<const PUCollectionKind> kinds, NSString* title) {
  NSMutableArray* collections = [NSMutableArray array];
  for (const auto& [type, subtype] : kinds) {
    for (PHAssetCollection* collection in [PHAssetCollection fetchAssetCollectionsWithType:type
                                                                                   subtype:subtype
                                                                                   options:nil]) {
      [collections addObject:collection];
    }
  }
  return [PHCollectionList transientCollectionListWithCollections:collections title:title];
}

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
@synthesize _pickerBannerView = _pickerBannerView;

- (id)initWithCollectionList:(PHCollectionList*)list {
  self = [super init];
  if (!self) return nil;
  _dataSourceManager = [[PXPhotoKitCollectionsDataSourceManager alloc] initWithCollectionList:list];
  _isTopLevel = [list isEqual:PUUserCollections()];
  _helper = [[PUAlbumListCellContentViewHelper alloc] init];
  [self _updateNavigationItem];
  return self;
}

- (id)_initFetchingCollectionList:(PHCollectionList* (*)())fetch {
  self = [self initWithCollectionList:nil];
  if (self) _fetchList = fetch;
  return self;
}

- (void)dealloc {
  [_mainCollectionView setDelegate:nil];
  [_mainCollectionView setDataSource:nil];
  [_mainCollectionView release];
  [_dataSourceManager release];
  [_collections release];
  [_helper release];
  [_source release];
  [_pickerBannerView release];
  [super dealloc];
}

- (UICollectionView*)collectionView {
  return _mainCollectionView;
}

- (UITableView*)_mainTableView {
  return nil;
}

- (void)viewDidLoad {
  [super viewDidLoad];
  UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
  [layout _setSpacing:kSpacing];
  _mainCollectionView = [[PUCollectionView alloc] initWithFrame:[[self view] bounds]
                                           collectionViewLayout:layout];
  [_mainCollectionView registerClass:[PUAlbumListCell class] forCellWithReuseIdentifier:kCell];
  [_mainCollectionView setDataSource:self];
  [_mainCollectionView setDelegate:self];
  [[self view] addSubview:_mainCollectionView];
  [[self view] addSubview:_pickerBannerView];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [self reloadContentView];
}

- (void)viewWillLayoutSubviews {
  [super viewWillLayoutSubviews];
  const CGSize size = [[self view] bounds].size;
  const CGFloat top = _pickerBannerView ? kBannerHeight : 0;
  [_pickerBannerView setFrame:CGRectMake(0, 0, size.width, top)];
  [_mainCollectionView setFrame:CGRectMake(0, top, size.width, size.height - top)];
}

- (void)viewDidLayoutSubviews {
  [super viewDidLayoutSubviews];
}

- (BOOL)showPeople {
  return YES;
}

- (BOOL)showPlaces {
  return YES;
}

- (NSArray*)_peopleAndPlaces {
  NSMutableArray* albums = [NSMutableArray array];
  if ([self showPeople]) addUnlessEmpty(PHAssetCollectionSubtypeSmartAlbumGeneric, albums);
  if ([self showPlaces]) addUnlessEmpty(PHAssetCollectionSubtypePlaces, albums);
  return albums;
}

- (void)reloadContentView {
  if (_fetchList) {
    [_dataSourceManager release];
    _dataSourceManager = [PXPhotoKitCollectionsDataSourceManager alloc];
    _dataSourceManager = [_dataSourceManager initWithCollectionList:_fetchList()];
  }
  NSArray* collections = [_dataSourceManager _collections];
  if (_isTopLevel && !_source) {
    collections = [collections arrayByAddingObjectsFromArray:[self _peopleAndPlaces]];
  }
  [_collections release];
  _collections = [collections copy];
  [[_mainCollectionView collectionViewLayout] setItemSize:[_helper albumCellSize]];
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
  PHCollection* collection = [self collectionAtIndexPath:path];
  const bool isAlbum = [collection isKindOfClass:[PHAssetCollection class]];
  if (_source && isAlbum) return [self _pick:static_cast<PHAssetCollection*>(collection)];
  UIViewController* next = PUViewControllerForCollection(collection);
  if (_source) [static_cast<PUAlbumListViewController*>(next) _pickFor:_source];
  [[self navigationController] pushViewController:next animated:YES];
}

// Picking.

- (void)_pickFor:(PUPhotosGridViewController*)source {
  _source = [source retain];
  const CGRect frame = CGRectMake(0, 0, [[UIScreen mainScreen] bounds].size.width, kBannerHeight);
  UILabel* label = [[[UILabel alloc]
      initWithFrame:CGRectMake(kSpacing, 0, frame.size.width - 2 * kSpacing, kBannerHeight)] autorelease];
  [label setText:[NSString stringWithFormat:@"Add %@ to an album",
                                            PUNumberOfPhotos([[source selectedAssets] count])]];
  _pickerBannerView = [[UIView alloc] initWithFrame:frame];
  [_pickerBannerView addSubview:label];
  [self _updateNavigationItem];
}

- (void)_pick:(PHAssetCollection*)album {
  if (![album canPerformEditOperation:PHCollectionEditOperationAddContent]) return;
  PUPhotosGridViewController* source = _source;
  NSArray* added = [[source selectedAssets] allObjects];
  PUChangeLibrary(
      [NSArray arrayWithObjects:source, album, added, nil],
      ^{
        [[PHAssetCollectionChangeRequest changeRequestForAssetCollection:album assets:nil] addAssets:added];
      },
      ^{
        [source _refetch];
      });
  [self dismissViewControllerAnimated:YES completion:nil];
  [source setEditing:NO animated:YES];
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
  const bool edits = !_source && ![self isEditing];
  NSString* title = _source ? @"Cancel" : edits ? @"Edit" : @"Done";
  UIBarButtonItem* item = [UIBarButtonItem alloc];
  item = [item initWithTitle:title
                       style:0
                      target:self
                      action:edits ? @selector(_handleEditButton:) : @selector(_handleDoneButton:)];
  [[self navigationItem] setRightBarButtonItem:[item autorelease]];
}

- (void)_handleEditButton:(id)sender {
  [self setEditing:YES animated:YES];
}

- (void)_handleDoneButton:(id)sender {
  if (_source) return [self dismissViewControllerAnimated:YES completion:nil];
  [self setEditing:NO animated:YES];
}

- (BOOL)collectionView:(UICollectionView*)view canMoveItemAtIndexPath:(NSIndexPath*)path {
  return [self isEditing] && [_dataSourceManager canReorderCollection:[self collectionAtIndexPath:path]];
}

- (void)albumListCellContentView:(PUAlbumListCellContentView*)tile performDeleteAction:(id)action {
  PHCollection* collection = [self collectionAtIndexPath:[self indexPathForAlbumListCellContentView:tile]];
  NSArray* deleted = [NSArray arrayWithObject:collection];
  const bool isAlbum = [collection isKindOfClass:[PHAssetCollection class]];
  PUChangeLibrary(
      [NSArray arrayWithObjects:self, deleted, nil],
      ^{
        if (isAlbum) {
          [PHAssetCollectionChangeRequest deleteAssetCollections:deleted];
        } else {
          [PHCollectionListChangeRequest deleteCollectionLists:deleted];
        }
      },
      ^{
        [self reloadContentView];
      });
}

@end
