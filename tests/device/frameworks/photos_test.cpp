// The photo library, as its database keeps it and as an app's code fetches from it.

#include "host/photos.hpp"

#include <gtest/gtest.h>

#include <thread>

#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

using device::MediaType;
using device::PhotoDatabase;
using Assets = PHFetchResult<PHAsset>;
using Collections = PHFetchResult<PHCollection>;
using Numbers = std::vector<std::int64_t>;
using Options = Ref<PHFetchOptions>;
using Type = PHAssetCollection::Type;
using Subtype = PHAssetCollection::Subtype;

class Photos : public PlainPhone {
 protected:
  Photos() { become(device::kGallery); }

  std::int64_t addTo(std::int64_t album, const device::AssetRow& asset) {
    const std::int64_t added = library_.addAsset(asset);
    library_.addToAlbum(added, album);
    return added;
  }

  template <class List>
  static Titles titlesOf(List collections) {
    Titles all;
    for (const Object each : collections) all.push_back(PHCollection(each.get()).localizedTitle().utf8());
    return all;
  }
  static Numbers numbersOf(Assets assets) {
    Numbers all;
    for (const Object each : assets) all.push_back(std::stoll(ask<"localIdentifier", NSString>(each).utf8()));
    return all;
  }

  static auto fetch(Type type, Subtype subtype = Subtype::any, const Options& options = {}) {
    return PHAssetCollection::fetch(type, subtype, options.get());
  }
  static PHAssetCollection album(std::string_view title) {
    return PHAssetCollection::userAlbums(NSString::from(title)).firstObject();
  }
  static PHAssetCollection smartAlbum(NSInteger subtype) {
    return fetch(Type::smartAlbum, Subtype{subtype}).firstObject();
  }
  static Numbers in(PHAssetCollection album, const Options& options = {}) {
    return numbersOf(PHAsset::fetchInAssetCollection(album, options.get()));
  }
  static Assets keyAssetsIn(PHAssetCollection album) {
    return ask<"fetchKeyAssetsInAssetCollection:options:", Assets>(hostType<"PHAsset">(), album, Object());
  }
  static Collections topLevel() {
    return ask<"fetchTopLevelUserCollectionsWithOptions:", Collections>(hostType<"PHCollection">(), Object());
  }
  static NSArray members(Object folder) { return ask<"collections", NSArray>(folder); }
  static NSUInteger estimate(Object album) { return ask<"estimatedAssetCount", NSUInteger>(album); }

  static Options sortedBy(std::string_view key, bool ascending) {
    auto options = makeObject<PHFetchOptions>();
    options->setSortDescriptors(NSArray::of(NSSortDescriptor::make(key, ascending)));
    return options;
  }

  PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(Photos, TheDatabaseKeepsAlbumsInFoldersInTheirOrder) {
  const auto pets = library_.addAlbum("Pets");
  const auto trips = library_.addFolder("Trips");
  const auto north = library_.addFolder("O'Hara's \U0001F512 \"north\"", trips);
  const auto fjords = library_.addAlbum("", north);
  library_.addAlbum("Pets", trips);
  EXPECT_EQ(titlesOf(topLevel()), (Titles{"Pets", "Trips"}));
  EXPECT_EQ(titlesOf(members(topLevel().objectAtIndex(1))),
            (Titles{"O'Hara's \U0001F512 \"north\"", "Pets"}));
  EXPECT_EQ(albums(), (Titles{"Pets", "", "Pets"})) << "wherever they are kept";

  const auto asset = addTo(fjords, {});
  addTo(pets, {});
  library_.addToAlbum(asset, pets);
  library_.addToAlbum(asset, pets);
  EXPECT_EQ(library_.assetsInAlbum(pets).size(), 2u) << "no asset is in an album twice";
  EXPECT_THROW(library_.addToAlbum(asset, 99), std::runtime_error);
  EXPECT_EQ(library_.albumsContaining(asset).size(), 2u);
  library_.removeFromAlbum(asset, pets);
  library_.removeCollection(trips);
  EXPECT_EQ(albums(), Titles{"Pets"}) << "a folder goes with all that is in it";
  EXPECT_TRUE(library_.albumsContaining(asset).empty());
  EXPECT_EQ(library_.allAssets().size(), 2u) << "assets stay";
}

TEST_F(Photos, WritersInALibraryThatIsNewLoseNothing) {
  const auto file = phone_.onDisk("/var/mobile/Media/new/Photos.sqlite");
  const auto write = [&](int writer) {
    PhotoDatabase library(file);
    for (int i = 0; i < 8; ++i) {
      const auto added = library.addAlbum(std::to_string(writer));
      library.addToAlbum(library.addAsset({.creationDate = double(writer)}), added);
    }
  };
  std::vector<std::jthread> writers;
  for (int writer = 0; writer < 4; ++writer) writers.emplace_back(write, writer);
  writers.clear();
  const PhotoDatabase library(file);
  EXPECT_EQ(library.allAlbums().size(), 32u);
  for (const auto& row : library.allAlbums()) {
    const auto assets = library.assetsInAlbum(row.identifier);
    ASSERT_EQ(assets.size(), 1u) << row.title;
    EXPECT_EQ(assets.front().creationDate, std::stod(row.title)) << "each got its own numbers back";
  }
}

TEST_F(Photos, AResultStaysAsItWasWhileAListFollowsTheLibrary) {
  PhotoDatabase other = phone_.photoLibrary();
  const auto trips = other.addFolder("Trips");
  const auto north = other.addAlbum("North", trips);
  const auto before = fetch(Type::album);
  const Object folder = topLevel().firstObject();
  const auto copy = ask<"transientCollectionListWithCollections:title:", PHCollection>(
      hostType<"PHCollectionList">(), members(folder), NSString::from("Copy"));
  other.renameCollection(north, "Fjords");
  other.addAlbum("South", trips);
  const Titles then{"North"}, now{"Fjords", "South"};
  EXPECT_EQ(titlesOf(before), then);
  EXPECT_EQ(titlesOf(fetch(Type::album)), now);
  EXPECT_EQ(titlesOf(members(copy)), then) << "a list that is kept nowhere";
  EXPECT_EQ(titlesOf(members(folder)), now);
  EXPECT_FALSE(copy.allowsAddingAssets());
}

TEST_F(Photos, AlbumsAreFetchedByTypeAndSubtype) {
  library_.addAlbum("Own");
  library_.addAlbum("Kept", library_.addFolder("Folder"));
  library_.addSyncedAlbum("Synced");
  const std::tuple<Type, NSInteger, Titles> cases[] = {
      {Type::album, INT64_MAX, {"Own", "Kept", "Synced"}},
      {Type::album, 2, {"Own", "Kept"}},
      {Type::album, 5, {"Synced"}},
      {Type::smartAlbum, 209, {"Camera Roll"}},
      {Type::smartAlbum, 2, {}},
      {Type::album, 209, {}},
  };
  for (const auto& [type, subtype, found] : cases)
    EXPECT_EQ(titlesOf(fetch(type, Subtype{subtype})), found) << subtype;

  Titles identifiers{"unknown"};
  for (const Object each : {album("Kept"), smartAlbum(203)})
    identifiers.push_back(ask<"localIdentifier", NSString>(each).utf8());
  EXPECT_EQ(titlesOf(PHAssetCollection::fetchWithLocalIdentifiers(NSArray::from(identifiers))),
            (Titles{"Kept", "Favorites"}));

  EXPECT_EQ(static_cast<NSInteger>(album("Synced").subtype()), 5);
  EXPECT_TRUE(album("Own").allowsAddingAssets() && topLevel().objectAtIndex(1).allowsAddingAssets());
  EXPECT_FALSE(album("Synced").allowsAddingAssets() || smartAlbum(203).allowsAddingAssets());
}

TEST_F(Photos, SmartAlbumsHoldWhatTheirKindAsksFor) {
  const auto photo = library_.addAsset({.creationDate = 4});
  const auto video = library_.addAsset({.mediaType = MediaType::video, .creationDate = 3});
  const auto favorite = library_.addAsset({.creationDate = 2, .isFavorite = true});
  const auto hidden = library_.addAsset({.creationDate = 1, .isHidden = true, .isFavorite = true});
  const auto panorama = library_.addAsset({.creationDate = 5, .smartSubtype = 201});
  const std::pair<NSInteger, Numbers> contents[] = {
      {209, {hidden, favorite, video, photo, panorama}},  // oldest first
      {205, {hidden}},
      {203, {hidden, favorite}},
      {202, {video}},
      {201, {panorama}},
      {210, {}},
  };
  for (const auto& [subtype, assets] : contents)
    EXPECT_EQ(numbersOf(PHAsset::fetchAllInAssetCollection(smartAlbum(subtype))), assets) << subtype;
  EXPECT_EQ(in(smartAlbum(203)), Numbers{favorite}) << "hidden ones only when asked for";
  EXPECT_EQ(estimate(smartAlbum(209)), NSUInteger{INT64_MAX}) << "not counted";
  EXPECT_EQ(numbersOf(keyAssetsIn(smartAlbum(209))), (Numbers{video, photo, panorama})) << "its newest";
  EXPECT_EQ(numbersOf(PHAsset::fetchWithMediaType(PHAsset::MediaType::image, {})),
            (Numbers{favorite, photo, panorama}));
}

TEST_F(Photos, AnAlbumsAssetsAreFilteredAndSorted) {
  const auto pets = library_.addAlbum("Pets"), cats = library_.addAlbum("Cats");
  library_.addAlbum("Empty");
  const auto old = addTo(pets, {.creationDate = 1});
  const auto hidden = addTo(pets, {.creationDate = 2, .isHidden = true});
  const auto late = addTo(pets, {.mediaType = MediaType::video, .creationDate = 3});
  EXPECT_EQ(in(album("Pets")), (Numbers{old, late}));
  EXPECT_EQ(numbersOf(PHAsset::fetchAllInAssetCollection(album("Pets"))), (Numbers{old, hidden, late}));
  EXPECT_EQ(in(album("Pets"), sortedBy("creationDate", false)), (Numbers{late, old}));
  EXPECT_EQ(estimate(album("Pets")), 2u);
  library_.setHidden(hidden, false);
  EXPECT_EQ(estimate(album("Pets")), 3u);
  EXPECT_EQ(numbersOf(keyAssetsIn(album("Pets"))).front(), old);
  EXPECT_FALSE(keyAssetsIn(album("Empty"))) << "nothing stands for it";

  EXPECT_EQ(titlesOf(fetch(Type::album, Subtype::any, sortedBy("localizedTitle", true))),
            (Titles{"Cats", "Empty", "Pets"}));
  library_.addToAlbum(late, cats);
  const PHAsset asset = PHAsset::fetchInAssetCollection(album("Cats"), {}).lastObject();
  EXPECT_EQ(titlesOf(PHAssetCollection::fetchContaining(asset, Type::album)), (Titles{"Pets", "Cats"}));
  EXPECT_EQ(PHAssetCollection::fetchContaining(asset, Type::smartAlbum).count(), 0u);
}

}  // namespace
}  // namespace velvault12
