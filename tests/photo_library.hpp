#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/photos.hpp"

namespace velvault12 {

// The photo library as the host, or what is hooked in its way, shows it to code inside an app.

inline std::vector<std::string> titlesOf(const auto& collections) {
  std::vector<std::string> all;
  for (const Object each : collections) all.push_back(PHCollection(each.get()).localizedTitle().utf8());
  return all;
}

inline PHAssetCollection albumNamed(std::string_view title) {
  return PHAssetCollection::userAlbums(NSString::from(title)).firstObject();
}
inline PHAssetCollection smartAlbum(NSInteger subtype) {
  return PHAssetCollection::fetch(PHAssetCollection::Type::smartAlbum, PHAssetCollection::Subtype{subtype},
                                  {})
      .firstObject();
}
inline PHAssetCollection importHistory() {
  return PHAssetCollection::fetch(PHAssetCollection::Type{9}, PHAssetCollection::Subtype::any, {})
      .firstObject();
}
/// Albums and folders that are in no folder.
inline PHFetchResult<PHCollection> topLevel() {
  return sendToClass<"fetchTopLevelUserCollectionsWithOptions:", PHFetchResult<PHCollection>(Object)>(
      PHCollection::hostClass(), Object());
}
inline NSArray membersOf(Object list) { return list.send<"collections", NSArray()>(); }
inline PHCollectionList listOf(NSArray collections, std::string_view title = "List") {
  return sendToClass<"transientCollectionListWithCollections:title:", PHCollectionList(NSArray, NSString)>(
      PHCollectionList::hostClass(), collections, NSString::from(title));
}
inline NSUInteger estimateOf(Object album) { return album.send<"estimatedAssetCount", NSUInteger()>(); }
inline PHFetchResult<PHAsset> keyAssetsOf(PHAssetCollection album, PHFetchOptions options = {}) {
  return sendToClass<"fetchKeyAssetsInAssetCollection:options:",
                     PHFetchResult<PHAsset>(PHAssetCollection, PHFetchOptions)>(PHAsset::hostClass(), album,
                                                                                options);
}

}  // namespace velvault12
