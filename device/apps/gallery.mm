#import "device/frameworks/Photos/Photos.h"
#import "device/frameworks/PhotosUI/PUAlbumListCell.h"
#import "device/frameworks/PhotosUI/PUPhotosGridViewController.h"
#import "device/frameworks/PhotosUI/PXNavigationList.h"
#import "device/frameworks/UIKit/UIKit.h"

// Any app that reads the photo library, as a picker does, or shows it off in a shop.

namespace {

NSString* const kCell = @"GalleryCell";
NSString* const kAlbums = @"Albums";
NSString* const kFetched = @"Fetched";
constexpr CGFloat kRowHeight = 24;
constexpr CGFloat kTextSize = 15;

PHFetchResult* everyAlbumOfType(NSInteger type) {
  return [PHAssetCollection fetchAssetCollectionsWithType:type
                                                  subtype:PHAssetCollectionSubtypeAny
                                                  options:nil];
}

/// Those that hold something, or do not tell.
NSArray* smartAlbumsInUse() {
  NSMutableArray* inUse = [NSMutableArray array];
  for (PHAssetCollection* album in everyAlbumOfType(PHAssetCollectionTypeSmartAlbum)) {
    PHFetchResult* assets = [PHAsset fetchAssetsInAssetCollection:album options:nil];
    if (!assets || [assets count]) [inUse addObject:album];
  }
  return inUse;
}

PHCollectionList* everyCollection() {
  PHFetchResult* imports = everyAlbumOfType(PHAssetCollectionTypeImportHistory);
  PHFetchResult* topLevel = [PHCollection fetchTopLevelUserCollectionsWithOptions:nil];
  NSArray* all = [smartAlbumsInUse() arrayByAddingObjectsFromArray:[imports fetchedObjects]];
  all = [all arrayByAddingObjectsFromArray:[topLevel fetchedObjects]];
  return [PHCollectionList transientCollectionListWithCollections:all title:kAlbums];
}

NSString* photos(NSUInteger count) { return [PUNumberOfPhotos(count) lowercaseString]; }

/// What the app is told without a fetch, where that is possible.
NSString* estimateOf(PHCollection* collection) {
  if (![collection isKindOfClass:[PHAssetCollection class]]) return @"Folder";
  PHAssetCollection* album = static_cast<PHAssetCollection*>(collection);
  const NSUInteger estimate = [album estimatedAssetCount];
  if (estimate != NSNotFound) return photos(estimate);
  return photos([[PHAsset fetchAssetsInAssetCollection:album options:nil] count]);
}

NSString* countOf(PHAssetCollection* album) {
  PHFetchResult* assets = [PHAsset fetchAssetsInAssetCollection:album options:nil];
  return assets ? photos([assets count]) : @"nothing";
}

}  // namespace

/// Under "Albums", all that the app finds there is: "<title>: 3 photos". Under "Fetched", each user album
/// that can be fetched, wherever it is kept, and what can be fetched of it: "fetched <title>: 3 photos".
@interface GalleryViewController : UICollectionViewController {
  /// Headings and collections.
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
  [[self collectionView] registerClass:[PXNavigationListCell class] forCellWithReuseIdentifier:kCell];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [self _refresh];
}

- (void)_refresh {
  NSMutableArray* rows = [NSMutableArray arrayWithObject:kAlbums];
  for (PHCollection* collection in [everyCollection() collections]) [rows addObject:collection];
  [rows addObject:kFetched];
  for (PHCollection* album in everyAlbumOfType(PHAssetCollectionTypeAlbum)) [rows addObject:album];
  [_rows release];
  _rows = [rows copy];
  [[self collectionView] reloadData];
}

- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section {
  return static_cast<NSInteger>([_rows count]);
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path {
  PXNavigationListCell* cell = [view dequeueReusableCellWithReuseIdentifier:kCell forIndexPath:path];
  const NSUInteger item = static_cast<NSUInteger>([path item]);
  id row = [_rows objectAtIndex:item];
  if ([row isKindOfClass:[NSString class]]) {
    [self _fill:cell withHeading:row];
  } else {
    [self _fill:cell with:row fetched:item > [_rows indexOfObject:kFetched]];
  }
  return cell;
}

- (void)_fill:(PXNavigationListCell*)cell withHeading:(NSString*)heading {
  [[cell contentView] setBackgroundColor:[UIColor colorWithWhite:0.93 alpha:1]];
  [[cell contentView] setAccessibilityLabel:nil];
  [[cell titleLabel] setFont:[UIFont boldSystemFontOfSize:kTextSize]];
  [[cell titleLabel] setText:heading];
  [[cell detailLabel] setText:nil];
  [cell _setColors:nil];
}

- (void)_fill:(PXNavigationListCell*)cell with:(PHCollection*)collection fetched:(bool)fetched {
  PUAlbumListCellContentViewHelper* helper = [[[PUAlbumListCellContentViewHelper alloc] init] autorelease];
  NSString* title = [collection localizedTitle];
  NSString* detail = fetched ? countOf(static_cast<PHAssetCollection*>(collection)) : estimateOf(collection);
  NSString* format = fetched ? @"fetched %@: %@" : @"%@: %@";
  [[cell contentView] setBackgroundColor:[UIColor whiteColor]];
  [[cell contentView] setAccessibilityLabel:[NSString stringWithFormat:format, title, detail]];
  [[cell titleLabel] setFont:[UIFont systemFontOfSize:kTextSize]];
  [[cell titleLabel] setText:title];
  [[cell detailLabel] setFont:[UIFont systemFontOfSize:kTextSize]];
  [[cell detailLabel] setText:detail];
  [cell _setColors:[helper _colorsOfCollection:collection]];
}

@end

@interface GalleryApplication : UIApplication
@end

@implementation GalleryApplication

- (void)applicationDidFinishLaunching:(UIApplication*)application {
  UIViewController* gallery = [[[GalleryViewController alloc] init] autorelease];
  UINavigationController* root = [UINavigationController alloc];
  root = [[root initWithRootViewController:gallery] autorelease];
  [self _show:root];
}

@end
