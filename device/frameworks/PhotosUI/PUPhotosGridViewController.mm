#import "device/frameworks/PhotosUI/PUPhotosGridViewController.h"

namespace {

NSString* const kCell = @"PUPhotosGridCell";
constexpr CGFloat kPhotoSize = 92;
constexpr CGFloat kSpacing = 1;

}  // namespace

@implementation PUPhotosGridCell

- (void)_setAsset:(PHAsset*)asset {
  [[self contentView] setBackgroundColor:[asset _pixelColor]];
  [[self contentView] setAccessibilityLabel:[asset _words]];
}

@end

@implementation PUPhotosGridViewController

- (id)init {
  UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
  [layout setItemSize:CGSizeMake(kPhotoSize, kPhotoSize)];
  [layout _setSpacing:kSpacing];
  return [super initWithCollectionViewLayout:layout];
}

- (void)dealloc {
  [_assets release];
  [super dealloc];
}

- (PHFetchResult*)_fetchAssets {
  return nil;
}

- (void)viewDidLoad {
  [super viewDidLoad];
  [[self collectionView] registerClass:[PUPhotosGridCell class] forCellWithReuseIdentifier:kCell];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [_assets release];
  _assets = [[self _fetchAssets] retain];
  [[self collectionView] reloadData];
}

- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section {
  return static_cast<NSInteger>([_assets count]);
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path {
  PUPhotosGridCell* cell = [view dequeueReusableCellWithReuseIdentifier:kCell forIndexPath:path];
  [cell _setAsset:[_assets objectAtIndex:static_cast<NSUInteger>([path item])]];
  return cell;
}

@end

@implementation PUZoomableGridViewController

- (id)init {
  self = [super init];
  if (self) [self setTitle:@"Photos"];
  return self;
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
}

- (PHFetchResult*)_fetchAssets {
  return [PHAsset fetchAssetsInAssetCollection:[PHAssetCollection _cameraRoll] options:nil];
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

- (PHFetchResult*)_fetchAssets {
  return [PHAsset fetchAssetsInAssetCollection:_assetCollection options:nil];
}

@end
