#include "library_filter/collection_rules.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace velvault12 {
namespace {

using enum CollectionTraits::Type;
using Title = std::optional<std::string>;

/// Locked titles that count how often they are asked for.
struct Titles {
  bool contains(std::string_view title) {
    ++questions;
    return locked.contains(title);
  }
  std::set<std::string, std::less<>> locked = {"Locked", "Videos"};
  int questions = 0;
};

CollectionTraits of(CollectionTraits::Type type, std::int64_t subtype, Title title = "Pets") {
  return {.type = type, .subtype = subtype, .tellsSubtype = true, .title = std::move(title)};
}
CollectionTraits named(Title title) { return of(album, 2, std::move(title)); }
CollectionTraits untold(CollectionTraits::Type type, std::int64_t subtype) {
  return {.type = type, .subtype = subtype};
}
const CollectionTraits kTrashBin{
    .type = smartAlbum, .subtype = 1000000201, .tellsSubtype = true, .isTrashBin = true};

using Switches = std::vector<bool Settings::*>;
/// With these switches off, as well as the album "Off"; the album "On" has its own switched on.
Settings without(const Switches& switches) {
  Settings settings;
  for (const auto each : switches) settings.*each = false;
  settings.albumFlags = {{"albumNameOff", false}, {"albumNameOn", true}};
  return settings;
}

constexpr auto kLockedToo = &Settings::hideLockedFromApps;
constexpr auto kFoldersToo = &Settings::hideFoldersInApps;

/// Whether it is listed in Photos (P) and in other apps (o), and how often the locked titles are asked for.
std::string listed(const CollectionTraits& collection, const Switches& off = {}) {
  Titles titles;
  std::string where = isListedInPhotos(collection, without(off)) ? "P" : "-";
  where += isListedInOtherApps(collection, without(off), titles) ? "o" : "-";
  return where + std::to_string(titles.questions);
}

TEST(Collections, AreListedInPhotosAndInOtherApps) {
  EXPECT_EQ(listed(named("Pets")), "Po1");
  EXPECT_EQ(listed(named("Locked")), "P-1");
  EXPECT_EQ(listed(named("Locked"), {kLockedToo}), "Po0");
  EXPECT_EQ(listed(named({})), "Po0");
  EXPECT_EQ(listed(named("Off")), "--0");
  EXPECT_EQ(listed(named("Off"), {kFoldersToo}), "P-0");
  EXPECT_EQ(listed(named("On")), "Po1");
  EXPECT_EQ(listed(of(album, 5, "Locked")), "Po0") << "a synced one";
  EXPECT_EQ(listed(of(album, 5, "Off")), "-o0");
  EXPECT_EQ(listed(untold(album, 2)), "Po0");
  EXPECT_EQ(listed(of(smartAlbum, 202)), "P-1") << "its kind is locked";
  EXPECT_EQ(listed(of(smartAlbum, 202), {kLockedToo}), "P-1");
  EXPECT_EQ(listed(of(smartAlbum, 202), {&Settings::showVideos}), "--0");
  EXPECT_EQ(listed(untold(smartAlbum, 202), {&Settings::showVideos}), "Po0");
  EXPECT_EQ(listed(of(smartAlbum, 205)), "--0");
  EXPECT_EQ(listed(of(smartAlbum, 209, "Locked")), "Po0");
  EXPECT_EQ(listed(kTrashBin), "Po0");
  EXPECT_EQ(listed(kTrashBin, {&Settings::showDeleted}), "--0");
  EXPECT_EQ(listed(of(imports, 200)), "Po0");
  EXPECT_EQ(listed(of(imports, 200), {&Settings::showImports}), "-o0");
  EXPECT_EQ(listed(untold(imports, 200), {&Settings::showImports}), "--0");
  EXPECT_EQ(listed(untold(imports, 201), {&Settings::showImports}), "Po0");
  EXPECT_EQ(listed(untold(none, 0), {&Settings::showImports, &Settings::showDeleted}), "Po0") << "a folder";
}

TEST(Collections, AreTakenOutOfFolders) {
  const auto isTakenOut = [](const Title& title, const Switches& off) {
    Titles titles;
    return isTakenOutOfFolder(title, without(off), titles);
  };
  EXPECT_TRUE(isTakenOut("Pets", {}) && isTakenOut({}, {}));
  EXPECT_FALSE(isTakenOut("On", {}) || isTakenOut("On", {kFoldersToo}) || isTakenOut("Off", {}));
  EXPECT_TRUE(isTakenOut("Off", {kFoldersToo}));
  EXPECT_FALSE(isTakenOut("Locked", {kFoldersToo}));
  EXPECT_TRUE(isTakenOut("Locked", {kLockedToo}));
}

/// What a fetch comes to in Photos, in another app, and there of its key assets: with hidden ones (h),
/// without (w), refused (-).
std::string fetched(const CollectionTraits& collection, const Switches& off = {}) {
  Titles titles;
  const AssetFetch inPhotos = assetFetch(collection, true, without(off), titles);
  EXPECT_NE(keyAssetFetch(collection, true, titles), AssetFetch::refused);
  EXPECT_EQ(titles.questions, 0) << "nothing is hidden from Photos";
  std::string all;
  for (const AssetFetch each : {inPhotos, assetFetch(collection, false, without(off), titles),
                                keyAssetFetch(collection, false, titles)})
    all += each == AssetFetch::refused ? '-' : each == AssetFetch::withHidden ? 'h' : 'w';
  return all;
}

TEST(Fetches, AreRefusedOrIncludeHidden) {
  EXPECT_EQ(fetched(named("Pets")), "hhh");
  EXPECT_EQ(fetched(named("Locked"), {kLockedToo}), "h--");
  EXPECT_EQ(fetched(named("Off")), "h-h");
  EXPECT_EQ(fetched(named("Off"), {kFoldersToo}), "hhh");
  EXPECT_EQ(fetched(named({})), "hhh");
  EXPECT_EQ(fetched(of(smartAlbum, 202, "Videos")), "h--");
  EXPECT_EQ(fetched(of(smartAlbum, 205)), "h-h");
  EXPECT_EQ(fetched(of(album, 205)), "hhh");
  EXPECT_EQ(fetched(of(smartAlbum, 209)), "www");
  EXPECT_EQ(fetched(of(smartAlbum, 1000000205)), "wwh");
  EXPECT_EQ(fetched(of(album, 209)), "hhw");
  EXPECT_EQ(fetched(untold(smartAlbum, 209)), "wwh");
  EXPECT_EQ(fetched(untold(none, 0)), "hhh");
}

}  // namespace
}  // namespace velvault12
