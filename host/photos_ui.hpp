#pragma once

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
  /// it, and in a process without the class it does nothing.
  static void apply(bool hidden, NSArray assets) {
    const auto helper = makeObject<PUAssetHidingHelper>();
    helper->trySend<"setAssets:", void(NSArray)>(assets);
    helper->trySend<"applyHiddenState:completionHandler:", void(bool, Block<void()>)>(hidden,
                                                                                      Block<void()>());
  }
};

/// An album's tile: its title, its subtitle and a stack of key photos.
class PUAlbumListCellContentView : public HostClass<"PUAlbumListCellContentView", UIView> {
 public:
  using HostClass::HostClass;
  NSString title() const { return trySend<"title", NSString()>(); }
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
  void select(NSIndexPath path) const { trySend<"didSelectItemAtIndexPath:", void(NSIndexPath)>(path); }
  void performDelete(PUAlbumListCellContentView tile, Object action) const {
    trySend<"albumListCellContentView:performDeleteAction:", void(PUAlbumListCellContentView, Object)>(
        tile, action);
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
