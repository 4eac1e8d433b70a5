#include "benchmarks/photos/photos_app.hpp"
#include "benchmarks/photos/photos_benchmark.hpp"
#include "device/system/loader.hpp"

namespace velvault12::benchmarks {

Figures measurePassThrough() {
  const PhotosPhone phone;
  const PhotosApp app(phone);
  Versions versions;
  versions.define(Version::library, device::loadInjectedLibraries);

  // So many that emptying the pool does not count.
  constexpr int kCalls = 1000;
  const auto kBoth = {Version::host, Version::library};
  const auto layout = makeObject<HostClass<"PUSectionedGridLayout">>();
  const auto navigation = PhotosApp::navigation();
  const auto album =
      PHAssetCollection::fetch(PHAssetCollection::Type::album, PHAssetCollection::Subtype::any, {})
          .firstObject();
  Bench bench(versions);
  bench.add(
      "pass-through: itemSize", kBoth, [&](Version) { layout->send<"itemSize", CGSize()>(); }, kCalls);
  bench.add(
      "pass-through: navigationBar", kBoth, [&](Version) { navigation.send<"navigationBar", Object()>(); },
      kCalls);
  bench.add(
      "a switch that is off: startsAtEnd", kBoth, [&](Version) { album.send<"startsAtEnd", bool()>(); },
      kCalls);
  return bench.figures();
}

}  // namespace velvault12::benchmarks
