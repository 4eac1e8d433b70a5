#include "startup/settings_rules.hpp"

#include <gtest/gtest.h>

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

TEST(Settings, EachSwitchFollowsItsOwnKeyAndElseItsDefault) {
  const Settings defaults = loaded({});
  for (const Switch& entry : kSwitches) {
    EXPECT_EQ(defaults.*entry.member, entry.byDefault) << entry.key;
    const Settings turned = loaded({{entry.key, entry.byDefault ? kNo : kYes}});
    for (const Switch& other : kSwitches) {
      const bool expected = other.member == entry.member ? !entry.byDefault : other.byDefault;
      EXPECT_EQ(turned.*other.member, expected) << other.key << " after " << entry.key;
    }
    EXPECT_EQ(loaded({{entry.key, kUnreadable}}).*entry.member, entry.byDefault) << entry.key;
  }
  EXPECT_EQ(defaults.layoutFontSize, 14);
  EXPECT_EQ(defaults.passOption, 0);
}

TEST(Settings, AReloadTakesBackWhatIsGoneFromTheFile) {
  Settings settings = loaded({{"enabled", kNo}, {"passOption", number(2)}});
  EXPECT_EQ(settings.passOption, 2);
  applyPreferences(settings, {});
  EXPECT_TRUE(settings.enabled);
  EXPECT_EQ(settings.passOption, 0);
  EXPECT_EQ(loaded({{"passOption", kUnreadable}}).passOption, 0);
}

TEST(Settings, FontSizeBelowOneCountsOnlyWithoutTitleAndSubtitle) {
  const auto size = [](PreferenceValue value, PreferenceValue title, PreferenceValue subtitle) {
    return loaded({{"layoutFontSize", value}, {"layoutShowTitle", title}, {"layoutShowSubtitle", subtitle}})
        .layoutFontSize;
  };
  EXPECT_EQ(size(number(9), kYes, kYes), 9);
  EXPECT_EQ(size(number(1), kYes, kYes), 1);
  EXPECT_EQ(size(number(0), kYes, kNo), 14);
  EXPECT_EQ(size(number(-3), kNo, kYes), 14);
  EXPECT_EQ(size(number(0), kNo, kNo), 0);
  EXPECT_EQ(size(number(-3), kNo, kNo), -3);
  EXPECT_EQ(size(kUnreadable, kNo, kNo), 14);
}

TEST(Settings, AlbumFlagsAreSetByWholeKeyAndNeverTakenBack) {
  Settings settings = loaded({{"albumNameHolidays", kNo},
                              {"x albumName in the middle", kNo},
                              {"albumName", kYes},
                              {"albumNamePets", kUnreadable},
                              {"albumname", kNo}});
  EXPECT_FALSE(settings.albumFlags.at("albumNameHolidays"));
  EXPECT_FALSE(settings.albumFlags.at("x albumName in the middle"));
  EXPECT_TRUE(settings.albumFlags.at("albumName"));
  EXPECT_TRUE(settings.albumFlags.at("albumNamePets"));
  EXPECT_EQ(settings.albumFlags.size(), 4U);
  applyPreferences(settings, {{"albumNamePets", kNo}});
  EXPECT_FALSE(settings.albumFlags.at("albumNameHolidays"));
  EXPECT_FALSE(settings.albumFlags.at("albumNamePets"));
}

}  // namespace
}  // namespace velvault12
