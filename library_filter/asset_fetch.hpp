#pragma once

#include "host/hook.hpp"
#include "host/photos.hpp"
#include "library_filter/locked_albums.hpp"

namespace velvault12 {

// Hooks. The host may call them on any thread. Options that the caller passes are its own: the host fetches
// with a copy of them.

/// Nil for the assets of a hidden album. Where there are any, hidden assets are among them, but for the
/// albums of the whole library.
PHFetchResult<PHAsset> fetchAssets(Object assetClass,
                                   Replaced<PHFetchResult<PHAsset>(PHAssetCollection, PHFetchOptions)> host,
                                   PHAssetCollection collection, PHFetchOptions options);
PHFetchResult<PHAsset> fetchKeyAssets(
    Object assetClass, Replaced<PHFetchResult<PHAsset>(PHAssetCollection, PHFetchOptions)> host,
    PHAssetCollection collection, PHFetchOptions options);
PHFetchResult<PHAssetCollection> fetchAssetCollections(
    Object collectionClass,
    Replaced<PHFetchResult<PHAssetCollection>(PHAssetCollection::Type, PHAssetCollection::Subtype,
                                              PHFetchOptions)>
        host,
    PHAssetCollection::Type type, PHAssetCollection::Subtype subtype, PHFetchOptions options);

/// 0 for a locked album; what one holds that the host thinks empty for all its photos being hidden.
NSUInteger estimatedAssetCount(PHAssetCollection album, Replaced<NSUInteger()> host);

/// The host's answer.
NSArray fetchedObjects(PHFetchResult<Object> result, Replaced<NSArray()> host);

// For other hooks.

/// What an app that fetches all assets of the collection gets from the host when it is not refused.
PHFetchResult<PHAsset> fetchFromHost(PHAssetCollection collection);

}  // namespace velvault12
