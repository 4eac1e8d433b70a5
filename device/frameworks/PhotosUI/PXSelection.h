#pragma once

#import "device/frameworks/Photos/Photos.h"
#import "device/frameworks/UIKit/UIKit.h"

// How the screens of later systems know what is selected in them. They draw no photos.

/// What was selected when it was taken.
@interface PXSelectionSnapshot : NSObject {
  NSArray* _objects;
}
/// No array.
- (PHFetchResult*)fetchSelectedObjects;
@end

@interface PXSectionedSelectionManager : NSObject {
  PXSelectionSnapshot* _selectionSnapshot;
}
@property(nonatomic, readonly) PXSelectionSnapshot* selectionSnapshot;
- (void)_selectObjects:(NSArray*)objects;
@end

@interface PXPhotosViewModel : NSObject {
  PXSectionedSelectionManager* _selectionManager;
}
@property(nonatomic, readonly) PXSectionedSelectionManager* selectionManager;
@end

@interface PXPhotosContentController : NSObject {
  PXPhotosViewModel* _viewModel;
}
@property(nonatomic, readonly) PXPhotosViewModel* viewModel;
- (void)contentViewWillAppear:(BOOL)animated;
@end

/// Shows one content controller, whose view model is its own.
@interface PXPhotosUIViewController : UIViewController {
  PXPhotosContentController* _contentController;
}
@property(nonatomic, readonly) PXPhotosViewModel* viewModel;
@end

@interface PXCuratedLibraryViewModel : NSObject {
  PXSectionedSelectionManager* _selectionManager;
}
@property(nonatomic, readonly) PXSectionedSelectionManager* selectionManager;
@end

@interface PXCuratedLibraryViewProvider : NSObject {
  PXCuratedLibraryViewModel* _viewModel;
}
@property(nonatomic, readonly) PXCuratedLibraryViewModel* viewModel;
@end

@interface PXCuratedLibraryUIViewController : UIViewController {
  PXCuratedLibraryViewProvider* _viewProvider;
}
@property(nonatomic, readonly) PXCuratedLibraryViewProvider* viewProvider;
@end
