#pragma once

#include "host/hook.hpp"
#include "host/photos.hpp"

namespace velvault12 {

// Hooks. The host may call them on any thread. Options that the caller passes are its own: the host fetches
// with a copy of them.

/// What a collection holds: nil where that is hidden from the app, from Photos never. Hidden photos are
/// included, except from the camera roll and the album of all photos.
PHFetchResult<PHAsset> fetchAssets(Object assetClass,
                                   Replaced<PHFetchResult<PHAsset>(PHAssetCollection, PHFetchOptions)> host,
                                   PHAssetCollection collection, PHFetchOptions options);
/// The few that stand for it: nil where it is locked. Hidden photos are included, except from the camera
/// roll.
PHFetchResult<PHAsset> fetchKeyAssets(
    Object assetClass, Replaced<PHFetchResult<PHAsset>(PHAssetCollection, PHFetchOptions)> host,
    PHAssetCollection collection, PHFetchOptions options);
/// The host's answer, with hidden photos included in its options.
PHFetchResult<PHAssetCollection> fetchAssetCollections(
    Object collectionClass,
    Replaced<PHFetchResult<PHAssetCollection>(PHAssetCollection::Type, PHAssetCollection::Subtype,
                                              PHFetchOptions)>
        host,
    PHAssetCollection::Type type, PHAssetCollection::Subtype subtype, PHFetchOptions options);

/// Outside Photos 0 for a locked album, and for one that the host takes for empty what can be fetched of it.
NSUInteger estimatedAssetCount(PHAssetCollection album, Replaced<NSUInteger()> host);

// For other hooks.

/// All assets of the album, hidden ones as well, asked of the host's own method, so that nothing is refused.
PHFetchResult<PHAsset> fetchFromHost(PHAssetCollection album);

}  // namespace velvault12
