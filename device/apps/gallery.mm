#import "device/frameworks/Photos/Photos.h"
#import "device/frameworks/UIKit/UIKit.h"

// Any app that reads the photo library, as a picker does.

namespace {

NSString* const kCell = @"GalleryCell";
constexpr CGFloat kRowHeight = 20;

NSArray* smartAlbumsInUse() {
  NSMutableArray* inUse = [NSMutableArray array];
  for (PHAssetCollection* album in
       [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeSmartAlbum
                                                subtype:PHAssetCollectionSubtypeAny
                                                options:nil]) {
    if ([[PHAsset fetchAssetsInAssetCollection:album options:nil] count]) [inUse addObject:album];
  }
  return inUse;
}

PHCollectionList* everyCollection() {
  PHFetchResult* topLevel = [PHCollection fetchTopLevelUserCollectionsWithOptions:nil];
  NSArray* all = [smartAlbumsInUse() arrayByAddingObjectsFromArray:[topLevel fetchedObjects]];
  return [PHCollectionList transientCollectionListWithCollections:all title:@"Albums"];
}

}  // namespace

@interface GalleryCell : UICollectionViewCell {
  UILabel* _label;
}
@property(nonatomic, readonly) UILabel* label;
@end

@implementation GalleryCell

@synthesize label = _label;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _label = [[UILabel alloc] init];
  [[self contentView] addSubview:_label];
  return self;
}

- (void)dealloc {
  [_label release];
  [super dealloc];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  [_label setFrame:[[self contentView] bounds]];
}

@end

/// A row "<title>" for each collection of the list, and one "<title>: <count> photos" for each user album
/// that can be fetched, wherever it is kept.
@interface GalleryViewController : UICollectionViewController {
  NSArray* _rows;
}
@end

@implementation GalleryViewController

- (id)init {
  UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
  [layout setItemSize:CGSizeMake([[UIScreen mainScreen] bounds].size.width, kRowHeight)];
  [layout _setSpacing:0];
  self = [super initWithCollectionViewLayout:layout];
  if (!self) return nil;
  [self setTitle:@"Gallery"];
  UIBarButtonItem* item = [UIBarButtonItem alloc];
  item = [[item initWithTitle:@"Refresh" style:0 target:self action:@selector(_refresh)] autorelease];
  [[self navigationItem] setRightBarButtonItem:item];
  return self;
}

- (void)dealloc {
  [_rows release];
  [super dealloc];
}

- (void)viewDidLoad {
  [super viewDidLoad];
  [[self collectionView] registerClass:[GalleryCell class] forCellWithReuseIdentifier:kCell];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [self _refresh];
}

- (void)_refresh {
  NSMutableArray* rows = [NSMutableArray array];
  for (PHCollection* collection in [everyCollection() collections])
    [rows addObject:[collection localizedTitle]];
  for (PHAssetCollection* album in
       [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                subtype:PHAssetCollectionSubtypeAny
                                                options:nil]) {
    const NSUInteger count = [[PHAsset fetchAssetsInAssetCollection:album options:nil] count];
    [rows addObject:[NSString stringWithFormat:@"%@: %lu photos", [album localizedTitle],
                                               static_cast<unsigned long>(count)]];
  }
  [_rows release];
  _rows = [rows copy];
  [[self collectionView] reloadData];
}

- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section {
  return static_cast<NSInteger>([_rows count]);
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path {
  GalleryCell* cell = [view dequeueReusableCellWithReuseIdentifier:kCell forIndexPath:path];
  [[cell label] setText:[_rows objectAtIndex:static_cast<NSUInteger>([path item])]];
  return cell;
}

@end

@interface GalleryApplication : UIApplication {
  UIWindow* _window;
}
@end

@implementation GalleryApplication

- (void)dealloc {
  [_window release];
  [super dealloc];
}

- (void)applicationDidFinishLaunching:(UIApplication*)application {
  UIViewController* gallery = [[[GalleryViewController alloc] init] autorelease];
  UINavigationController* root = [UINavigationController alloc];
  root = [[root initWithRootViewController:gallery] autorelease];
  _window = [[UIWindow alloc] _initShowing:root];
}

@end
