// Which albums the Photos app shows.

#include <gtest/gtest.h>

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
    albums->addObject(
        PHAssetCollection::fetch(PHAssetCollection::Type{9}, PHAssetCollection::Subtype::any, {})
            .firstObject());
    for (const std::string_view title : {"Pets", "Synced"}) albums->addObject(albumNamed(title));
    return std::move(albums).autorelease();
  }
  static Titles listed() { return titlesOf(membersOf(listOf(kinds()))); }
  /// The headings of the Albums tab.
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

TEST_F(CollectionFilter, ListsGoByTheSwitchesOfPhotosAloneAndLockedAlbumsStay) {
  phone_.photoLibrary().addSyncedAlbum("Synced");
  open(From::strip, {"Pets", "Videos"});
  EXPECT_EQ(listed(), (Titles{"Camera Roll", "Videos", "Live Photos", "Animated", "Long Exposure",
                              "Recently Deleted", "Imports", "Pets", "Synced"}));
  reload({{"showLive", false},
          {"showAnimated", false},
          {"showHidden", true},
          {"showImports", false},
          {"albumNameSynced", false}});
  EXPECT_EQ(listed(),
            (Titles{"Camera Roll", "Videos", "Hidden", "Long Exposure", "Recently Deleted", "Pets"}));
  reload(
      {{"showExposure", false}, {"showDeleted", false}, {"showVideos", false}, {"hideFoldersInApps", false}});
  EXPECT_EQ(listed(), (Titles{"Camera Roll", "Live Photos", "Animated", "Imports", "Pets", "Synced"}));
  reload({{"enabled", false}});
  EXPECT_EQ(listed(), titlesOf(kinds()));
}

TEST_F(CollectionFilter, AListOfSmartAlbumsReadsTheLockedOnesAfresh) {
  open(From::strip);
  writeStrings(kLockedAlbums, {"Holidays"});
  membersOf(listOf(NSArray::of(smartAlbum(202))));
  EXPECT_EQ(tapped("Holidays"), "");
}

TEST_F(CollectionFilter, WhatOtherAppsAreRefusedIsPhotosOwn) {
  auto library = phone_.photoLibrary();
  for (const std::string_view title : {"Moved", "Free"})
    library.addToAlbum(library.addAsset({.isHidden = true}), library.addAlbum(title));
  open(From::strip, {"Moved"}, {{"albumNamePets", false}});
  EXPECT_EQ(PHAsset::fetchInAssetCollection(albumNamed("Moved"), {}).count(), 1u)
      << "and hidden photos are shown";
  EXPECT_EQ(keyAssetsOf(albumNamed("Moved")).count(), 1u);
  EXPECT_EQ(estimateOf(albumNamed("Free")), 0u) << "as the host counts";
  EXPECT_EQ(PHAsset::fetchInAssetCollection(albumNamed("Pets"), {}).count(), 1u);
  EXPECT_EQ(PHAsset::fetchInAssetCollection(smartAlbum(205), {}).count(), 2u);
  EXPECT_EQ(PHAsset::fetchInAssetCollection(smartAlbum(209), {}).count(), 3u);
}

TEST_F(CollectionFilter, WhatIsLockedHereIsGoneFromTheNextFetchOfAnAppThatRuns) {
  open(From::strip);
  const device::App gallery = phone_.launch(device::kGallery);
  const auto finds = [&](std::string_view row) {
    gallery.user().tap("Refresh");
    return gallery.user().sees(row);
  };
  EXPECT_TRUE(finds("Pets: 1 photo"));
  me_.longPress("Pets");
  EXPECT_TRUE(soonLocked({"Pets"}));
  EXPECT_FALSE(finds("Pets: 1 photo"));
  EXPECT_TRUE(finds("fetched Pets: nothing"));
  EXPECT_TRUE(finds("Recipes: 1 photo"));
  me_.longPress("Pets");
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soonLocked({}));
  EXPECT_TRUE(finds("Pets: 1 photo"));
}

TEST_F(CollectionFilter, TheCameraRollComesFirstUntilItIsOpened) {
  open(From::list);
  const Titles albums{"Holidays", "Pets", "Recipes"}, withRoll{"Camera Roll", "Holidays", "Pets", "Recipes"};
  EXPECT_EQ(tiles(), withRoll);
  EXPECT_EQ(tapped("Camera Roll"), "Camera Roll");
  me_.back();
  EXPECT_EQ(tiles(), albums);
  tapped("Pets");
  me_.back();
  EXPECT_EQ(tiles(), withRoll);
  reload({{"enabled", false}});
  me_.back();
  me_.tap("See All");
  EXPECT_EQ(tiles(), albums);
  EXPECT_EQ(titlesOf(membersOf(listOf(NSArray()))), Titles{}) << "in another list";
}

TEST_F(CollectionFilter, SectionsOfTheAlbumsTabAreLeftOut) {
  phone_.photoLibrary().addCollection({.title = "Family", .subtype = 101});
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

TEST_F(CollectionFilter, BuiltInAlbumsAreReorderedOnDemand) {
  open(From::list);
  me_.tap("Edit");
  const auto canMove = [](NSInteger item) {
    return albumList().send<"collectionView:canMoveItemAtIndexPath:", bool(Object, NSIndexPath)>(
        Object(), pathTo(item));
  };
  EXPECT_FALSE(canMove(0));
  EXPECT_TRUE(canMove(1));
  reload({{"reorderStock", true}});
  EXPECT_TRUE(canMove(0));
  reload({{"reorderStock", true}, {"enabled", false}});
  EXPECT_FALSE(canMove(0));
}

}  // namespace
}  // namespace velvault12
