// The photo library, as its database keeps it and as an app's code fetches from it.

#include "host/photos.hpp"

#include <gtest/gtest.h>

#include <thread>

#include "tests/device/frameworks/plain_phone.hpp"
#include "tests/photo_library.hpp"

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

  static Numbers numbersOf(Assets assets) {
    Numbers all;
    for (const Object each : assets) all.push_back(std::stoll(ask<"localIdentifier", NSString>(each).utf8()));
    return all;
  }

  static auto fetch(Type type, Subtype subtype = Subtype::any, const Options& options = {}) {
    return PHAssetCollection::fetch(type, subtype, options.get());
  }
  static Numbers in(PHAssetCollection album, const Options& options = {}) {
    return numbersOf(PHAsset::fetchInAssetCollection(album, options.get()));
  }
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
  EXPECT_EQ(titlesOf(membersOf(topLevel().objectAtIndex(1))),
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
  const auto copy = listOf(membersOf(folder));
  other.renameCollection(north, "Fjords");
  other.addAlbum("South", trips);
  const Titles then{"North"}, now{"Fjords", "South"};
  EXPECT_EQ(titlesOf(before), then);
  EXPECT_EQ(titlesOf(fetch(Type::album)), now);
  EXPECT_EQ(titlesOf(membersOf(copy)), then) << "a list that is kept nowhere";
  EXPECT_EQ(titlesOf(membersOf(folder)), now);
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
  for (const Object each : {albumNamed("Kept"), smartAlbum(203)})
    identifiers.push_back(ask<"localIdentifier", NSString>(each).utf8());
  EXPECT_EQ(titlesOf(PHAssetCollection::fetchWithLocalIdentifiers(NSArray::from(identifiers))),
            (Titles{"Kept", "Favorites"}));

  EXPECT_EQ(static_cast<NSInteger>(albumNamed("Synced").subtype()), 5);
  EXPECT_TRUE(albumNamed("Own").allowsAddingAssets() && topLevel().objectAtIndex(1).allowsAddingAssets());
  EXPECT_FALSE(albumNamed("Synced").allowsAddingAssets() || smartAlbum(203).allowsAddingAssets());
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
      {1000000205, {hidden, favorite, video, photo, panorama}},
  };
  for (const auto& [subtype, assets] : contents)
    EXPECT_EQ(numbersOf(PHAsset::fetchAllInAssetCollection(smartAlbum(subtype))), assets) << subtype;
  EXPECT_EQ(in(smartAlbum(203)), Numbers{favorite}) << "hidden ones only when asked for";
  EXPECT_EQ(estimateOf(smartAlbum(209)), NSUInteger{INT64_MAX}) << "not counted";
  EXPECT_EQ(numbersOf(keyAssetsOf(smartAlbum(209))), (Numbers{video, photo, panorama})) << "its newest";
  EXPECT_EQ(numbersOf(PHAsset::fetchWithMediaType(PHAsset::MediaType::image, {})),
            (Numbers{favorite, photo, panorama}));
  const auto imported = library_.addAsset({.smartSubtype = device::kImported});
  EXPECT_EQ(in(fetch(Type{9}, Subtype{200}).firstObject()), Numbers{imported});
  EXPECT_EQ(in(smartAlbum(200)), Numbers{}) << "of the same subtype";
}

TEST_F(Photos, AnAlbumsAssetsAreFilteredAndSorted) {
  const auto pets = library_.addAlbum("Pets"), cats = library_.addAlbum("Cats");
  library_.addAlbum("Empty");
  const auto old = addTo(pets, {.creationDate = 1});
  const auto hidden = addTo(pets, {.creationDate = 2, .isHidden = true});
  const auto late = addTo(pets, {.mediaType = MediaType::video, .creationDate = 3});
  EXPECT_EQ(in(albumNamed("Pets")), (Numbers{old, late}));
  EXPECT_EQ(numbersOf(PHAsset::fetchAllInAssetCollection(albumNamed("Pets"))), (Numbers{old, hidden, late}));
  EXPECT_EQ(in(albumNamed("Pets"), sortedBy("creationDate", false)), (Numbers{late, old}));
  EXPECT_EQ(estimateOf(albumNamed("Pets")), 2u);
  library_.setHidden(hidden, false);
  EXPECT_EQ(estimateOf(albumNamed("Pets")), 3u);
  EXPECT_EQ(numbersOf(keyAssetsOf(albumNamed("Pets"))).front(), old);
  EXPECT_FALSE(keyAssetsOf(albumNamed("Empty"))) << "nothing stands for it";

  EXPECT_EQ(titlesOf(fetch(Type::album, Subtype::any, sortedBy("localizedTitle", true))),
            (Titles{"Cats", "Empty", "Pets"}));
  library_.addToAlbum(late, cats);
  const PHAsset asset = PHAsset::fetchInAssetCollection(albumNamed("Cats"), {}).lastObject();
  EXPECT_EQ(titlesOf(PHAssetCollection::fetchContaining(asset, Type::album)), (Titles{"Pets", "Cats"}));
  EXPECT_EQ(PHAssetCollection::fetchContaining(asset, Type::smartAlbum).count(), 0u);

  library_.setHidden(hidden, true);
  const Options all = sortedBy("creationDate", false);
  all->setIncludeHiddenAssets(true);
  const auto copy = all->copy();
  all->setIncludeHiddenAssets(false);
  all->setSortDescriptors({});
  EXPECT_EQ(in(albumNamed("Pets"), copy), (Numbers{late, hidden, old})) << "a copy stays as it was";
}

TEST_F(Photos, MomentsAreTheDaysOnWhichSomethingIsShown) {
  constexpr double kDay = 86'400;
  const auto eve = library_.addAsset({.creationDate = -1});
  const auto last = library_.addAsset({.creationDate = kDay - 1});
  const auto midnight = library_.addAsset({.creationDate = 0, .isHidden = true});
  library_.addAsset({.creationDate = 2 * kDay, .isHidden = true});
  const auto moments = fetch(Type::moment);
  ASSERT_EQ(moments.count(), 2u);
  EXPECT_EQ(in(moments.firstObject()), Numbers{eve});
  EXPECT_EQ(numbersOf(PHAsset::fetchAllInAssetCollection(moments.lastObject())), (Numbers{midnight, last}));
  EXPECT_EQ(estimateOf(moments.lastObject()), 1u);
  EXPECT_FALSE(moments.firstObject().localizedTitle());
}

TEST_F(Photos, ATransientAlbumHoldsItsAssetsWhileTheLibraryHasThem) {
  const auto first = library_.addAsset({.creationDate = 1}), gone = library_.addAsset({.creationDate = 2});
  const auto last = library_.addAsset({.creationDate = 3});
  const auto assets =
      elementsOf(PHAsset::fetchInAssetCollection(smartAlbum(209), sortedBy("creationDate", false).get()));
  const auto made = PHAssetCollection::transient(assets.get(), NSString::from("Made"));
  EXPECT_EQ(in(made), (Numbers{last, gone, first}));
  library_.removeAsset(gone);
  library_.setHidden(first, true);
  EXPECT_EQ(numbersOf(PHAsset::fetchAllInAssetCollection(made)), (Numbers{last, first}));
  EXPECT_EQ(numbersOf(keyAssetsOf(made)), Numbers{last});
  EXPECT_EQ(estimateOf(made), 1u);
  EXPECT_FALSE(made.allowsAddingAssets());
}

}  // namespace
}  // namespace velvault12
