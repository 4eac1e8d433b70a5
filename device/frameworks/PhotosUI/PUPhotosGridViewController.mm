#import "device/frameworks/PhotosUI/PUPhotosGridViewController.h"

#import "device/frameworks/PhotosUI/PUAlbumListViewController.h"
#import "device/frameworks/PhotosUI/PUDeletePhotosActionController.h"
#import "device/frameworks/PhotosUI/PULibraryChange.h"
#import "device/frameworks/PhotosUI/PUOneUpViewController.h"
#import "device/frameworks/PhotosUI/PUTabbedLibraryViewController.h"

namespace {

NSString* const kCell = @"PUPhotosGridCell";
constexpr CGFloat kPhotoSize = 92;
constexpr CGFloat kSpacing = 1;
constexpr CGFloat kHeaderHeight = 44;
constexpr CGFloat kHeaderMargin = 16;

UIBarButtonItem* barItem(NSString* title, id target, SEL action) {
  return [[[UIBarButtonItem alloc] initWithTitle:title style:0 target:target action:action] autorelease];
}

}  // namespace

NSString* PUNumberOfPhotos(NSUInteger count) {
  return [NSString
      stringWithFormat:@"%lu %@", static_cast<unsigned long>(count), count == 1 ? @"Photo" : @"Photos"];
}

@implementation PUPhotosGridCell

- (void)_setAsset:(PHAsset*)asset selected:(BOOL)selected {
  NSString* text = [asset _words];
  if (selected) text = [text stringByAppendingString:@", selected"];
  [[self contentView] setBackgroundColor:[asset _pixelColor]];
  [[self contentView] setAccessibilityLabel:text];
}

@end

@implementation PUSectionedGridLayout

@synthesize itemSize = _itemSize;

@end

@implementation PUPhotosSectionHeaderView

@synthesize titleLabel = _titleLabel;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _titleLabel = [[UILabel alloc] init];
  [_titleLabel setFont:[UIFont boldSystemFontOfSize:15]];
  [self addSubview:_titleLabel];
  return self;
}

- (void)dealloc {
  [_titleLabel release];
  [super dealloc];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  const CGSize size = [self bounds].size;
  [_titleLabel setFrame:CGRectMake(kHeaderMargin, 0, size.width - 2 * kHeaderMargin, size.height)];
}

@end

@implementation PUPhotosGridViewController

@synthesize initiallyScrolledToBottom = _initiallyScrolledToBottom;

- (id)init {
  PUSectionedGridLayout* layout = [[[PUSectionedGridLayout alloc] init] autorelease];
  [layout setItemSize:CGSizeMake(kPhotoSize, kPhotoSize)];
  [layout _setSpacing:kSpacing];
  self = [super initWithCollectionViewLayout:layout];
  if (!self) return nil;
  _selectedAssets = [[NSMutableSet alloc] init];
  [self _updateBars];
  return self;
}

- (void)dealloc {
  [_assets release];
  [_selectedAssets release];
  [super dealloc];
}

- (PHAssetCollection*)_shownCollection {
  return nil;
}

- (void)viewDidLoad {
  [super viewDidLoad];
  [[self collectionView] registerClass:[PUPhotosGridCell class] forCellWithReuseIdentifier:kCell];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [self _refetch];
}

- (void)viewDidAppear:(BOOL)animated {
  [super viewDidAppear:animated];
  if (_hasAppeared) return;
  _hasAppeared = YES;
  if (![self initiallyScrolledToBottom] && ![[self _shownCollection] startsAtEnd]) return;
  [[self collectionView] setContentOffset:[[self collectionView] _endOffset]];
}

- (void)viewWillDisappear:(BOOL)animated {
  [super viewWillDisappear:animated];
  if ([self isEditing]) [self setEditing:NO animated:animated];
}

- (void)_refetch {
  [_assets release];
  _assets = [PUAssetsInCollection([self _shownCollection]) retain];
  const CGFloat headerHeight = [self _showsSectionHeader] ? kHeaderHeight : 0;
  [[[self collectionView] collectionViewLayout] setHeaderReferenceSize:CGSizeMake(0, headerHeight)];
  [[self collectionView] reloadData];
}

- (BOOL)_showsSectionHeader {
  return NO;
}

- (UICollectionReusableView*)collectionView:(UICollectionView*)view
          viewForSupplementaryElementOfKind:(NSString*)kind
                                atIndexPath:(NSIndexPath*)path {
  PUPhotosSectionHeaderView* header = [[[PUPhotosSectionHeaderView alloc] init] autorelease];
  NSString* first = [[_assets firstObject] _day];
  NSString* last = [[_assets lastObject] _day];
  const bool isOneDay = [first isEqualToString:last];
  [[header titleLabel] setText:isOneDay ? first : [NSString stringWithFormat:@"%@ – %@", first, last]];
  return header;
}

- (PHAsset*)_assetAtIndexPath:(NSIndexPath*)path {
  return [_assets objectAtIndex:static_cast<NSUInteger>([path item])];
}

- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section {
  return static_cast<NSInteger>([_assets count]);
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path {
  PUPhotosGridCell* cell = [view dequeueReusableCellWithReuseIdentifier:kCell forIndexPath:path];
  PHAsset* asset = [self _assetAtIndexPath:path];
  [cell _setAsset:asset selected:[_selectedAssets containsObject:asset]];
  return cell;
}

// Selecting.

- (NSSet*)selectedAssets {
  return [NSSet setWithSet:_selectedAssets];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
  [super setEditing:editing animated:animated];
  [_selectedAssets removeAllObjects];
  [self _updateBars];
  [[self navigationController] setToolbarHidden:!editing animated:animated];
  if (!editing) [self _refetch];
}

- (void)_updateBars {
  const BOOL editing = [self isEditing];
  UIBarButtonItem* toggle = barItem(editing ? @"Cancel" : @"Select", self, @selector(_toggleEditing));
  [[self navigationItem] setRightBarButtonItem:toggle];
  if (!editing) return [self setToolbarItems:nil];
  NSMutableArray* items = [NSMutableArray array];
  [items addObject:barItem(@"Add To", self, @selector(_addSelectionToAlbum))];
  if ([self _canRemove]) [items addObject:barItem(@"Remove", self, @selector(_removeSelection))];
  [items addObject:barItem(@"Delete", self, @selector(_deleteSelection))];
  [self setToolbarItems:items];
  [self _updateToolbarItems];
}

- (void)_updateToolbarItems {
  for (UIBarButtonItem* item in [self toolbarItems]) [item setEnabled:[_selectedAssets count] > 0];
}

- (void)_toggleEditing {
  [self setEditing:![self isEditing] animated:YES];
}

- (void)collectionView:(UICollectionView*)view didSelectItemAtIndexPath:(NSIndexPath*)path {
  PHAsset* asset = [self _assetAtIndexPath:path];
  if (![self isEditing]) return [self _showOneUp:asset];
  const bool selected = ![_selectedAssets containsObject:asset];
  if (selected) {
    [_selectedAssets addObject:asset];
  } else {
    [_selectedAssets removeObject:asset];
  }
  [static_cast<PUPhotosGridCell*>([view cellForItemAtIndexPath:path]) _setAsset:asset selected:selected];
  [self _updateToolbarItems];
}

- (void)_showOneUp:(PHAsset*)asset {
  PUOneUpViewController* viewer = [[[PUOneUpViewController alloc] _initWithAsset:asset] autorelease];
  [[self navigationController] pushViewController:viewer animated:YES];
}

// What is done with the selection.

- (void)_addSelectionToAlbum {
  PUAlbumListViewController* list = [PUAlbumListViewController alloc];
  list = [[list initWithCollectionList:PUUserCollections()] autorelease];
  [list setTitle:@"Add to Album"];
  [list _pickFor:self];
  PUNavigationController* picker = [PUNavigationController alloc];
  picker = [[picker initWithRootViewController:list] autorelease];
  [[picker view] setBackgroundColor:[UIColor whiteColor]];
  [self presentViewController:picker animated:YES completion:nil];
}

- (void)_deleteSelection {
  PUDeletePhotosActionController* deletion = [PUDeletePhotosActionController alloc];
  deletion = [[deletion initWithAssets:[_selectedAssets allObjects]] autorelease];
  [deletion performFrom:self
             completion:^{
               [self setEditing:NO animated:YES];
             }];
}

- (BOOL)_canRemove {
  return [[self _shownCollection] canPerformEditOperation:PHCollectionEditOperationRemoveContent];
}

- (void)_removeSelection {
  [self _removeSelectedAssetsWithCompletion:^{
    [self setEditing:NO animated:YES];
  }];
}

- (void)_removeSelectedAssetsWithCompletion:(void (^)(void))done {
  if (![self _canRemove]) return;
  PHAssetCollection* album = [self _shownCollection];
  NSArray* removed = [_selectedAssets allObjects];
  PUChangeLibrary(
      [NSArray arrayWithObjects:self, album, removed, nil],
      ^{
        [[PHAssetCollectionChangeRequest changeRequestForAssetCollection:album
                                                                  assets:nil] removeAssets:removed];
      },
      ^{
        [self _refetch];
        if (done) done();
      });
}

@end

@implementation PUZoomableGridViewController

- (id)init {
  self = [super init];
  if (!self) return nil;
  [self setTitle:@"Photos"];
  [self setInitiallyScrolledToBottom:YES];
  return self;
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
}

- (PHAssetCollection*)_shownCollection {
  return [PHAssetCollection _cameraRoll];
}

@end

@implementation PUPhotosAlbumViewController

@synthesize assetCollection = _assetCollection;

- (void)dealloc {
  [_assetCollection release];
  [super dealloc];
}

- (void)setAssetCollection:(PHAssetCollection*)collection {
  [self setAssetCollection:collection
      fetchResultContainingAssetCollection:nil
                           filterPredicate:nil
                      existingFetchResults:nil];
}

- (void)setAssetCollection:(PHAssetCollection*)collection
    fetchResultContainingAssetCollection:(PHFetchResult*)result
                         filterPredicate:(NSPredicate*)predicate
                    existingFetchResults:(id)results {
  [_assetCollection autorelease];
  _assetCollection = [collection retain];
  [self setTitle:[collection localizedTitle]];
}

- (PHAssetCollection*)_shownCollection {
  return _assetCollection;
}

- (BOOL)shouldShowSectionHeaders {
  return YES;
}

- (BOOL)_showsSectionHeader {
  return [self shouldShowSectionHeaders] && [_assets count] > 0;
}

@end
