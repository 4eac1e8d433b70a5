#include "library_filter/asset_fetch.hpp"

#include "library_filter/collection_traits.hpp"
#include "library_filter/locked_albums.hpp"
#include "library_filter/photos_app.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

using AssetFetchMethod = Replaced<PHFetchResult<PHAsset>(PHAssetCollection, PHFetchOptions)>;

Ref<PHFetchOptions> adjusted(PHFetchOptions given, bool includesHidden) {
  Ref<PHFetchOptions> options = given ? given.copy() : makeObject<PHFetchOptions>();
  options->setIncludeHiddenAssets(includesHidden);
  return options;
}

PHFetchResult<PHAsset> fetch(AssetFetch decision, AssetFetchMethod host, PHAssetCollection collection,
                             PHFetchOptions given) {
  if (decision == AssetFetch::refused) return {};
  return host(collection, adjusted(given, decision == AssetFetch::withHidden).get());
}

AssetFetch decide(PHAssetCollection collection, LockedAlbums& locked) {
  return assetFetch(traitsOf(collection), isPhotosApp(), *settings(), locked);
}

AssetFetchMethod hostsFetch() {
  return replacedBy<fetchAssets, "fetchAssetsInAssetCollection:options:">(
      Object(reinterpret_cast<id>(PHAsset::hostClass())));
}

}  // namespace

PHFetchResult<PHAsset> fetchAssets(Object, AssetFetchMethod host, PHAssetCollection collection,
                                   PHFetchOptions options) {
  LockedAlbums locked;
  return fetch(decide(collection, locked), host, collection, options);
}

PHFetchResult<PHAsset> fetchKeyAssets(Object, AssetFetchMethod host, PHAssetCollection collection,
                                      PHFetchOptions options) {
  LockedAlbums locked;
  return fetch(keyAssetFetch(traitsOf(collection), isPhotosApp(), locked), host, collection, options);
}

PHFetchResult<PHAssetCollection> fetchAssetCollections(
    Object,
    Replaced<PHFetchResult<PHAssetCollection>(PHAssetCollection::Type, PHAssetCollection::Subtype,
                                              PHFetchOptions)>
        host,
    PHAssetCollection::Type type, PHAssetCollection::Subtype subtype, PHFetchOptions options) {
  return host(type, subtype, adjusted(options, true).get());
}

NSUInteger estimatedAssetCount(PHAssetCollection album, Replaced<NSUInteger()> host) {
  if (isPhotosApp() || album.type() != PHAssetCollection::Type::album) return host();
  LockedAlbums locked;
  const NSString title = album.title();
  if (title && locked.contains(title.utf8())) return 0;
  const NSUInteger estimate = host();
  if (estimate != 0) return estimate;
  return fetch(decide(album, locked), hostsFetch(), album, PHFetchOptions()).count();
}

PHFetchResult<PHAsset> fetchFromHost(PHAssetCollection album) {
  return fetch(AssetFetch::withHidden, hostsFetch(), album, PHFetchOptions());
}

}  // namespace velvault12
