#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "benchmarks/floor.hpp"
#include "benchmarks/library_filter/library_filter_benchmark.hpp"
#include "benchmarks/phone.hpp"
#include "device/system/loader.hpp"
#include "device/system/process.hpp"
#include "host/hook.hpp"
#include "host/photos.hpp"

namespace velvault12::benchmarks {

namespace {

constexpr int kPhotosAnAlbum = 4;
constexpr int kAlbumsAFolder = 10;

/// The whole answer with nothing around it: one read of the locked titles, what each collection must be
/// asked, the fetches of what the list lacks.
NSArray floorOfCollections(PHCollectionList, Replaced<NSArray()> host) {
  const NSArray listed = host();
  const Ref<NSSet> locked = readLockedTitles();
  auto shown = makeObject<NSMutableArray>();
  for (const Object each : listed) {
    const PHAssetCollection album(each.get());
    const bool isAlbum =
        each.isKindOf(PHAssetCollection::hostClass()) &&
        each.send<"assetCollectionType", PHAssetCollection::Type()>() == PHAssetCollection::Type::album &&
        each.send<"assetCollectionSubtype", PHAssetCollection::Subtype()>() ==
            PHAssetCollection::Subtype::albumRegular;
    if (isAlbum && locked->containsObject(each.send<"title", Object()>())) continue;
    shown->addObject(each);
  }
  const Ref<NSSet> known = NSSet::of(listed);
  for (const auto album : PHAssetCollection::fetch(PHAssetCollection::Type::album,
                                                   PHAssetCollection::Subtype::albumRegular, {})) {
    if (known->containsObject(album)) continue;
    const AutoreleasePool fetched;
    const auto title = album.send<"title", NSString()>();
    if (locked->containsObject(title)) continue;
    const auto assets = elementsOf(PHAsset::fetchAllInAssetCollection(album));
    shown->addObject(PHAssetCollection::transient(assets.get(), title));
  }
  return std::move(shown).autorelease();
}

std::string titleOf(int album) { return "Album number " + std::to_string(album); }

void fill(Phone& phone, int albums) {
  phone.library.tryTransaction([&] {
    std::int64_t folder = 0;
    for (int i = 0; i < albums; ++i) {
      const bool isInFolder = i < albums / 10;
      if (isInFolder && i % kAlbumsAFolder == 0) folder = phone.library.addFolder("Folder");
      phone.addAlbum(titleOf(i), kPhotosAnAlbum, isInFolder ? folder : 0);
    }
  });
}

/// Titles from all over the library, one alone from its middle.
std::vector<std::string> lockedTitles(int count, int albums) {
  std::vector<std::string> titles;
  for (int i = 0; i < count; ++i) titles.push_back(titleOf((2 * i + 1) * albums / (2 * count)));
  return titles;
}

/// All versions must come to the same, but for the folders that stand among the albums.
void expectListed(PHCollectionList root, Versions& versions, Version version, int albums) {
  const AutoreleasePool pool;
  versions.use(version);
  int listed = 0;
  for (const Object each : root.send<"collections", NSArray()>())
    listed += each.isKindOf(PHAssetCollection::hostClass()) ? 1 : 0;
  if (listed != albums) throw std::runtime_error(std::to_string(listed) + " albums are listed");
}

}  // namespace

Figures measureListedCollections(int albums) {
  Phone phone;
  fill(phone, albums);
  device::become({phone.device.folder(), std::string(device::kGallery)});
  const AutoreleasePool pool;
  const auto root =
      sendToClass<"fetchRootAlbumCollectionListWithOptions:", PHFetchResult<PHCollectionList>(Object)>(
          PHCollectionList::hostClass(), Object())
          .firstObject();
  Versions versions;
  versions.define(Version::floor, [] {
    constexpr HookRow kRow = replace<floorOfCollections>("PHCollectionList", "collections", "@@:");
    installHooks({&kRow, 1});
  });
  versions.define(Version::straightforward, installStraightforwardHooks);
  versions.define(Version::library, device::loadInjectedLibraries);

  Bench bench(versions);
  Figures all;
  for (const int most : {0, 1, 100}) {
    const int locked = std::min(most, albums);
    phone.lock(lockedTitles(locked, albums));
    for (const Version version : {Version::floor, Version::library, Version::straightforward})
      expectListed(root, versions, version, albums - locked);
    const std::string name =
        "collections: " + std::to_string(albums) + " albums, " + std::to_string(locked) + " locked";
    bench.add(name, {Version::host, Version::floor, Version::library, Version::straightforward},
              [root](Version) { root.send<"collections", NSArray()>(); });
    std::ranges::move(bench.figures(), std::back_inserter(all));
  }
  return all;
}

}  // namespace velvault12::benchmarks
