#import "device/frameworks/PhotosUI/PUAlbumsGadgetViewController.h"

#import "device/frameworks/PhotosUI/PUAlbumListViewController.h"

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

- (id)init {
  self = [super init];
  if (!self) return nil;
  PUAlbumListCellContentViewHelper* helper = [[[PUAlbumListCellContentViewHelper alloc] init] autorelease];
  [[[self collectionView] collectionViewLayout] setItemSize:[helper albumCellSize]];
  return self;
}

/// Albums that are still there keep their tiles.
- (NSArray*)_currentGadgets {
  NSMutableDictionary* known = [NSMutableDictionary dictionary];
  for (PUAlbumGadget* gadget in _gadgets)
    [known setObject:gadget forKey:[[gadget collection] localIdentifier]];
  NSMutableArray* gadgets = [NSMutableArray array];
  for (PHCollection* collection in [PUUserCollections() collections]) {
    PUAlbumGadget* gadget = [known objectForKey:[collection localIdentifier]];
    [gadget setCollection:collection];
    if (!gadget) gadget = [[[PUAlbumGadget alloc] initWithCollection:collection] autorelease];
    [gadgets addObject:gadget];
  }
  return gadgets;
}

- (NSString*)localizedTitle {
  return @"My Albums";
}

- (NSString*)accessoryButtonTitle {
  return @"See All";
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
  if (self) [self setTitle:@"Albums"];
  return self;
}

- (void)viewDidLoad {
  [super viewDidLoad];
  PUHorizontalAlbumListGadget* strip = [[[PUHorizontalAlbumListGadget alloc] init] autorelease];
  [self addChildViewController:strip];
  [self _setGadgets:[NSArray arrayWithObject:strip]];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
}

- (void)_handleDoneButton:(id)sender {
  [self setEditing:NO animated:YES];
}

@end
