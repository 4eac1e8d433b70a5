#include "library_filter/listed_collections.hpp"

#include <utility>

#include "library_filter/asset_fetch.hpp"
#include "library_filter/collection_traits.hpp"
#include "library_filter/locked_albums.hpp"
#include "library_filter/photos_app.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

/// Adds the regular albums of the library that are not among the listed ones: those in folders, for an app
/// that opens none.
void addOtherAlbums(NSMutableArray shown, NSArray listed, const Settings& settings, LockedAlbums& locked) {
  const Ref<NSSet> known = NSSet::of(listed);
  const auto albums =
      PHAssetCollection::fetch(PHAssetCollection::Type::album, PHAssetCollection::Subtype::albumRegular, {});
  for (const auto album : albums) {
    if (known->containsObject(album)) continue;
    // There may be thousands of albums, and of photos in them.
    const AutoreleasePool fetched;
    const CollectionTraits traits = traitsOf(album);
    if (!isTakenOutOfFolder(traits.title, settings, locked)) continue;
    const bool isLocked = traits.title && locked.contains(*traits.title);
    const auto assets = elementsOf(isLocked ? PHFetchResult<PHAsset>() : fetchFromHost(album));
    shown.addObject(PHAssetCollection::transient(assets.get(), album.title()));
  }
}

}  // namespace

NSArray listedCollections(PHCollectionList, Replaced<NSArray()> host) {
  const Ref<NSArray> listed(host());
  const auto chosen = settings();
  if (!listed || !chosen->enabled || isPhotosApp()) return listed.get();
  LockedAlbums locked;
  auto shown = makeObject<NSMutableArray>();
  bool hasAlbums = false;
  for (const Object each : listed.get()) {
    const CollectionTraits traits = traitsOf(PHAssetCollection(each.get()));
    if (isListedInOtherApps(traits, *chosen, locked)) shown->addObject(each);
    hasAlbums = hasAlbums || traits.isRegularAlbum();
  }
  if (hasAlbums) addOtherAlbums(shown.get(), listed.get(), *chosen, locked);
  return std::move(shown).autorelease();
}

bool startsAtEnd(PHAssetCollection, Replaced<bool()> host) {
  return isChosen(&Settings::startAtBottom) || host();
}

bool keyAssetsAtEnd(PHAssetCollection, Replaced<bool()> host) {
  return isChosen(&Settings::startAtBottom) || host();
}

}  // namespace velvault12
