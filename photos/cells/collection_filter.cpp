#include "photos/cells/collection_filter.hpp"

#include <utility>

#include "library_filter/collection_traits.hpp"
#include "photos/cells/gadget_rules.hpp"
#include "photos/list/album_lock.hpp"
#include "photos/list/controller_registry.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

/// What the host calls the list of the user's own albums and folders.
bool isUsersOwn(PHCollectionList list) {
  const NSString title = list.localizedTitle();
  return title && title.isEqualToString(NSString::from("PXUserCollectionsSectionTitle"));
}

PHAssetCollection cameraRoll() {
  return PHAssetCollection::fetch(PHAssetCollection::Type::smartAlbum,
                                  PHAssetCollection::Subtype::userLibrary,
                                  PHFetchOptions::includingHidden().get())
      .firstObject();
}

}  // namespace

NSArray collectionsInPhotos(PHCollectionList list, Replaced<NSArray()> host) {
  const Ref<NSArray> listed(host());
  const auto chosen = settings();
  if (!listed || !chosen->enabled) return listed.get();
  auto shown = makeObject<NSMutableArray>();
  if (isUsersOwn(list) && !controllerRegistry().albumIsCameraRoll) shown->addObject(cameraRoll());
  bool hasSmartAlbums = false;
  for (const Object each : listed.get()) {
    const CollectionTraits traits = traitsOf(PHAssetCollection(each.get()));
    if (isListedInPhotos(traits, *chosen)) shown->addObject(each);
    hasSmartAlbums = hasSmartAlbums || traits.type == CollectionTraits::Type::smartAlbum;
  }
  // The locked albums do not matter to this list, but to the tiles that show it, which are the main thread's.
  if (hasSmartAlbums && NSThread::isMainThread()) albumLock().reload();
  return std::move(shown).autorelease();
}

NSArray gadgets(PXGadgetDataSource, Replaced<NSArray()> host) {
  const NSArray all = host();
  if (!all) return all;
  const auto chosen = settings();
  GadgetWalk walk(*chosen);
  const auto shown = makeObject<NSMutableArray>();
  for (const Object each : all) {
    const PXGadget gadget(each.get());
    if (walk.shows({gadget.albumListType(), gadget.gadgetType()})) shown->addObject(each);
  }
  return shown->copy().autorelease();
}

bool containsAnyAssets(PXPhotoKitCollectionsDataSourceManager, Replaced<bool(PHCollection)>, PHCollection) {
  return true;
}

bool canReorder(PXPhotoKitCollectionsDataSourceManager, Replaced<bool(PHCollection)> host,
                PHCollection collection) {
  return isChosen(&Settings::reorderStock) || host(collection);
}

}  // namespace velvault12
