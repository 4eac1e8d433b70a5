#pragma once

#include <cstdint>
#include <optional>

#include "host/foundation.hpp"
#include "host/photos.hpp"
#include "host/uikit.hpp"

// PhotosUI's private classes. Which methods a class has differs between system versions, so every
// message here may go unanswered, as if to nil.

namespace velvault12 {

class PUAssetHidingHelper : public HostClass<"PUAssetHidingHelper"> {
 public:
  using HostClass::HostClass;
  /// Hides the assets from the library or shows them again, as the host's own menu does. Nothing waits for
  /// it: the completion, which may be none, runs on any thread. What the host hands to it is not known, so
  /// that it takes nothing. In a process without the class nothing happens.
  static void apply(bool hidden, NSArray assets, Block<void()> completion = Block<void()>()) {
    const auto helper = makeObject<PUAssetHidingHelper>();
    helper->trySend<"setAssets:", void(NSArray)>(assets);
    helper->trySend<"applyHiddenState:completionHandler:", void(bool, Block<void()>)>(hidden, completion);
  }
};

/// An album's tile: its title, its subtitle and a stack of key photos. Tiles are used again for other albums.
class PUAlbumListCellContentView : public HostClass<"PUAlbumListCellContentView", UIView> {
 public:
  using HostClass::HostClass;
  NSString title() const { return trySend<"title", NSString()>(); }
  NSString subtitle() const { return trySend<"subtitle", NSString()>(); }
  void setSubtitle(NSString subtitle) const { trySend<"setSubtitle:", void(NSString)>(subtitle); }
  UIView stackView() const { return trySend<"stackView", UIView()>(); }
  /// Nil outside of editing, and on tiles that cannot be deleted.
  UIView deleteButton() const { return trySend<"_deleteButton", UIView()>(); }
  /// Nil where a label is used instead.
  UITextField titleTextField() const { return trySend<"_titleTextField", UITextField()>(); }
  UILabel subtitleLabel() const { return trySend<"_subtitleLabel", UILabel()>(); }
};

/// Gives tiles their sizes, texts included, and the stacks of photos on them theirs.
class PUAlbumListCellContentViewHelper : public HostClass<"PUAlbumListCellContentViewHelper"> {
 public:
  using HostClass::HostClass;
};
class PUAlbumListCellContentViewHelperConfiguration
    : public HostClass<"PUAlbumListCellContentViewHelperConfiguration"> {
 public:
  using HostClass::HostClass;
};

/// A button of PhotosUI's own make, as the one on a tile that deletes its album.
class PXUIButton : public HostClass<"PXUIButton", UIView> {
 public:
  using HostClass::HostClass;
};

/// What a collection view's cell, or a gadget of the strip, shows of an album; nil when it shows something
/// else.
inline PUAlbumListCellContentView albumTile(Object cellOrGadget) {
  return cellOrGadget.trySend<"albumListCellContentView", PUAlbumListCellContentView()>();
}

/// The strip of albums that scrolls sideways on the Albums tab.
class PUHorizontalAlbumListGadget : public HostClass<"PUHorizontalAlbumListGadget", UIViewController> {
 public:
  using HostClass::HostClass;
  UICollectionView collectionView() const { return trySend<"collectionView", UICollectionView()>(); }
  Object gadgetAtIndexPath(NSIndexPath path) const {
    return trySend<"_gadgetAtIndexPath:", Object(NSIndexPath)>(path);
  }
  void select(NSIndexPath path) const {
    trySend<"collectionView:didSelectItemAtIndexPath:", void(UICollectionView, NSIndexPath)>(collectionView(),
                                                                                             path);
  }
};

/// The full list of albums.
class PUAlbumListViewController : public HostClass<"PUAlbumListViewController", UIViewController> {
 public:
  using HostClass::HostClass;
  /// The tile in sight at that place of the collection or table view; nil when it is scrolled away.
  PUAlbumListCellContentView tileAtIndexPath(NSIndexPath path) const {
    return trySend<"_preparedAlbumListCellContentViewAtIndexPath:", PUAlbumListCellContentView(NSIndexPath)>(
        path);
  }
  PHCollection collectionAtIndexPath(NSIndexPath path) const {
    return trySend<"collectionAtIndexPath:", PHCollection(NSIndexPath)>(path);
  }
  /// What the tile shows; nil for one that the list does not show.
  PHCollection collectionOf(PUAlbumListCellContentView tile) const {
    if (!tile) return {};
    const auto path =
        trySend<"indexPathForAlbumListCellContentView:", NSIndexPath(PUAlbumListCellContentView)>(tile);
    return path ? collectionAtIndexPath(path) : PHCollection();
  }
  /// Whether there is no album at that place yet, but one can be made.
  bool isPlaceholderAtIndexPath(NSIndexPath path) const {
    return trySend<"isPlaceholderAtIndexPath:", bool(NSIndexPath)>(path);
  }
  UICollectionView collectionView() const { return trySend<"collectionView", UICollectionView()>(); }
  /// Shows what the library holds now.
  void reloadContentView() const { trySend<"reloadContentView", void()>(); }
  /// The line above the albums while photos are being picked into one of them; otherwise nil.
  UIView pickerBannerView() const { return trySend<"_pickerBannerView", UIView()>(); }
  /// What its "Done" does.
  void done() const { trySend<"_handleDoneButton:", void(Object)>(Object()); }
  void select(NSIndexPath path) const { trySend<"didSelectItemAtIndexPath:", void(NSIndexPath)>(path); }
  void performDelete(PUAlbumListCellContentView tile, Object action) const {
    trySend<"albumListCellContentView:performDeleteAction:", void(PUAlbumListCellContentView, Object)>(
        tile, action);
  }
};

/// Deletes photos, once its user has agreed.
class PUDeletePhotosActionController : public HostClass<"PUDeletePhotosActionController"> {
 public:
  using HostClass::HostClass;
};

/// A grid of photos, some of which may be selected.
class PUPhotosGridViewController : public HostClass<"PUPhotosGridViewController", UIViewController> {
 public:
  using HostClass::HostClass;
};

/// The grid of one album.
class PUPhotosAlbumViewController
    : public HostClass<"PUPhotosAlbumViewController", PUPhotosGridViewController> {
 public:
  using HostClass::HostClass;
  PHAssetCollection assetCollection() const { return trySend<"assetCollection", PHAssetCollection()>(); }
};

/// The grid of the whole library.
class PUZoomableGridViewController
    : public HostClass<"PUZoomableGridViewController", PUPhotosGridViewController> {
 public:
  using HostClass::HostClass;
};

/// What shows photos from iOS 14 on, within a view controller.
class PXPhotosContentController : public HostClass<"PXPhotosContentController"> {
 public:
  using HostClass::HostClass;
};

/// The whole library from iOS 13 on.
class PXCuratedLibraryUIViewController
    : public HostClass<"PXCuratedLibraryUIViewController", UIViewController> {
 public:
  using HostClass::HostClass;
};

/// What is selected in any of these four, each asked by the way that it knows; empty for nil.
inline Ref<NSArray> selectedPhotos(Object controller) {
  if (controller.responds<"selectedAssets">())
    return elementsOf(controller.trySend<"selectedAssets", Object()>());
  const Object provider = controller.trySend<"viewProvider", Object()>();
  const Object viewModel = (provider ? provider : controller).trySend<"viewModel", Object()>();
  const Object manager = viewModel.trySend<"selectionManager", Object()>();
  const Object snapshot = manager.trySend<"selectionSnapshot", Object()>();
  return elementsOf(snapshot.trySend<"fetchSelectedObjects", Object()>());
}

/// A part of the Albums tab: a strip of albums, a list of them, whatever a version of the app has.
class PXGadget : public Object {
 public:
  using Object::Object;
  std::uint64_t gadgetType() const { return trySend<"gadgetType", std::uint64_t()>(); }
  /// Of which albums it is a strip; nothing where it is none.
  std::optional<std::uint64_t> albumListType() const {
    if (!responds<"provider">()) return std::nullopt;
    return trySend<"provider", Object()>().trySend<"albumListType", std::uint64_t()>();
  }
};

/// The first screen of the Albums tab.
class PUAlbumsGadgetViewController : public HostClass<"PUAlbumsGadgetViewController", UIViewController> {
 public:
  using HostClass::HostClass;
  UICollectionView collectionView() const { return trySend<"collectionView", UICollectionView()>(); }
};

/// What the Albums tab is made of.
class PXGadgetDataSource : public HostClass<"PXGadgetDataSource"> {
 public:
  using HostClass::HostClass;
};

/// Tells the lists of albums what they show, and what may be done with it.
class PXPhotoKitCollectionsDataSourceManager : public HostClass<"PXPhotoKitCollectionsDataSourceManager"> {
 public:
  using HostClass::HostClass;
};

/// What the viewer of single photos knows of the one that it shows.
class PUAssetViewModel : public HostClass<"PUAssetViewModel"> {
 public:
  using HostClass::HostClass;
};

/// How the viewer of single photos behaves.
class PUOneUpSettings : public HostClass<"PUOneUpSettings"> {
 public:
  using HostClass::HostClass;
};

class PUNavigationController : public HostClass<"PUNavigationController", UINavigationController> {
 public:
  using HostClass::HostClass;
  /// Whose items its toolbar shows; may be nil.
  UIViewController currentToolbarViewController() const {
    return trySend<"_currentToolbarViewController", UIViewController()>();
  }
};

class PUTabbedLibraryViewController : public HostClass<"PUTabbedLibraryViewController", UIViewController> {
 public:
  using HostClass::HostClass;
  UINavigationController selectedNavigationController() const {
    return trySend<"selectedNavigationController", UINavigationController()>();
  }
};

class PhotosApplication : public HostClass<"PhotosApplication", UIApplication> {
 public:
  using HostClass::HostClass;
  PUTabbedLibraryViewController tabbedLibraryViewController() const {
    return trySend<"_tabbedLibraryViewController", PUTabbedLibraryViewController()>();
  }
};

}  // namespace velvault12
