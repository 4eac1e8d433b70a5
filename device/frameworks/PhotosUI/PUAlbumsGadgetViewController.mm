#import "device/frameworks/PhotosUI/PUAlbumsGadgetViewController.h"

#include <iterator>
#include <span>

#import "device/frameworks/PhotosUI/PUAlbumListViewController.h"
#import "device/frameworks/PhotosUI/PXNavigationList.h"

namespace {

constexpr NSInteger kSmart = PHAssetCollectionTypeSmartAlbum;

constexpr PUCollectionKind kPeopleAndPlaces[] = {
    {kSmart, PHAssetCollectionSubtypeSmartAlbumGeneric},
    {kSmart, PHAssetCollectionSubtypePlaces},
};
constexpr PUCollectionKind kMediaTypes[] = {
    {kSmart, PHAssetCollectionSubtypeSmartAlbumVideos},
    {kSmart, 210},
    {kSmart, 213},
    {kSmart, 212},
    {kSmart, 201},
    {kSmart, 204},
    {kSmart, 208},
    {kSmart, 207},
    {kSmart, 211},
    {kSmart, 214},
    {kSmart, 215},
    {kSmart, 1000000207},
    {kSmart, 1000000208},
};
constexpr PUCollectionKind kOtherAlbums[] = {
    {PHAssetCollectionTypeImportHistory, PHAssetCollectionSubtypeAny},
    {kSmart, PHAssetCollectionSubtypeSmartAlbumAllHidden},
    {kSmart, PHAssetCollectionSubtypeTrashBin},
};

struct Section {
  const char* title;
  /// None for all that the user made.
  std::span<const PUCollectionKind> kinds;
  /// A strip's; 0 makes it a list.
  NSUInteger albumListType;
};

constexpr Section kSections[] = {
    {"My Albums", {}, PUAlbumListTypeUserAlbums},
    {"Shared Albums", PUSharedAlbumKinds, PUAlbumListTypeSharedAlbums},
    {"People & Places", kPeopleAndPlaces, PUAlbumListTypePeopleAndPlaces},
    {"Media Types", kMediaTypes, 0},
    {"Other Albums", kOtherAlbums, 0},
};

UIViewController* gadgetOf(const Section& section) {
  UIViewController* gadget = nil;
  if (section.albumListType) {
    PUAlbumsGadgetProvider* provider = [PUAlbumsGadgetProvider alloc];
    provider = [[provider initWithAlbumListType:section.albumListType] autorelease];
    gadget = [[[PUHorizontalAlbumListGadget alloc] initWithProvider:provider] autorelease];
  } else {
    gadget = [[[PXNavigationListGadget alloc] init] autorelease];
  }
  [gadget setTitle:[NSString stringWithUTF8String:section.title]];
  return gadget;
}

PHCollectionList* collectionsOf(const Section& section) {
  if (section.kinds.empty()) return PUUserCollections();
  return PUCollectionsOfKinds(section.kinds, [NSString stringWithUTF8String:section.title]);
}

}  // namespace

@implementation PXGadgetProvider
@end

@implementation PUAlbumsGadgetProvider

@synthesize albumListType = _albumListType;

- (id)initWithAlbumListType:(NSUInteger)type {
  self = [super init];
  if (self) _albumListType = type;
  return self;
}

@end

@implementation PUAlbumGadget

@synthesize collection = _collection;
@synthesize albumListCellContentView = _albumListCellContentView;

- (id)initWithCollection:(PHCollection*)collection {
  self = [super init];
  if (!self) return nil;
  _helper = [[PUAlbumListCellContentViewHelper alloc] init];
  _albumListCellContentView = [[PUAlbumListCellContentView alloc] init];
  [self setCollection:collection];
  return self;
}

- (void)dealloc {
  [_collection release];
  [_helper release];
  [_albumListCellContentView release];
  [super dealloc];
}

- (void)setCollection:(PHCollection*)collection {
  [_collection autorelease];
  _collection = [collection retain];
  [_helper _fill:_albumListCellContentView with:collection];
  [_albumListCellContentView setSubtitle:[_helper subtitleForCollection:collection]];
}

- (NSUInteger)gadgetType {
  return PXGadgetTypeAlbum;
}

- (NSString*)title {
  return [_collection localizedTitle];
}

- (UIView*)contentView {
  return _albumListCellContentView;
}

- (CGSize)sizeThatFits:(CGSize)size {
  return [_helper albumCellSize];
}

@end

@implementation PUHorizontalAlbumListGadget

@synthesize provider = _provider;
@synthesize _dataSourceManager = _dataSourceManager;

- (id)initWithProvider:(PUAlbumsGadgetProvider*)provider {
  self = [super init];
  if (self) _provider = [provider retain];
  return self;
}

- (void)dealloc {
  [_provider release];
  [_dataSourceManager release];
  [super dealloc];
}

/// Albums that are still there keep their tiles.
- (NSArray*)_currentGadgets {
  NSMutableDictionary* known = [NSMutableDictionary dictionary];
  for (PUAlbumGadget* gadget in _gadgets)
    [known setObject:gadget forKey:[[gadget collection] localIdentifier]];
  NSMutableArray* gadgets = [NSMutableArray array];
  for (PHCollection* collection in [_dataSourceManager _collections]) {
    PUAlbumGadget* gadget = [known objectForKey:[collection localIdentifier]];
    [gadget setCollection:collection];
    if (!gadget) gadget = [[[PUAlbumGadget alloc] initWithCollection:collection] autorelease];
    [gadgets addObject:gadget];
  }
  return gadgets;
}

- (NSString*)localizedTitle {
  return [self title];
}

- (NSString*)accessoryButtonTitle {
  return [_provider albumListType] == PUAlbumListTypeUserAlbums ? @"See All" : nil;
}

- (void)userDidSelectAccessoryButton:(id)sender {
  PUAlbumListViewController* list = [PUAlbumListViewController alloc];
  list = [[list initWithCollectionList:PUUserCollections()] autorelease];
  [list setTitle:[self localizedTitle]];
  [[self navigationController] pushViewController:list animated:YES];
}

- (void)collectionView:(UICollectionView*)view didSelectItemAtIndexPath:(NSIndexPath*)path {
  PUAlbumGadget* gadget = [self _gadgetAtIndexPath:path];
  [[self navigationController] pushViewController:PUViewControllerForCollection([gadget collection])
                                         animated:YES];
}

@end

@implementation PUAlbumsGadgetViewController

- (id)init {
  self = [super init];
  if (!self) return nil;
  [self setTitle:@"Albums"];
  NSMutableArray* sections = [NSMutableArray array];
  for (const Section& section : kSections) [sections addObject:gadgetOf(section)];
  _sections = [sections copy];
  return self;
}

- (void)dealloc {
  [_sections release];
  [super dealloc];
}

- (NSArray*)_currentGadgets {
  NSMutableArray* gadgets = [NSMutableArray array];
  for (std::size_t index = 0; index < std::size(kSections); ++index) {
    PXPhotoKitCollectionsDataSourceManager* manager = [PXPhotoKitCollectionsDataSourceManager alloc];
    manager = [[manager initWithCollectionList:collectionsOf(kSections[index])] autorelease];
    if (![[manager _collections] count]) continue;
    id gadget = [_sections objectAtIndex:index];
    [gadget _setDataSourceManager:manager];
    [gadgets addObject:gadget];
  }
  return gadgets;
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
}

- (void)_handleDoneButton:(id)sender {
  [self setEditing:NO animated:YES];
}

@end
