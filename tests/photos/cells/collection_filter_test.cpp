// Which albums the Photos app shows.

#include <gtest/gtest.h>

#include <thread>

#include "tests/photo_library.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

class CollectionFilter : public PhotosApp {
 protected:
  static NSArray kinds() {
    auto albums = makeObject<NSMutableArray>();
    for (const NSInteger subtype : {209, 202, 205, 213, 214, 215, 1000000201})
      albums->addObject(smartAlbum(subtype));
    albums->addObject(importHistory());
    for (const std::string_view title : {"Pets", "Synced"}) albums->addObject(albumNamed(title));
    return std::move(albums).autorelease();
  }
  static Titles listed() { return titlesOf(membersOf(listOf(kinds()))); }
  Titles sections() const {
    for (const std::string_view tab : {"Photos", "Albums"}) me_.tap(tab);
    Titles headings;
    for (const Object gadget : top().send<"childViewControllers", NSArray()>())
      headings.push_back(gadget.send<"localizedTitle", NSString()>().utf8());
    return headings;
  }
  Titles tiles() const {
    Titles titles;
    for (NSInteger i = 0; const auto shown = albumList().tileAtIndexPath(pathTo(i)); ++i)
      titles.push_back(shown.title().utf8());
    return titles;
  }
};

TEST_F(CollectionFilter, ListsFollowTheSwitchesAndKeepLockedAlbums) {
  library_.addSyncedAlbum("Synced");
  open(From::strip, {"Pets", "Videos"});
  EXPECT_EQ(listed(), (Titles{"Camera Roll", "Videos", "Live Photos", "Animated", "Long Exposure",
                              "Recently Deleted", "Imports", "Pets", "Synced"}));
  reload({{"showLive", false}, {"showHidden", true}, {"showImports", false}, {"albumNameSynced", false}});
  EXPECT_EQ(listed(), (Titles{"Camera Roll", "Videos", "Hidden", "Animated", "Long Exposure",
                              "Recently Deleted", "Pets"}));
  reload(
      {{"showExposure", false}, {"showDeleted", false}, {"showVideos", false}, {"hideFoldersInApps", false}});
  EXPECT_EQ(listed(), (Titles{"Camera Roll", "Live Photos", "Animated", "Imports", "Pets", "Synced"}));
  reload({{"enabled", false}});
  EXPECT_EQ(listed(), titlesOf(kinds()));
}

TEST_F(CollectionFilter, ListingSmartAlbumsReadsTheLockedOnes) {
  open(From::strip);
  const auto list = [] {
    const AutoreleasePool pool;
    membersOf(listOf(NSArray::of(smartAlbum(202))));
  };
  writeStrings(kLockedAlbums, {"Holidays"});
  std::jthread(list).join();
  EXPECT_EQ(tapped("Holidays"), "Holidays") << "they are the main thread's";
  // The strip reads them as it comes on screen.
  me_.back();
  writeStrings(kLockedAlbums, {});
  list();
  EXPECT_EQ(tapped("Holidays"), "Holidays");
}

TEST_F(CollectionFilter, PhotosFetchesWhatOtherAppsAreRefused) {
  library_.addToAlbum(library_.addAsset({.isHidden = true}), library_.addAlbum("Moved"));
  open(From::strip, {"Moved"}, {{"albumNameMoved", false}});
  const auto moved = albumNamed("Moved");
  EXPECT_EQ(PHAsset::fetchInAssetCollection(moved, {}).count(), 1u) << "and hidden photos are shown";
  EXPECT_EQ(keyAssetsOf(moved).count(), 1u);
  EXPECT_EQ(estimateOf(moved), 0u) << "as the host counts";
  EXPECT_EQ(PHAsset::fetchInAssetCollection(smartAlbum(205), {}).count(), 1u);
}

TEST_F(CollectionFilter, CameraRollComesFirstUntilOpened) {
  open(From::list);
  const Titles albums{"Holidays", "Pets", "Recipes"}, withRoll{"Camera Roll", "Holidays", "Pets", "Recipes"};
  EXPECT_EQ(tiles(), withRoll);
  EXPECT_EQ(titlesOf(membersOf(listOf(NSArray()))), Titles{}) << "in another list";
  me_.tap("Edit");
  const auto canMoveRoll = [] {
    return albumList().send<"collectionView:canMoveItemAtIndexPath:", bool(Object, NSIndexPath)>(Object(),
                                                                                                 pathTo(0));
  };
  EXPECT_FALSE(canMoveRoll());
  reload({{"reorderStock", true}});
  EXPECT_TRUE(canMoveRoll());
  me_.tap("Done");

  EXPECT_EQ(tapped("Camera Roll"), "Camera Roll");
  me_.back();
  EXPECT_EQ(tiles(), albums);
  tapped("Pets");
  me_.back();
  EXPECT_EQ(tiles(), withRoll);
  reload({{"reorderStock", true}, {"enabled", false}});
  me_.tap("Edit");
  EXPECT_FALSE(canMoveRoll());
  tap({kBack, "See All"});
  EXPECT_EQ(tiles(), albums);
}

TEST_F(CollectionFilter, SectionsAreLeftOut) {
  library_.addCollection({.title = "Family", .subtype = 101});
  open(From::strip);
  EXPECT_EQ(sections(),
            (Titles{"My Albums", "Shared Albums", "People & Places", "Media Types", "Other Albums"}));
  me_.tap("Screenshots");
  EXPECT_EQ(openAlbum(), "Screenshots") << "empty, and listed";
  me_.back();
  reload({{"showSharedAlbums", false}, {"showOtherAlbums", false}});
  EXPECT_EQ(sections(), (Titles{"My Albums", "People & Places", "Media Types", "Other Albums"}));
  reload({{"showMediaTypes", false}, {"showPeopleAnd", false}});
  EXPECT_EQ(sections(), (Titles{"My Albums", "Shared Albums", "Other Albums"}));
  reload({{"showMediaTypes", false}, {"showOtherAlbums", false}});
  EXPECT_EQ(sections(), (Titles{"My Albums", "Shared Albums", "People & Places"}));
}

}  // namespace
}  // namespace velvault12
