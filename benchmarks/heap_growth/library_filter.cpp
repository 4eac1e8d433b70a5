#include "benchmarks/heap_growth/heap_growth.hpp"
#include "tests/phone_test.hpp"
#include "tests/photo_library.hpp"

namespace velvault12 {
namespace {

class Gallery : public PhoneTest {
 public:
  bool keepsNothing(Effort effort) {
    auto library = phone_.photoLibrary();
    library.addAlbum("Empty");
    for (const std::string_view title : {"Open", "Locked"})
      library.addToAlbum(library.addAsset({}), library.addAlbum(title, library.addFolder("Folder")));
    writeStrings(kLockedAlbums, {"Locked"});
    phone_.launchHere(device::kGallery);
    const auto hooks = letTimePass();
    Drivers drivers;
    addLibraryFilter(drivers);
    return measure(effort, hooks, drivers);
  }

 private:
  void TestBody() override {}
};

}  // namespace

void addLibraryFilter(Drivers& drivers) {
  const auto smart = makeObject<NSMutableArray>(), albums = makeObject<NSMutableArray>();
  for (const NSInteger subtype : {202, 205, 209}) smart->addObject(smartAlbum(subtype));
  for (const Object each : topLevel()) albums->addObject(each);
  const Ref<PHCollectionList> smartList(listOf(smart.get())), list(listOf(albums.get()));
  const Ref<PHAssetCollection> open(albumNamed("Open")), locked(albumNamed("Locked")),
      empty(albumNamed("Empty"));
  const auto forEach = [=](const auto& ask) {
    for (const auto& album : {open, locked, empty}) ask(album.get());
  };
  const Driver all[] = {
      {"PHCollectionList", "collections",
       [=] {
         membersOf(list.get());
         membersOf(smartList.get());
       }},
      {"PHFetchResult", "fetchedObjects", [] { topLevel().send<"fetchedObjects", NSArray()>(); }},
      {"PHAsset", "fetchAssetsInAssetCollection:options:",
       [=] {
         forEach([](PHAssetCollection album) {
           for (const auto asset : PHAsset::fetchAllInAssetCollection(album)) asset.get();
         });
       }},
      {"PHAsset", "fetchKeyAssetsInAssetCollection:options:",
       [=] { forEach([](PHAssetCollection album) { keyAssetsOf(album); }); }},
      {"PHAssetCollection", "fetchAssetCollectionsWithType:subtype:options:",
       [] {
         PHAssetCollection::fetch(PHAssetCollection::Type::album, PHAssetCollection::Subtype::any,
                                  PHFetchOptions());
       }},
      {"PHAssetCollection", "estimatedAssetCount",
       [=] { forEach([](PHAssetCollection album) { estimateOf(album); }); }},
  };
  drivers.all.insert(drivers.all.end(), std::begin(all), std::end(all));
  drivers.receivers["PHAssetCollection"] = [=] { return open.get(); };
}

bool galleryKeepsNothing(Effort effort) { return Gallery().keepsNothing(effort); }

}  // namespace velvault12
