// The photo library, as its database keeps it and as an app's code fetches from it.

#include "host/photos.hpp"

#include <gtest/gtest.h>

#include <array>
#include <thread>

#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

using device::CollectionRow;
using device::MediaType;
using device::PhotoDatabase;
using Numbers = std::vector<std::int64_t>;

constexpr NSInteger kAlbum = 1, kSmartAlbum = 2;
constexpr NSInteger kAnySubtype = INT64_MAX;
constexpr NSUInteger kNotFound = INT64_MAX;

std::vector<std::string> titles(const std::vector<CollectionRow>& rows) {
  std::vector<std::string> all;
  for (const CollectionRow& row : rows) all.push_back(row.title);
  return all;
}

class Photos : public PlainPhone {
 protected:
  Photos() { device::become({phone_.folder(), std::string(device::kGallery)}); }

  std::int64_t addTo(std::int64_t album, const device::AssetRow& asset) {
    const std::int64_t added = library_.addAsset(asset);
    library_.addToAlbum(added, album);
    return added;
  }

  // A fetch result, or an array.
  static std::vector<Object> objects(Object all) {
    std::vector<Object> each;
    for (NSUInteger i = 0; i < ask<"count", NSUInteger>(all); ++i) {
      each.push_back(ask<"objectAtIndex:", Object>(all, i));
    }
    return each;
  }
  static Titles titlesOf(Object collections) {
    Titles all;
    for (const Object each : objects(collections))
      all.push_back(PHCollection(each.get()).localizedTitle().utf8());
    return all;
  }
  static Numbers numbersOf(Object assets) {
    Numbers all;
    for (const Object each : objects(assets))
      all.push_back(std::stoll(ask<"localIdentifier", NSString>(each).utf8()));
    return all;
  }

  static Object albums(NSInteger type, NSInteger subtype = kAnySubtype, Object options = {}) {
    return ask<"fetchAssetCollectionsWithType:subtype:options:", Object>(hostType<"PHAssetCollection">(),
                                                                         type, subtype, options);
  }
  static Object album(std::string_view title) {
    for (const Object each : objects(albums(kAlbum))) {
      if (PHCollection(each.get()).localizedTitle().utf8() == title) return each;
    }
    return {};
  }
  static Object smartAlbum(NSInteger subtype) {
    return ask<"firstObject", Object>(albums(kSmartAlbum, subtype));
  }
  static Object assetsIn(Object album, Object options = {}) {
    return ask<"fetchAssetsInAssetCollection:options:", Object>(hostType<"PHAsset">(), album, options);
  }
  static Object keyAssetsIn(Object album) {
    return ask<"fetchKeyAssetsInAssetCollection:options:", Object>(hostType<"PHAsset">(), album, Object());
  }
  static Object topLevel() {
    return ask<"fetchTopLevelUserCollectionsWithOptions:", Object>(hostType<"PHCollection">(), Object());
  }
  static NSUInteger estimate(Object album) { return ask<"estimatedAssetCount", NSUInteger>(album); }

  static Ref<Object> options() {
    return Ref<Object>::adopt(Object(ask<"new", id>(hostType<"PHFetchOptions">())));
  }
  static Ref<Object> withHidden() {
    auto made = options();
    ask<"setIncludeHiddenAssets:">(made.get(), true);
    return made;
  }
  static Ref<Object> sortedBy(std::string_view key, bool ascending) {
    const auto descriptor = ask<"sortDescriptorWithKey:ascending:", Object>(hostType<"NSSortDescriptor">(),
                                                                            NSString::from(key), ascending);
    const auto all = makeObject<NSMutableArray>();
    all->addObject(descriptor);
    auto made = options();
    ask<"setSortDescriptors:">(made.get(), NSArray(all.get()));
    return made;
  }

  PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(Photos, TheDatabaseKeepsAlbumsInFoldersInTheirOrder) {
  const auto pets = library_.addAlbum("Pets");
  const auto trips = library_.addFolder("Trips");
  const auto north = library_.addFolder("O'Hara's \U0001F512 \"north\"", trips);
  const auto fjords = library_.addAlbum("", north);
  library_.addAlbum("Pets", trips);
  EXPECT_EQ(titles(library_.collections()), (Titles{"Pets", "Trips"}));
  EXPECT_EQ(titles(library_.collections(trips)), (Titles{"O'Hara's \U0001F512 \"north\"", "Pets"}));
  EXPECT_EQ(titles(library_.allAlbums()), (Titles{"Pets", "", "Pets"})) << "wherever they are kept";
  EXPECT_EQ(library_.collection(fjords)->parent, north);
  EXPECT_TRUE(library_.collection(north)->isFolder);

  const auto asset = addTo(fjords, {});
  addTo(pets, {});
  library_.addToAlbum(asset, pets);
  library_.addToAlbum(asset, pets);
  EXPECT_EQ(library_.assetsInAlbum(pets).size(), 2u) << "no asset is in an album twice";
  EXPECT_THROW(library_.addToAlbum(asset, 99), std::runtime_error);
  EXPECT_EQ(titles(library_.albumsContaining(asset)), (Titles{"Pets", ""}));
  library_.removeFromAlbum(asset, pets);
  library_.renameCollection(pets, "Cats");
  library_.removeCollection(trips);
  library_.removeCollection(99);
  EXPECT_EQ(titles(library_.allAlbums()), Titles{"Cats"}) << "a folder goes with all that is in it";
  EXPECT_FALSE(library_.collection(fjords));
  EXPECT_TRUE(library_.albumsContaining(asset).empty());
  EXPECT_EQ(library_.allAssets().size(), 2u) << "assets stay";
}

TEST_F(Photos, WritersInALibraryThatIsNewLoseNothing) {
  const auto file = phone_.onDisk("/var/mobile/Media/new/Photos.sqlite");
  constexpr int kAlbums = 8;
  const auto write = [&](int writer) {
    PhotoDatabase library(file);
    for (int i = 0; i < kAlbums; ++i) {
      const auto added = library.addAlbum(std::to_string(writer) + "." + std::to_string(i));
      library.addToAlbum(library.addAsset({.creationDate = double(writer)}), added);
    }
  };
  {
    std::array<std::jthread, 4> writers;
    for (int writer = 0; writer < 4; ++writer) writers[writer] = std::jthread(write, writer);
  }
  const PhotoDatabase library(file);
  std::map<std::string, double> found;
  for (const CollectionRow& row : library.allAlbums()) {
    const auto assets = library.assetsInAlbum(row.identifier);
    ASSERT_EQ(assets.size(), 1u) << row.title;
    found[row.title] = assets.front().creationDate;
  }
  EXPECT_EQ(found.size(), 4u * kAlbums);
  EXPECT_EQ(found["3.7"], 3) << "each writer got its own numbers back";
}

TEST_F(Photos, AFileThatIsNoDatabaseIsAnError) {
  const auto file = phone_.onDisk("/var/mobile/Media/broken.sqlite");
  std::ofstream(file) << std::string(5000, 'x');
  EXPECT_THROW(PhotoDatabase{file}, std::runtime_error);
}

TEST_F(Photos, AnotherConnectionsChangesAreSeenByTheNextFetch) {
  PhotoDatabase other = phone_.photoLibrary();
  const auto first = other.addAlbum("First");
  const Object before = albums(kAlbum);
  other.renameCollection(first, "Renamed");
  other.addAlbum("Second");
  EXPECT_EQ(titlesOf(before), Titles{"First"}) << "a result holds what was there when it was asked";
  EXPECT_EQ(titlesOf(albums(kAlbum)), (Titles{"Renamed", "Second"}));
  other.addToAlbum(other.addAsset({}), first);
  EXPECT_EQ(estimate(album("Renamed")), 1u);
}

TEST_F(Photos, AResultIsEnumeratedAsItWasWhileTheLibraryChanges) {
  struct State {
    unsigned long state;
    id* items;
    unsigned long* mutations;
    unsigned long extra[5];
  } state{};
  for (int i = 0; i < 10; ++i) library_.addAlbum(std::to_string(i));
  const Object result = albums(kAlbum);
  Titles seen;
  std::array<id, 4> buffer;
  const auto next = [&] {
    return ask<"countByEnumeratingWithState:objects:count:", NSUInteger>(result, &state, buffer.data(),
                                                                         NSUInteger{4});
  };
  for (NSUInteger count; (count = next()) > 0;) {
    const unsigned long mutations = *state.mutations;
    for (NSUInteger i = 0; i < count; ++i) {
      seen.push_back(PHCollection(state.items[i]).localizedTitle().utf8());
      library_.removeCollection(library_.allAlbums().front().identifier);
    }
    EXPECT_EQ(*state.mutations, mutations) << "to the enumeration nothing changed";
  }
  EXPECT_EQ(seen.size(), 10u);
  EXPECT_EQ(seen.back(), "9");
  EXPECT_TRUE(library_.allAlbums().empty());
}

TEST_F(Photos, AlbumsAreFetchedByTypeAndSubtype) {
  library_.addAlbum("Top");
  library_.addAlbum("Kept", library_.addFolder("Folder"));
  EXPECT_EQ(titlesOf(albums(kAlbum)), (Titles{"Top", "Kept"}));
  EXPECT_EQ(titlesOf(albums(kAlbum, 2)), (Titles{"Top", "Kept"})) << "regular ones";
  EXPECT_EQ(titlesOf(albums(kAlbum, 209)), Titles());
  EXPECT_EQ(titlesOf(albums(kSmartAlbum, 209)), Titles{"Camera Roll"});
  EXPECT_EQ(titlesOf(albums(kSmartAlbum, 2)), Titles());
  EXPECT_EQ(titlesOf(albums(3)), Titles());
  EXPECT_EQ(titlesOf(albums(kSmartAlbum)).size(), 17u);
  for (const Object each : objects(albums(kSmartAlbum))) {
    const auto subtype = ask<"assetCollectionSubtype", NSInteger>(each);
    EXPECT_EQ((ask<"assetCollectionType", NSInteger>(each)), kSmartAlbum);
    EXPECT_EQ((ask<"isTrashBin", bool>(each)), subtype == 1000000201) << subtype;
    EXPECT_TRUE((ask<"isEqual:", bool>(each, smartAlbum(subtype))));
  }

  const auto named = makeObject<NSMutableArray>();
  for (const Object each : {album("Kept"), smartAlbum(203)})
    named->addObject(ask<"localIdentifier", Object>(each));
  named->addObject(NSString::from("unknown"));
  EXPECT_EQ(titlesOf(ask<"fetchAssetCollectionsWithLocalIdentifiers:options:", Object>(
                hostType<"PHAssetCollection">(), named.get(), Object())),
            (Titles{"Kept", "Favorites"}));
}

TEST_F(Photos, OnlyWhatThePhoneItselfMadeIsEdited) {
  library_.addAlbum("Own");
  library_.addSyncedAlbum("Synced");
  library_.addFolder("Folder");
  EXPECT_EQ(titlesOf(albums(kAlbum)), (Titles{"Own", "Synced"}));
  EXPECT_EQ(titlesOf(albums(kAlbum, 2)), Titles{"Own"});
  EXPECT_EQ(titlesOf(albums(kAlbum, 5)), Titles{"Synced"});
  EXPECT_EQ((ask<"assetCollectionSubtype", NSInteger>(album("Synced"))), 5);
  const auto isEdited = [](Object collection) {
    return ask<"canPerformEditOperation:", bool>(collection, NSInteger{3});
  };
  const Object folder = ask<"lastObject", Object>(topLevel());
  const Object transient = ask<"transientCollectionListWithCollections:title:", Object>(
      hostType<"PHCollectionList">(), NSArray::from({}), NSString::from("Pair"));
  EXPECT_TRUE(isEdited(album("Own")) && isEdited(folder));
  EXPECT_FALSE(isEdited(album("Synced")) || isEdited(smartAlbum(203)) || isEdited(transient));
}

TEST_F(Photos, SmartAlbumsHoldWhatTheirKindAsksFor) {
  const auto photo = library_.addAsset({.creationDate = 4});
  const auto video = library_.addAsset({.mediaType = MediaType::video, .creationDate = 3});
  const auto favorite = library_.addAsset({.creationDate = 2, .isFavorite = true});
  const auto hidden = library_.addAsset({.creationDate = 1, .isHidden = true, .isFavorite = true});
  const auto panorama = library_.addAsset({.creationDate = 5, .smartSubtype = 201});
  const auto in = [&](NSInteger subtype) {
    return numbersOf(assetsIn(smartAlbum(subtype), withHidden().get()));
  };
  EXPECT_EQ(in(209), (Numbers{hidden, favorite, video, photo, panorama})) << "oldest first";
  EXPECT_EQ(in(205), Numbers{hidden});
  EXPECT_EQ(in(203), (Numbers{hidden, favorite}));
  EXPECT_EQ(in(202), Numbers{video});
  EXPECT_EQ(in(201), Numbers{panorama});
  EXPECT_EQ(in(210), Numbers());
  EXPECT_EQ(numbersOf(assetsIn(smartAlbum(203))), Numbers{favorite}) << "hidden ones only when asked for";
  EXPECT_EQ(estimate(smartAlbum(209)), kNotFound);
  EXPECT_EQ(numbersOf(keyAssetsIn(smartAlbum(209))), (Numbers{video, photo, panorama})) << "its newest";
  const auto ofType = [&](NSInteger type) {
    return numbersOf(ask<"fetchAssetsWithMediaType:options:", Object>(hostType<"PHAsset">(), type, Object()));
  };
  EXPECT_EQ(ofType(2), Numbers{video});
  EXPECT_EQ(ofType(1), (Numbers{favorite, photo, panorama}));
}

TEST_F(Photos, AnAlbumsAssetsAreFilteredAndSorted) {
  const auto pets = library_.addAlbum("Pets"), cats = library_.addAlbum("Cats");
  library_.addAlbum("Empty");
  const auto old = addTo(pets, {.creationDate = 1});
  const auto hidden = addTo(pets, {.creationDate = 2, .isHidden = true});
  const auto late = addTo(pets, {.mediaType = MediaType::video, .creationDate = 3});
  const auto found = [&](const Ref<Object>& options) {
    return numbersOf(assetsIn(album("Pets"), options.get()));
  };
  EXPECT_EQ(found({}), (Numbers{old, late}));
  EXPECT_EQ(found(withHidden()), (Numbers{old, hidden, late}));
  EXPECT_EQ(found(sortedBy("creationDate", false)), (Numbers{late, old}));
  EXPECT_EQ(estimate(album("Pets")), 2u);
  library_.setHidden(hidden, false);
  EXPECT_EQ(estimate(album("Pets")), 3u);
  EXPECT_EQ(numbersOf(keyAssetsIn(album("Pets"))).front(), old);
  EXPECT_FALSE(keyAssetsIn(album("Empty"))) << "nothing stands for it";
  EXPECT_EQ(numbersOf(assetsIn(Object())), Numbers());

  EXPECT_EQ(titlesOf(albums(kAlbum, kAnySubtype, sortedBy("localizedTitle", true).get())),
            (Titles{"Cats", "Empty", "Pets"}));
  const auto byTitle = options();
  ask<"setPredicate:">(byTitle.get(),
                       ask<"predicateWithFormat:argumentArray:", Object>(
                           hostType<"NSPredicate">(), NSString::from("title = %@"), NSArray::from({"Cats"})));
  EXPECT_EQ(titlesOf(albums(kAlbum, kAnySubtype, byTitle.get())), Titles{"Cats"});

  library_.addToAlbum(late, cats);
  const Object asset = ask<"lastObject", Object>(assetsIn(album("Cats")));
  const auto containing = [&](NSInteger type) {
    return titlesOf(ask<"fetchAssetCollectionsContainingAsset:withType:options:", Object>(
        hostType<"PHAssetCollection">(), asset, type, Object()));
  };
  EXPECT_EQ(containing(kAlbum), (Titles{"Pets", "Cats"}));
  EXPECT_EQ(containing(kSmartAlbum), Titles());
}

TEST_F(Photos, AListsMembersAreThoseOfTheMoment) {
  const auto trips = library_.addFolder("Trips");
  library_.addAlbum("Pets");
  library_.addAlbum("Fjords", library_.addFolder("North", trips));
  const auto members = [](Object list) { return ask<"collections", NSArray>(list); };
  const Object root = ask<"firstObject", Object>(
      ask<"fetchRootAlbumCollectionListWithOptions:", Object>(hostType<"PHCollectionList">(), Object()));
  EXPECT_EQ(titlesOf(topLevel()), (Titles{"Trips", "Pets"}));
  EXPECT_EQ(titlesOf(members(root)), (Titles{"Trips", "Pets"}));
  const Object folder = members(root).objectAtIndex(0);
  EXPECT_EQ(titlesOf(members(members(folder).objectAtIndex(0))), Titles{"Fjords"});
  library_.addAlbum("South", trips);
  EXPECT_EQ(titlesOf(members(folder)), (Titles{"North", "South"}));
  EXPECT_EQ((ask<"collectionListType", NSInteger>(folder)), 2);

  const Object pair = ask<"transientCollectionListWithCollections:title:", Object>(
      hostType<"PHCollectionList">(), members(root), NSString::from("Pair"));
  library_.addAlbum("Later");
  EXPECT_EQ(titlesOf(members(pair)), (Titles{"Trips", "Pets"}))
      << "one that is kept nowhere stays as it was made";
  EXPECT_EQ(titlesOf(members(root)), (Titles{"Trips", "Pets", "Later"}));
}

}  // namespace
}  // namespace velvault12
