#pragma once

#include "host/hook.hpp"
#include "host/photos.hpp"

namespace velvault12 {

// Hooks. The host may call them on any thread.

/// What an app other than Photos sees of a list: without what is hidden from it, and if it holds albums, with
/// all others of the library, wherever they are kept, which come last as collections of their assets.
NSArray listedCollections(PHCollectionList list, Replaced<NSArray()> host);

/// Whether the newest of the assets are the first to be seen, and stand for the collection.
bool startsAtEnd(PHAssetCollection collection, Replaced<bool()> host);
bool keyAssetsAtEnd(PHAssetCollection collection, Replaced<bool()> host);

}  // namespace velvault12
