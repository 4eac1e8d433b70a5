// What an app that reads the photo library is shown of it. The process is that app.

#include <gtest/gtest.h>
#include <sys/inotify.h>

#include <algorithm>
#include <map>
#include <thread>
#include <utility>

#include "host/class_pair.hpp"
#include "tests/phone_test.hpp"
#include "tests/photo_library.hpp"

namespace velvault12 {
namespace {

using Assets = PHFetchResult<PHAsset>;
using Preferences = std::map<std::string, device::Device::Preference>;
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
  void open(std::string_view app = device::kGallery, const Preferences& preferences = {}) const {
    phone_.writePreferences(preferences);
    phone_.launchHere(app);
  }
  void reload(const Preferences& preferences) const {
    phone_.writePreferences(preferences);
    phone_.post(kReload);
    turn();
  }
  void lock(const Titles& titles) const { writeStrings(kLockedAlbums, titles); }

  static NSArray root() {
    const auto roots =
        sendToClass<"fetchRootAlbumCollectionListWithOptions:", PHFetchResult<PHCollectionList>(Object)>(
            PHCollectionList::hostClass(), Object());
    return membersOf(roots.firstObject());
  }
  static Titles listed() { return titlesOf(root()); }
  static Assets in(PHAssetCollection album, PHFetchOptions options = {}) {
    return PHAsset::fetchInAssetCollection(album, options);
  }
  /// The last of those that a list shows under this title.
  static PHAssetCollection shown(std::string_view title) {
    PHAssetCollection last;
    for (const Object each : root()) {
      if (PHCollection(each.get()).localizedTitle().utf8() == title) last = PHAssetCollection(each.get());
    }
    return last;
  }

  device::PhotoDatabase library_ = phone_.photoLibrary();
  AutoreleasePool pool_;
};

TEST_F(LibraryFilter, ALockedAlbumIsNeitherListedNorFetchedNorCountedAsLongAsItIs) {
  const std::string longTitle(100'000, 'x');
  const Titles titles{"Pets", "Pets", "pets", "\u00e9", "e\u0301", "", longTitle};
  for (const std::string& title : titles) addAlbum(title);
  open();
  const Ref<PHAssetCollection> pets(albumNamed("Pets"));
  const auto isWhole = [&](PHAssetCollection album) {
    return in(album).count() == 2 && keyAssetsOf(album).count() == 2 && estimateOf(album) == 1;
  };
  EXPECT_EQ(listed(), titles);
  EXPECT_TRUE(isWhole(pets.get()));
  lock({"Pets", "e\u0301", "Unknown"});
  EXPECT_EQ(listed(), (Titles{"pets", "\u00e9", "", longTitle}));
  EXPECT_FALSE(in(pets.get()));
  EXPECT_FALSE(keyAssetsOf(pets.get()));
  EXPECT_EQ(estimateOf(pets.get()), 0u);
  for (const std::string_view other : {std::string_view("pets"), std::string_view("\u00e9"),
                                       std::string_view(""), std::string_view(longTitle)})
    EXPECT_TRUE(isWhole(albumNamed(other))) << other.substr(0, 9);
  lock({longTitle, ""});
  EXPECT_EQ(listed(), (Titles{"Pets", "Pets", "pets", "\u00e9", "e\u0301"}));
  write(kLockedAlbums, "no list");
  EXPECT_EQ(listed(), titles);
  lock({"Pets"});
  reload({{"hideLockedFromApps", false}});
  EXPECT_EQ(listed(), titles);
  EXPECT_FALSE(in(pets.get())) << "all the same";
}

TEST_F(LibraryFilter, AlbumsInFoldersComeToTheTopLevelAsTheirSwitchesSay) {
  addAlbum("Top");
  const auto folder = library_.addFolder("Folder");
  for (const std::string_view title : {"North", "Off", "On", "Locked"})
    addAlbum(title, library_.addFolder("Deeper", folder));
  library_.addSyncedAlbum("Synced");
  lock({"Locked"});
  const Preferences flags{{"albumNameOff", false}, {"albumNameOn", true}};
  open(device::kGallery, flags);
  EXPECT_EQ(listed(), (Titles{"Top", "Folder", "Synced", "North"}));
  EXPECT_EQ(in(shown("North")).count(), 2u) << "hidden ones as well";
  EXPECT_FALSE(in(albumNamed("Off")));
  EXPECT_TRUE(keyAssetsOf(albumNamed("Off")));

  Preferences all = flags;
  all["hideFoldersInApps"] = all["hideLockedFromApps"] = false;
  reload(all);
  EXPECT_EQ(listed(), (Titles{"Top", "Folder", "Synced", "North", "Off", "Locked"}));
  EXPECT_EQ(in(albumNamed("Off")).count(), 2u);
  const Ref<PHAssetCollection> whileLocked(shown("Locked"));
  EXPECT_FALSE(in(whileLocked.get()));
  lock({});
  EXPECT_EQ(in(whileLocked.get()).count(), 0u) << "it got none";
  EXPECT_EQ(in(shown("Locked")).count(), 2u);
  EXPECT_EQ(titlesOf(membersOf(membersOf(listOf(elementsOf(topLevel()).get())).objectAtIndex(1))),
            Titles({"Deeper", "Deeper", "Deeper", "Deeper"}))
      << "folders alone";

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

TEST_F(LibraryFilter, HiddenPhotosAreFetchedButNotFromTheWholeLibrary) {
  addAlbum("Pets");
  installHook(replaceClassMethod<hostsFetch>("PHAssetCollection",
                                             "fetchAssetCollectionsWithType:subtype:options:", "@@:qq@"));
  open();
  const auto pets = albumNamed("Pets");
  const Ref<PHFetchOptions> options = makeObject<PHFetchOptions>();
  options->setSortDescriptors(NSArray::of(NSSortDescriptor::make("localIdentifier", false)));
  const auto fetched = in(pets, options.get());
  EXPECT_EQ(fetched.count(), 2u);
  for (const auto result : {fetched, keyAssetsOf(pets, options.get())})
    EXPECT_TRUE((result.firstObject().send<"isHidden", bool()>())) << "sorted as the caller asks";
  options->setPredicate(NSPredicate::make("localizedTitle == %@", NSString::from("Camera Roll")));
  const auto everyKind = PHAssetCollection::fetch(Type::smartAlbum, Subtype::any, options.get());
  EXPECT_EQ(titlesOf(everyKind), Titles{"Camera Roll"});
  EXPECT_TRUE(std::exchange(includedHidden, false));
  smartAlbum(209);
  EXPECT_TRUE(includedHidden) << "with no options as well";
  EXPECT_FALSE((options->send<"includeHiddenAssets", bool()>()))
      << "the caller's own options stay as they are";
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

TEST_F(LibraryFilter, AnEmptyEstimateIsCountedAndAnyOtherKept) {
  addAlbum("Pets");
  library_.addAlbum("Empty");
  for (const auto moved : {library_.addAlbum("Moved"), library_.addSyncedAlbum("Synced")})
    library_.addToAlbum(library_.addAsset({.isHidden = true}), moved);
  open();
  EXPECT_EQ(estimateOf(albumNamed("Pets")), 1u);
  EXPECT_EQ(estimateOf(albumNamed("Synced")), 1u);
  EXPECT_EQ(estimateOf(albumNamed("Empty")), 0u);
  EXPECT_EQ(estimateOf(albumNamed("Moved")), 1u);
  EXPECT_EQ(estimateOf(smartAlbum(202)), NSUInteger{INT64_MAX}) << "there is none";
  reload({{"albumNamePets", false}, {"albumNameMoved", false}});
  EXPECT_EQ(estimateOf(albumNamed("Pets")), 1u);
  EXPECT_EQ(estimateOf(albumNamed("Moved")), 0u) << "nothing of it can be fetched";
}

TEST_F(LibraryFilter, ListsStayTheHostsAndBeginAtTheirEndOnDemand) {
  addAlbum("Pets");
  addAlbum("Locked");
  lock({"Locked"});
  open();
  const Ref<NSArray> albums = elementsOf(topLevel());
  const auto list = listOf(albums.get());
  for (int again = 0; again < 2; ++again) EXPECT_EQ(titlesOf(membersOf(list)), Titles{"Pets"});
  EXPECT_EQ(titlesOf(albums.get()), (Titles{"Pets", "Locked"}));
  EXPECT_EQ(titlesOf(topLevel().send<"fetchedObjects", NSArray()>()), (Titles{"Pets", "Locked"}));

  const auto atEnd = [] {
    std::string answers;
    for (const auto album : {albumNamed("Pets"), smartAlbum(209)}) {
      answers += album.send<"startsAtEnd", bool()>() ? "s" : "-";
      answers += album.send<"keyAssetsAtEnd", bool()>() ? "k" : "-";
    }
    return answers;
  };
  EXPECT_EQ(atEnd(), "--sk");
  reload({{"startAtBottom", true}});
  EXPECT_EQ(atEnd(), "sksk");
  reload({{"startAtBottom", true}, {"enabled", false}});
  EXPECT_EQ(atEnd(), "--sk");
}

NSInteger importType(Object) { return 9; }
NSInteger importSubtype(Object) { return 200; }
bool ownsUpTo(Object, SEL method) { return method != selector<"assetCollectionSubtype">(); }

TEST_F(LibraryFilter, AListMayHoldWhateverItsHostPutsThere) {
  open();
  ClassPair(PHAssetCollection::hostClass(), "Importer")
      .method<importType>(selector<"assetCollectionType">(), "q@:")
      .method<importSubtype>(selector<"assetCollectionSubtype">(), "q@:")
      .method<ownsUpTo>(selector<"respondsToSelector:">(), "B@::")
      .registered();
  const auto elements = makeObject<NSMutableArray>();
  elements->addObject(sendToClass<"null", Object()>(classNamed<"NSNull">()));
  elements->addObject(NSString::from("no collection"));
  elements->addObject(PHAssetCollection::fetch(Type{9}, Subtype::any, {}).firstObject());
  elements->addObject(makeObject<HostClass<"Importer">>().get());
  const auto list = listOf(elements.get());
  EXPECT_EQ(membersOf(list).count(), 4u);
  reload({{"showImports", false}});
  EXPECT_EQ(membersOf(list).count(), 3u) << "only what stands for imports goes";
}

TEST_F(LibraryFilter, OneCallReadsTheLockedAlbumsOnceAndOnlyWhereTheyCount) {
  for (int i = 0; i < 9; ++i)
    addAlbum("Album " + std::to_string(i), i % 2 ? 0 : library_.addFolder("Folder"));
  const auto moved = library_.addAlbum("Moved");
  library_.addToAlbum(library_.addAsset({.isHidden = true}), moved);
  lock({"Album 1", "Videos"});
  open();
  const int watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  inotify_add_watch(watch, phone_.onDisk(kLockedAlbums).c_str(), IN_OPEN | IN_CLOSE);
  const auto opened = [watch](const auto& call) {
    call();
    inotify_event events[64];
    const ssize_t length = read(watch, events, sizeof events);
    return length < 0 ? 0 : static_cast<int>(static_cast<std::size_t>(length) / sizeof(inotify_event));
  };
  const int once = opened([&] { EXPECT_TRUE(phone_.strings(kLockedAlbums)); });
  ASSERT_GT(once, 0);
  const Ref<PHCollectionList> smart(listOf(NSArray::of(smartAlbum(202)))),
      photos(listOf(NSArray::of(smartAlbum(209))));
  const Ref<PHAssetCollection> album(albumNamed("Moved"));
  EXPECT_EQ(opened([] { root(); }), once);
  EXPECT_EQ(opened([&] { EXPECT_EQ(membersOf(smart.get()).count(), 0u); }), once);
  EXPECT_EQ(opened([&] { membersOf(photos.get()); }), 0);
  EXPECT_EQ(opened([&] { in(album.get()); }), once);
  EXPECT_EQ(opened([&] { keyAssetsOf(album.get()); }), once);
  EXPECT_EQ(opened([&] { EXPECT_EQ(estimateOf(album.get()), 1u); }), once);
  EXPECT_EQ(opened([&] { in(smartAlbum(205)), estimateOf(smartAlbum(202)), topLevel(), in({}); }), 0);
  reload({{"showVideos", false}, {"hideLockedFromApps", false}, {"albumNameMoved", false}});
  EXPECT_EQ(opened([&] { membersOf(smart.get()), in(album.get()); }), 0);
  close(watch);
}

TEST_F(LibraryFilter, AnyThreadMayListAndFetchWithoutATitle) {
  addAlbum("Pets");
  lock({"Pets", "(null)"});
  open();
  std::jthread([] {
    const AutoreleasePool pool;
    EXPECT_EQ(listed(), Titles{});
    EXPECT_EQ(PHAsset::fetchInAssetCollection(albumNamed("Pets"), {}).get(), nullptr);
    const auto untitled = PHAssetCollection::transient(elementsOf(in(smartAlbum(209))).get(), {});
    EXPECT_EQ(in(untitled).count(), 1u);
    EXPECT_EQ(estimateOf(untitled), 1u);
    EXPECT_EQ(membersOf(listOf(NSArray::of(untitled))).count(), 1u);
  }).join();
}

TEST_F(LibraryFilter, TheShopDemonstrationShowsEverything) {
  addAlbum("Pets");
  addAlbum("North", library_.addFolder("Folder"));
  lock({"Pets"});
  open(device::kShopDemo, {{"showHidden", false}, {"startAtBottom", true}});
  EXPECT_EQ(listed(), (Titles{"Pets", "Folder"}));
  EXPECT_EQ(in(albumNamed("Pets")).count(), 1u);
  EXPECT_EQ(in(smartAlbum(205), PHFetchOptions::includingHidden().get()).count(), 1u + 1);
  EXPECT_FALSE((albumNamed("Pets").send<"startsAtEnd", bool()>()));
}

}  // namespace
}  // namespace velvault12
