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
  std::set<std::string, std::less<>> locked = {"Locked", "Videos", "\u00e9"};
  int questions = 0;
};

CollectionTraits of(CollectionTraits::Type type, std::int64_t subtype, Title title = "Pets") {
  return {.type = type, .subtype = subtype, .tellsSubtype = true, .title = std::move(title)};
}
CollectionTraits named(Title title) { return of(album, 2, std::move(title)); }
CollectionTraits untold(CollectionTraits::Type type, std::int64_t subtype) {
  return {.type = type, .subtype = subtype};
}
CollectionTraits trashBin() {
  return {.type = smartAlbum, .subtype = 1000000201, .tellsSubtype = true, .isTrashBin = true};
}

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

TEST(Collections, AreListedInPhotosAndInOtherAppsEachByTheirOwnRule) {
  const struct {
    CollectionTraits collection;
    Switches off;
    bool inPhotos, inOtherApps;
    /// How often the locked titles are asked for.
    int questions;
  } cases[] = {
      {named("Pets"), {}, true, true, 1},
      {named("Locked"), {}, true, false, 1},
      {named("Locked"), {kLockedToo}, true, true, 0},
      {named("locked"), {}, true, true, 1},
      {named("e\u0301"), {}, true, true, 1},
      {named("\u00e9"), {}, true, false, 1},
      {named(std::string(100'000, 'x')), {}, true, true, 1},
      {named(""), {}, true, true, 1},
      {named({}), {}, true, true, 0},
      {named("Off"), {}, false, false, 0},
      {named("Off"), {kFoldersToo}, true, false, 0},
      {named("On"), {}, true, true, 1},
      // One that a computer keeps.
      {of(album, 5, "Locked"), {}, true, true, 0},
      {of(album, 5, "Off"), {}, false, true, 0},
      {untold(album, 2), {}, true, true, 0},
      {of(smartAlbum, 202), {}, true, false, 1},
      {of(smartAlbum, 202), {kLockedToo}, true, false, 1},
      {of(smartAlbum, 202), {&Settings::showVideos}, false, false, 0},
      {untold(smartAlbum, 202), {&Settings::showVideos}, true, true, 0},
      {of(smartAlbum, 205), {}, false, false, 0},
      {of(smartAlbum, 209, "Locked"), {}, true, true, 0},
      {trashBin(), {}, true, true, 0},
      {trashBin(), {&Settings::showDeleted}, false, false, 0},
      {of(imports, 200), {}, true, true, 0},
      {of(imports, 200), {&Settings::showImports}, false, true, 0},
      {untold(imports, 200), {&Settings::showImports}, false, false, 0},
      {untold(imports, 201), {&Settings::showImports}, true, true, 0},
      // A folder.
      {untold(none, 0), {&Settings::showImports, &Settings::showDeleted}, true, true, 0},
  };
  for (const auto& [collection, off, inPhotos, inOtherApps, questions] : cases) {
    SCOPED_TRACE(&collection - &cases[0].collection);
    SCOPED_TRACE(testing::Message() << std::int64_t(collection.type) << " " << collection.subtype << " "
                                    << collection.title.value_or("").substr(0, 9));
    Titles titles;
    EXPECT_EQ(isListedInPhotos(collection, without(off)), inPhotos);
    EXPECT_EQ(isListedInOtherApps(collection, without(off), titles), inOtherApps);
    EXPECT_EQ(titles.questions, questions);
  }
}

TEST(Collections, OutOfFoldersComeThoseWithoutASwitchOrWithOneThatIsOffUnlessLocked) {
  const std::tuple<Title, Switches, bool> cases[] = {
      {"Pets", {}, true},
      {Title(), {}, true},
      {"On", {}, false},
      {"On", {kFoldersToo}, false},
      {"Off", {}, false},
      {"Off", {kFoldersToo}, true},
      {"Locked", {kFoldersToo}, false},
      {"Locked", {kLockedToo}, true},
  };
  for (const auto& [title, off, isTakenOut] : cases) {
    Titles titles;
    EXPECT_EQ(isTakenOutOfFolder(title, without(off), titles), isTakenOut)
        << title.value_or("") << off.size();
  }
}

TEST(Fetches, AreRefusedOutsidePhotosAndLeaveHiddenOnesOutOfTheWholeLibrary) {
  using enum AssetFetch;
  const struct {
    CollectionTraits collection;
    Switches off;
    AssetFetch inPhotos, inOtherApps, ofKeyAssets;
  } cases[] = {
      {named("Pets"), {}, withHidden, withHidden, withHidden},
      {named("Locked"), {kLockedToo}, withHidden, refused, refused},
      {named("Off"), {}, withHidden, refused, withHidden},
      {named("Off"), {kFoldersToo}, withHidden, withHidden, withHidden},
      {named({}), {}, withHidden, withHidden, withHidden},
      {of(smartAlbum, 202, "Videos"), {}, withHidden, refused, refused},
      {of(smartAlbum, 205), {}, withHidden, refused, withHidden},
      {of(album, 205), {}, withHidden, withHidden, withHidden},
      {of(smartAlbum, 209), {}, withoutHidden, withoutHidden, withoutHidden},
      {of(smartAlbum, 1000000205), {}, withoutHidden, withoutHidden, withHidden},
      {of(album, 209), {}, withHidden, withHidden, withoutHidden},
      {untold(smartAlbum, 209), {}, withoutHidden, withoutHidden, withHidden},
      {untold(none, 0), {}, withHidden, withHidden, withHidden},
  };
  for (const auto& [collection, off, inPhotos, inOtherApps, ofKeyAssets] : cases) {
    SCOPED_TRACE(testing::Message() << collection.subtype << " " << collection.title.value_or(""));
    Titles titles;
    EXPECT_EQ(assetFetch(collection, true, without(off), titles), inPhotos);
    EXPECT_NE(keyAssetFetch(collection, true, titles), refused);
    EXPECT_EQ(titles.questions, 0) << "nothing is hidden from Photos";
    EXPECT_EQ(assetFetch(collection, false, without(off), titles), inOtherApps);
    EXPECT_EQ(keyAssetFetch(collection, false, titles), ofKeyAssets);
  }
}

}  // namespace
}  // namespace velvault12
