// What an app that reads the photo library is shown of it. The process is that app.

#include <gtest/gtest.h>

#include <thread>
#include <utility>

#include "device/system/loader.hpp"
#include "host/class_pair.hpp"
#include "tests/phone_test.hpp"
#include "tests/photo_library.hpp"

namespace velvault12 {
namespace {

using Type = PHAssetCollection::Type;
using Subtype = PHAssetCollection::Subtype;

class LibraryFilter : public PhoneTest {
 protected:
  /// Two photos in each album, the second one hidden.
  std::int64_t addAlbum(std::string_view title, std::int64_t folder = 0) {
    const std::int64_t album = library_.addAlbum(title, folder);
    for (const bool isHidden : {false, true})
      library_.addToAlbum(library_.addAsset({.isHidden = isHidden}), album);
    return album;
  }
  void open(const Preferences& preferences = {}) const {
    phone_.writePreferences(preferences);
    phone_.launchHere(device::kGallery);
  }
  void lock(const Titles& titles) const { writeStrings(kLockedAlbums, titles); }

  static NSArray root() { return membersOf(listOf(elementsOf(topLevel()).get())); }
  static Titles listed() { return titlesOf(root()); }
  static PHAssetCollection listedAt(NSUInteger place) {
    return PHAssetCollection(root().objectAtIndex(place).get());
  }
  static PHFetchResult<PHAsset> in(PHAssetCollection album, PHFetchOptions options = {}) {
    return PHAsset::fetchInAssetCollection(album, options);
  }
  device::PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(LibraryFilter, LockedAlbumIsNeitherListedNorFetchedNorCounted) {
  const Titles titles{"Pets", "Pets", "pets", "\u00e9", "e\u0301", ""};
  for (const std::string& title : titles) addAlbum(title);
  open();
  const Ref<PHAssetCollection> pets(albumNamed("Pets"));
  const auto isWhole = [&](PHAssetCollection album) {
    return in(album).count() == 2 && keyAssetsOf(album).count() == 2 && estimateOf(album) == 1;
  };
  EXPECT_EQ(listed(), titles);
  EXPECT_TRUE(isWhole(pets.get()));
  lock({"Pets", "e\u0301", "Unknown"});
  EXPECT_EQ(listed(), (Titles{"pets", "\u00e9", ""}));
  EXPECT_FALSE(in(pets.get()));
  EXPECT_FALSE(keyAssetsOf(pets.get()));
  EXPECT_EQ(estimateOf(pets.get()), 0u);
  for (const std::string_view other : {"pets", "\u00e9", ""})
    EXPECT_TRUE(isWhole(albumNamed(other))) << other;
  lock({""});
  EXPECT_EQ(listed(), (Titles{"Pets", "Pets", "pets", "\u00e9", "e\u0301"}));
  write(kLockedAlbums, "no list");
  EXPECT_EQ(listed(), titles);
  lock({"Pets"});
  reload({{"hideLockedFromApps", false}});
  EXPECT_EQ(listed(), titles);
  EXPECT_FALSE(in(pets.get())) << "all the same";
}

TEST_F(LibraryFilter, AlbumsInFoldersComeToTheTopLevel) {
  addAlbum("Top");
  const auto folder = library_.addFolder("Folder");
  for (const std::string_view title : {"North", "Off", "On", "Locked"})
    addAlbum(title, library_.addFolder("Deeper", folder));
  library_.addSyncedAlbum("Synced");
  lock({"Locked"});
  Preferences preferences{{"albumNameOff", false}, {"albumNameOn", true}};
  open(preferences);
  EXPECT_EQ(listed(), (Titles{"Top", "Folder", "Synced", "North"}));
  EXPECT_EQ(in(listedAt(3)).count(), 2u) << "hidden ones as well";
  EXPECT_FALSE(in(albumNamed("Off")));
  EXPECT_TRUE(keyAssetsOf(albumNamed("Off")));

  preferences["hideFoldersInApps"] = preferences["hideLockedFromApps"] = false;
  reload(preferences);
  EXPECT_EQ(listed(), (Titles{"Top", "Folder", "Synced", "North", "Off", "Locked"}));
  EXPECT_EQ(in(albumNamed("Off")).count(), 2u);
  const Ref<PHAssetCollection> whileLocked(listedAt(5));
  lock({});
  EXPECT_EQ(in(whileLocked.get()).count(), 0u) << "it got none";
  EXPECT_EQ(in(listedAt(5)).count(), 2u);
  EXPECT_EQ(membersOf(root().objectAtIndex(1)).count(), 4u) << "a list of folders alone";

  reload({{"albumNameTop", false}, {"hideFoldersInApps", false}});
  EXPECT_EQ(listed(), (Titles{"Folder", "Synced", "North", "Off", "Locked"}))
      << "a switch that is off hides it in any case, and flags stay";
  for (const auto other : {smartAlbum(209), albumNamed("Synced")})
    EXPECT_EQ(membersOf(listOf(NSArray::of(other))).count(), 1u) << "no list of the user's own albums";
  EXPECT_EQ(titlesOf(membersOf(listOf(NSArray::of(albumNamed("North"))))),
            (Titles{"North", "Top", "Off", "Locked"}))
      << "any such list";
  reload({{"enabled", false}});
  EXPECT_EQ(listed(), (Titles{"Top", "Folder", "Synced"}));
}

bool includedHidden = false;
using Collections = PHFetchResult<PHAssetCollection>;
Collections hostsFetch(Object, Replaced<Collections(Type, Subtype, PHFetchOptions)> host, Type type,
                       Subtype subtype, PHFetchOptions options) {
  includedHidden = options.send<"includeHiddenAssets", bool()>();
  return host(type, subtype, options);
}

TEST_F(LibraryFilter, HiddenPhotosAreFetchedExceptFromTheWholeLibrary) {
  addAlbum("Pets");
  installHook(replaceClassMethod<hostsFetch>("PHAssetCollection",
                                             "fetchAssetCollectionsWithType:subtype:options:", "@@:qq@"));
  open();
  const auto pets = albumNamed("Pets");
  const Ref<PHFetchOptions> options = makeObject<PHFetchOptions>();
  options->setSortDescriptors(NSArray::of(NSSortDescriptor::make("localIdentifier", false)));
  for (const auto result : {in(pets, options.get()), keyAssetsOf(pets, options.get())}) {
    EXPECT_EQ(result.count(), 2u);
    EXPECT_TRUE((result.firstObject().send<"isHidden", bool()>())) << "sorted as the caller asks";
  }
  options->setPredicate(NSPredicate::make("localizedTitle == %@", NSString::from("Camera Roll")));
  const auto everyKind = PHAssetCollection::fetch(Type::smartAlbum, Subtype::any, options.get());
  EXPECT_EQ(titlesOf(everyKind), Titles{"Camera Roll"});
  EXPECT_TRUE(std::exchange(includedHidden, false));
  smartAlbum(209);
  EXPECT_TRUE(includedHidden) << "with no options as well";
  EXPECT_FALSE((options->send<"includeHiddenAssets", bool()>())) << "the caller's own stay as they are";
  options->setPredicate({});
  options->setIncludeHiddenAssets(true);
  for (const NSInteger subtype : {209, 1000000205})
    EXPECT_EQ(in(smartAlbum(subtype), options.get()).count(), 1u) << subtype;
  EXPECT_EQ(keyAssetsOf(smartAlbum(209), options.get()).count(), 1u);
  EXPECT_EQ(keyAssetsOf(smartAlbum(1000000205)).count(), 2u);
  EXPECT_FALSE(in(smartAlbum(205), options.get()));
  EXPECT_EQ(in(PHAssetCollection::fetch(Type::moment, Subtype::any, {}).firstObject()).count(), 2u);
  EXPECT_EQ(in({}).count(), 0u);
}

TEST_F(LibraryFilter, OnlyAnEmptyEstimateIsCounted) {
  addAlbum("Pets");
  library_.addAlbum("Empty");
  for (const auto moved : {library_.addAlbum("Moved"), library_.addSyncedAlbum("Synced")})
    library_.addToAlbum(library_.addAsset({.isHidden = true}), moved);
  open();
  for (const std::string_view title : {"Pets", "Synced", "Moved"})
    EXPECT_EQ(estimateOf(albumNamed(title)), 1u) << title;
  EXPECT_EQ(estimateOf(albumNamed("Empty")), 0u);
  EXPECT_EQ(estimateOf(smartAlbum(202)), NSUInteger{INT64_MAX}) << "there is none";
  reload({{"albumNamePets", false}, {"albumNameMoved", false}});
  EXPECT_EQ(estimateOf(albumNamed("Pets")), 1u);
  EXPECT_EQ(estimateOf(albumNamed("Moved")), 0u) << "nothing of it can be fetched";
}

NSInteger importType(Object) { return 9; }
NSInteger importSubtype(Object) { return 200; }
bool ownsUpTo(Object, SEL method) { return method != selector<"assetCollectionSubtype">(); }

TEST_F(LibraryFilter, ListsKeepWhatTheirHostPutThere) {
  addAlbum("Pets");
  addAlbum("Locked");
  lock({"Locked"});
  open();
  const Ref<NSArray> albums = elementsOf(topLevel());
  const auto list = listOf(albums.get());
  for (int again = 0; again < 2; ++again) EXPECT_EQ(titlesOf(membersOf(list)), Titles{"Pets"});
  EXPECT_EQ(titlesOf(albums.get()), (Titles{"Pets", "Locked"}));
  EXPECT_EQ(titlesOf(topLevel().send<"fetchedObjects", NSArray()>()), (Titles{"Pets", "Locked"}));

  ClassPair(PHAssetCollection::hostClass(), "Importer")
      .method<importType>(selector<"assetCollectionType">(), "q@:")
      .method<importSubtype>(selector<"assetCollectionSubtype">(), "q@:")
      .method<ownsUpTo>(selector<"respondsToSelector:">(), "B@::")
      .registered();
  const auto elements = makeObject<NSMutableArray>();
  elements->addObject(sendToClass<"null", Object()>(classNamed<"NSNull">()));
  elements->addObject(NSString::from("no collection"));
  elements->addObject(importHistory());
  elements->addObject(makeObject<HostClass<"Importer">>().get());
  const auto odd = listOf(elements.get());
  EXPECT_EQ(membersOf(odd).count(), 4u);
  reload({{"showImports", false}});
  EXPECT_EQ(membersOf(odd).count(), 3u) << "only what stands for imports goes";

  const auto pets = albumNamed("Pets"), all = smartAlbum(209);
  const auto atEnd = [&] {
    return signs({pets.send<"startsAtEnd", bool()>(), pets.send<"keyAssetsAtEnd", bool()>(),
                  all.send<"startsAtEnd", bool()>(), all.send<"keyAssetsAtEnd", bool()>()});
  };
  EXPECT_EQ(atEnd(), "--++");
  reload({{"startAtBottom", true}});
  EXPECT_EQ(atEnd(), "++++");
  reload({{"startAtBottom", true}, {"enabled", false}});
  EXPECT_EQ(atEnd(), "--++");
}

TEST_F(LibraryFilter, OneCallReadsTheLockedAlbumsOnceAtMost) {
  addAlbum("Top");
  addAlbum("Deeper", library_.addFolder("Folder"));
  library_.addToAlbum(library_.addAsset({.isHidden = true}), library_.addAlbum("Moved"));
  lock({"Top", "Videos"});
  open();
  const auto opened = [&](const auto& call) { return openings(kLockedAlbums, call); };
  const Ref<PHCollectionList> smart(listOf(NSArray::of(smartAlbum(202)))),
      photos(listOf(NSArray::of(smartAlbum(209))));
  const Ref<PHAssetCollection> album(albumNamed("Moved"));
  EXPECT_EQ(opened([] { root(); }), 1);
  EXPECT_EQ(opened([&] { EXPECT_EQ(membersOf(smart.get()).count(), 0u); }), 1);
  EXPECT_EQ(opened([&] { membersOf(photos.get()); }), 0);
  EXPECT_EQ(opened([&] { in(album.get()); }), 1);
  EXPECT_EQ(opened([&] { keyAssetsOf(album.get()); }), 1);
  EXPECT_EQ(opened([&] { EXPECT_EQ(estimateOf(album.get()), 1u); }), 1);
  const auto askWithoutLocks = [] {
    in(smartAlbum(205));
    estimateOf(smartAlbum(202));
    topLevel();
    in({});
  };
  EXPECT_EQ(opened(askWithoutLocks), 0);
  reload({{"showVideos", false}, {"hideLockedFromApps", false}, {"albumNameMoved", false}});
  EXPECT_EQ(opened([&] { membersOf(smart.get()); }) + opened([&] { in(album.get()); }), 0);
}

TEST_F(LibraryFilter, AnyThreadMayListAndFetch) {
  addAlbum("Pets");
  lock({"Pets", "(null)"});
  become("com.apple.mobileslideshow.picker");
  device::loadInjectedLibraries();
  std::jthread([] {
    const AutoreleasePool pool;
    EXPECT_EQ(listed(), Titles{});
    EXPECT_FALSE(in(albumNamed("Pets")));
    const auto untitled = PHAssetCollection::transient(elementsOf(in(smartAlbum(209))).get(), {});
    EXPECT_EQ(in(untitled).count(), 1u);
    EXPECT_EQ(estimateOf(untitled), 1u);
    EXPECT_EQ(membersOf(listOf(NSArray::of(untitled))).count(), 1u);
  }).join();
}

}  // namespace
}  // namespace velvault12
