#include "benchmarks/floor.hpp"
#include "benchmarks/library_filter/library_filter_benchmark.hpp"
#include "benchmarks/phone.hpp"
#include "device/system/loader.hpp"
#include "device/system/process.hpp"
#include "host/hook.hpp"
#include "host/photos.hpp"
#include "tests/photo_library.hpp"

namespace velvault12::benchmarks {

namespace {

constexpr int kPhotos = 40;

using AssetFetch = Replaced<PHFetchResult<PHAsset>(PHAssetCollection, PHFetchOptions)>;

bool isLocked(PHAssetCollection album) { return readLockedTitles()->containsObject(album.title()); }

/// One read, and the options that the host is to fetch with.
PHFetchResult<PHAsset> fetch(AssetFetch host, PHAssetCollection album, PHFetchOptions given) {
  if (isLocked(album)) return {};
  const Ref<PHFetchOptions> options = given ? given.copy() : makeObject<PHFetchOptions>();
  options->setIncludeHiddenAssets(true);
  return host(album, options.get());
}
PHFetchResult<PHAsset> floorOfAssets(Object, AssetFetch host, PHAssetCollection album, PHFetchOptions given) {
  return fetch(host, album, given);
}
PHFetchResult<PHAsset> floorOfKeyAssets(Object, AssetFetch host, PHAssetCollection album,
                                        PHFetchOptions given) {
  return fetch(host, album, given);
}
NSUInteger floorOfCount(PHAssetCollection album, Replaced<NSUInteger()> host) {
  return isLocked(album) ? 0 : host();
}

}  // namespace

Figures measureAssetFetch() {
  Phone phone;
  for (const char* const title : {"Shown", "Locked"}) phone.addAlbum(title, kPhotos);
  std::vector<std::string> locked{"Locked"};
  while (locked.size() < 10) locked.push_back("Another locked album " + std::to_string(locked.size()));
  phone.lock(locked);
  device::become({phone.device.folder(), std::string(device::kGallery)});
  const AutoreleasePool pool;
  Versions versions;
  versions.define(Version::floor, [] {
    constexpr HookRow kRows[] = {
        replaceClassMethod<floorOfAssets>("PHAsset", "fetchAssetsInAssetCollection:options:", "@@:@@"),
        replaceClassMethod<floorOfKeyAssets>("PHAsset", "fetchKeyAssetsInAssetCollection:options:", "@@:@@"),
        replace<floorOfCount>("PHAssetCollection", "estimatedAssetCount", "Q@:"),
    };
    installHooks(kRows);
  });
  versions.define(Version::straightforward, installStraightforwardHooks);
  versions.define(Version::library, device::loadInjectedLibraries);

  Bench bench(versions);
  for (const char* const title : {"Shown", "Locked"}) {
    const PHAssetCollection album = albumNamed(title);
    const std::string of = std::string(": ") + (title[0] == 'S' ? "shown" : "locked") + " album";
    const auto kAll = {Version::host, Version::floor, Version::library};
    bench.add("assets" + of, {Version::host, Version::floor, Version::library, Version::straightforward},
              [album](Version) { PHAsset::fetchInAssetCollection(album, {}); });
    bench.add("key assets" + of, kAll, [album](Version) { keyAssetsOf(album); });
    bench.add("estimatedAssetCount" + of, kAll, [album](Version) { estimateOf(album); });
  }
  return bench.figures();
}

}  // namespace velvault12::benchmarks
