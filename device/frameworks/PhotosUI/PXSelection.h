#pragma once

#import "device/frameworks/Photos/Photos.h"
#import "device/frameworks/UIKit/UIKit.h"

// How the screens of later systems know what is selected in them. They draw no photos.

namespace device {

/// An instance variable that owns an object: at first a new one of its class.
template <class Type>
class Owned {
 public:
  Owned() : object_([[Type alloc] init]) {}
  ~Owned() { [object_ release]; }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  Type* get() const { return object_; }
  void set(Type* object) {
    [object_ autorelease];
    object_ = [object retain];
  }

 private:
  Type* object_;
};

}  // namespace device

/// What was selected when it was taken.
@interface PXSelectionSnapshot : NSObject {
  device::Owned<NSArray> _objects;
}
/// No array.
- (PHFetchResult*)fetchSelectedObjects;
@end

@interface PXSectionedSelectionManager : NSObject {
  device::Owned<PXSelectionSnapshot> _selectionSnapshot;
}
- (PXSelectionSnapshot*)selectionSnapshot;
- (void)_selectObjects:(NSArray*)objects;
@end

@interface PXPhotosViewModel : NSObject {
  device::Owned<PXSectionedSelectionManager> _selectionManager;
}
- (PXSectionedSelectionManager*)selectionManager;
@end

@interface PXPhotosContentController : NSObject {
  device::Owned<PXPhotosViewModel> _viewModel;
}
- (PXPhotosViewModel*)viewModel;
- (void)contentViewWillAppear:(BOOL)animated;
@end

/// Shows one content controller, whose view model is its own.
@interface PXPhotosUIViewController : UIViewController {
  device::Owned<PXPhotosContentController> _contentController;
}
- (PXPhotosViewModel*)viewModel;
@end

@interface PXCuratedLibraryViewModel : NSObject {
  device::Owned<PXSectionedSelectionManager> _selectionManager;
}
- (PXSectionedSelectionManager*)selectionManager;
@end

@interface PXCuratedLibraryViewProvider : NSObject {
  device::Owned<PXCuratedLibraryViewModel> _viewModel;
}
- (PXCuratedLibraryViewModel*)viewModel;
@end

@interface PXCuratedLibraryUIViewController : UIViewController {
  device::Owned<PXCuratedLibraryViewProvider> _viewProvider;
}
- (PXCuratedLibraryViewProvider*)viewProvider;
@end
