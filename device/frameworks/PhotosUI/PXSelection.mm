#import "device/frameworks/PhotosUI/PXSelection.h"

@implementation PXSelectionSnapshot

- (id)_initWithObjects:(NSArray*)objects {
  self = [super init];
  if (self) _objects.set([[objects copy] autorelease]);
  return self;
}

- (PHFetchResult*)fetchSelectedObjects {
  return [PHFetchResult _resultOf:_objects.get() options:nil];
}

@end

@implementation PXSectionedSelectionManager

- (PXSelectionSnapshot*)selectionSnapshot {
  return _selectionSnapshot.get();
}

- (void)_selectObjects:(NSArray*)objects {
  _selectionSnapshot.set([[[PXSelectionSnapshot alloc] _initWithObjects:objects] autorelease]);
}

@end

@implementation PXPhotosViewModel

- (PXSectionedSelectionManager*)selectionManager {
  return _selectionManager.get();
}

@end

@implementation PXPhotosContentController

- (PXPhotosViewModel*)viewModel {
  return _viewModel.get();
}

- (void)contentViewWillAppear:(BOOL)animated {
}

@end

@implementation PXPhotosUIViewController

- (PXPhotosViewModel*)viewModel {
  return [_contentController.get() viewModel];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [_contentController.get() contentViewWillAppear:animated];
}

- (void)viewDidAppear:(BOOL)animated {
  [super viewDidAppear:animated];
}

@end

@implementation PXCuratedLibraryViewModel

- (PXSectionedSelectionManager*)selectionManager {
  return _selectionManager.get();
}

@end

@implementation PXCuratedLibraryViewProvider

- (PXCuratedLibraryViewModel*)viewModel {
  return _viewModel.get();
}

@end

@implementation PXCuratedLibraryUIViewController

- (PXCuratedLibraryViewProvider*)viewProvider {
  return _viewProvider.get();
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
}

@end
