#import "device/frameworks/PhotosUI/PXSelection.h"

@implementation PXSelectionSnapshot

- (id)_initWithObjects:(NSArray*)objects {
  self = [super init];
  if (self) _objects = [objects copy];
  return self;
}

- (void)dealloc {
  [_objects release];
  [super dealloc];
}

- (PHFetchResult*)fetchSelectedObjects {
  return [PHFetchResult _resultOf:_objects options:nil];
}

@end

@implementation PXSectionedSelectionManager

@synthesize selectionSnapshot = _selectionSnapshot;

- (id)init {
  self = [super init];
  if (self) [self _selectObjects:[NSArray array]];
  return self;
}

- (void)dealloc {
  [_selectionSnapshot release];
  [super dealloc];
}

- (void)_selectObjects:(NSArray*)objects {
  [_selectionSnapshot autorelease];
  _selectionSnapshot = [[PXSelectionSnapshot alloc] _initWithObjects:objects];
}

@end

@implementation PXPhotosViewModel

@synthesize selectionManager = _selectionManager;

- (id)init {
  self = [super init];
  if (self) _selectionManager = [[PXSectionedSelectionManager alloc] init];
  return self;
}

- (void)dealloc {
  [_selectionManager release];
  [super dealloc];
}

@end

@implementation PXPhotosContentController

@synthesize viewModel = _viewModel;

- (id)init {
  self = [super init];
  if (self) _viewModel = [[PXPhotosViewModel alloc] init];
  return self;
}

- (void)dealloc {
  [_viewModel release];
  [super dealloc];
}

- (void)contentViewWillAppear:(BOOL)animated {
}

@end

@implementation PXPhotosUIViewController

- (id)init {
  self = [super init];
  if (self) _contentController = [[PXPhotosContentController alloc] init];
  return self;
}

- (void)dealloc {
  [_contentController release];
  [super dealloc];
}

- (PXPhotosViewModel*)viewModel {
  return [_contentController viewModel];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [_contentController contentViewWillAppear:animated];
}

- (void)viewDidAppear:(BOOL)animated {
  [super viewDidAppear:animated];
}

@end

@implementation PXCuratedLibraryViewModel

@synthesize selectionManager = _selectionManager;

- (id)init {
  self = [super init];
  if (self) _selectionManager = [[PXSectionedSelectionManager alloc] init];
  return self;
}

- (void)dealloc {
  [_selectionManager release];
  [super dealloc];
}

@end

@implementation PXCuratedLibraryViewProvider

@synthesize viewModel = _viewModel;

- (id)init {
  self = [super init];
  if (self) _viewModel = [[PXCuratedLibraryViewModel alloc] init];
  return self;
}

- (void)dealloc {
  [_viewModel release];
  [super dealloc];
}

@end

@implementation PXCuratedLibraryUIViewController

@synthesize viewProvider = _viewProvider;

- (id)init {
  self = [super init];
  if (self) _viewProvider = [[PXCuratedLibraryViewProvider alloc] init];
  return self;
}

- (void)dealloc {
  [_viewProvider release];
  [super dealloc];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
}

@end
