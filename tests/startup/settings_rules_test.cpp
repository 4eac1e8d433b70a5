#include "startup/settings_rules.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velvault12 {
namespace {

PreferenceValue number(int value) { return {value != 0, value}; }
const PreferenceValue kNo = number(0);
const PreferenceValue kYes = number(1);
const PreferenceValue kUnreadable{};

Settings loaded(const Preferences& preferences) {
  Settings settings;
  applyPreferences(settings, preferences);
  return settings;
}

/// Every switch with its key and what it is without one, written down once more on purpose.
struct Switch {
  const char* key;
  bool Settings::*member;
  bool byDefault;
};
const Switch kSwitches[] = {
    {"enabled", &Settings::enabled, true},
    {"showDeleted", &Settings::showDeleted, true},
    {"showFavourites", &Settings::showFavourites, true},
    {"showPlaces", &Settings::showPlaces, true},
    {"showPeople", &Settings::showPeople, true},
    {"showVideos", &Settings::showVideos, true},
    {"showSelfies", &Settings::showSelfies, true},
    {"showPanoramas", &Settings::showPanoramas, true},
    {"showTimelapse", &Settings::showTimelapse, true},
    {"showSlowmo", &Settings::showSlowmo, true},
    {"showBursts", &Settings::showBursts, true},
    {"showScreenshots", &Settings::showScreenshots, true},
    {"showHidden", &Settings::showHidden, false},
    {"showPortrait", &Settings::showPortrait, true},
    {"showAnimated", &Settings::showAnimated, true},
    {"showLive", &Settings::showLive, true},
    {"showExposure", &Settings::showExposure, true},
    {"showRecordings", &Settings::showRecordings, true},
    {"showRAW", &Settings::showRAW, true},
    {"showImports", &Settings::showImports, true},
    {"showTabMoments", &Settings::showTabMoments, true},
    {"showTabMemories", &Settings::showTabMemories, true},
    {"showTabShared", &Settings::showTabShared, true},
    {"showTabAlbums", &Settings::showTabAlbums, true},
    {"layoutShowTitle", &Settings::layoutShowTitle, true},
    {"layoutShowSubtitle", &Settings::layoutShowSubtitle, true},
    {"hideLockedFromApps", &Settings::hideLockedFromApps, true},
    {"skipDelete", &Settings::skipDelete, false},
    {"reorderStock", &Settings::reorderStock, false},
    {"showLiveBadge", &Settings::showLiveBadge, false},
    {"increaseZoom", &Settings::increaseZoom, false},
    {"enableCameraPicker", &Settings::enableCameraPicker, true},
    {"rememberDefault", &Settings::rememberDefault, false},
    {"returnToMainLocked", &Settings::returnToMainLocked, true},
    {"returnToMainDefault", &Settings::returnToMainDefault, false},
    {"pickerMovePhotos", &Settings::pickerMovePhotos, true},
    {"showSharedAlbums", &Settings::showSharedAlbums, true},
    {"showPeopleAnd", &Settings::showPeopleAnd, true},
    {"showMediaTypes", &Settings::showMediaTypes, true},
    {"showOtherAlbums", &Settings::showOtherAlbums, true},
    {"hideFoldersInApps", &Settings::hideFoldersInApps, true},
    {"shrinkAlbums", &Settings::shrinkAlbums, false},
    {"startAtBottom", &Settings::startAtBottom, false},
};

/// The keys of the switches that are not as they are by default.
std::vector<std::string> turned(const Settings& settings) {
  std::vector<std::string> keys;
  for (const Switch& each : kSwitches) {
    if (settings.*each.member != each.byDefault) keys.emplace_back(each.key);
  }
  return keys;
}

TEST(Settings, EachSwitchFollowsItsOwnKeyAndElseItsDefault) {
  const std::vector<std::string> none;
  EXPECT_EQ(turned(loaded({})), none);
  for (const auto& [key, member, byDefault] : kSwitches) {
    Settings settings = loaded({{key, byDefault ? kNo : kYes}});
    EXPECT_EQ(turned(settings), std::vector<std::string>{key});
    applyPreferences(settings, {{"another", kYes}});
    EXPECT_EQ(turned(settings), none) << "a reload without " << key;
    EXPECT_EQ(turned(loaded({{key, kUnreadable}})), none) << key;
  }
}

TEST(Settings, ANumberIsReadOrElseItsDefaultAndAFontSizeBelowOneOnlyWithoutTitleAndSubtitle) {
  EXPECT_EQ(loaded({{"passOption", number(2)}}).passOption, 2);
  EXPECT_EQ(loaded({{"passOption", kUnreadable}}).passOption, 0);
  const auto size = [](PreferenceValue value, PreferenceValue title, PreferenceValue subtitle) {
    return loaded({{"layoutFontSize", value}, {"layoutShowTitle", title}, {"layoutShowSubtitle", subtitle}})
        .layoutFontSize;
  };
  EXPECT_EQ(size(number(1), kYes, kYes), 1);
  EXPECT_EQ(size(number(0), kYes, kNo), 14);
  EXPECT_EQ(size(number(-3), kNo, kYes), 14);
  EXPECT_EQ(size(number(0), kNo, kNo), 0);
  EXPECT_EQ(size(kUnreadable, kNo, kNo), 14);
}

TEST(Settings, AlbumFlagsAreSetByWholeKeyAndNeverTakenBack) {
  Settings settings = loaded({{"albumNameHolidays", kNo},
                              {"x albumName in the middle", kNo},
                              {"albumNamePets", kUnreadable},
                              {"albumname", kNo}});
  std::unordered_map<std::string, bool> flags{
      {"albumNameHolidays", false}, {"x albumName in the middle", false}, {"albumNamePets", true}};
  EXPECT_EQ(settings.albumFlags, flags);
  applyPreferences(settings, {{"albumNamePets", kNo}});
  flags["albumNamePets"] = false;
  EXPECT_EQ(settings.albumFlags, flags);
}

}  // namespace
}  // namespace velvault12
