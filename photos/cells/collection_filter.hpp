#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// Hooks: which albums, and lists of them, the Photos app shows. Nothing is deleted, it is only left out.

/// The camera roll comes first among the user's albums, unless it is the album that was opened last. May be
/// called on any thread.
NSArray collectionsInPhotos(PHCollectionList list, Replaced<NSArray()> host);

/// The parts of the Albums tab.
NSArray gadgets(PXGadgetDataSource source, Replaced<NSArray()> host);

/// Always, so that empty albums stay in the lists.
bool containsAnyAssets(PXPhotoKitCollectionsDataSourceManager manager, Replaced<bool(PHCollection)> host,
                       PHCollection collection);
bool canReorder(PXPhotoKitCollectionsDataSourceManager manager, Replaced<bool(PHCollection)> host,
                PHCollection collection);

}  // namespace velvault12
