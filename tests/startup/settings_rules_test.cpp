#include "startup/settings_rules.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

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

struct Switch {
  std::string_view key;
  bool Settings::*member;
};
// clang-format off
#define SWITCH(name) {#name, &Settings::name}
const Switch kOn[] = {
  SWITCH(enabled), SWITCH(enableCameraPicker), SWITCH(hideFoldersInApps), SWITCH(hideLockedFromApps),
  SWITCH(layoutShowTitle), SWITCH(layoutShowSubtitle), SWITCH(pickerMovePhotos), SWITCH(returnToMainLocked),
  SWITCH(showTabMoments), SWITCH(showTabMemories), SWITCH(showTabShared), SWITCH(showTabAlbums),
  SWITCH(showSharedAlbums), SWITCH(showPeopleAnd), SWITCH(showMediaTypes), SWITCH(showOtherAlbums),
  SWITCH(showAnimated), SWITCH(showBursts), SWITCH(showDeleted), SWITCH(showExposure), SWITCH(showFavourites),
  SWITCH(showImports), SWITCH(showLive), SWITCH(showPanoramas), SWITCH(showPeople), SWITCH(showPlaces),
  SWITCH(showPortrait), SWITCH(showRAW), SWITCH(showRecordings), SWITCH(showScreenshots), SWITCH(showSelfies),
  SWITCH(showSlowmo), SWITCH(showTimelapse), SWITCH(showVideos)};
const Switch kOff[] = {
  SWITCH(increaseZoom), SWITCH(rememberDefault), SWITCH(reorderStock), SWITCH(returnToMainDefault),
  SWITCH(showHidden), SWITCH(showLiveBadge), SWITCH(shrinkAlbums), SWITCH(skipDelete), SWITCH(startAtBottom)};
// clang-format on

std::string turned(const Settings& settings) {
  std::string keys;
  for (const auto& [key, member] : kOn) keys += settings.*member ? "" : key;
  for (const auto& [key, member] : kOff) keys += settings.*member ? key : "";
  return keys;
}

TEST(Settings, SwitchFollowsItsKeyElseItsDefault) {
  EXPECT_EQ(turned(loaded({})), "");
  const auto expectToTurn = [](std::string_view switched, const PreferenceValue& value) {
    const std::string key(switched);
    Settings settings = loaded({{key, value}});
    EXPECT_EQ(turned(settings), key);
    applyPreferences(settings, {{"another", kYes}});
    EXPECT_EQ(turned(settings), "") << "a reload without " << key;
    EXPECT_EQ(turned(loaded({{key, kUnreadable}})), "") << key;
  };
  for (const Switch& each : kOn) expectToTurn(each.key, kNo);
  for (const Switch& each : kOff) expectToTurn(each.key, kYes);
}

TEST(Settings, NumbersHaveDefaultsAndFontALeastSize) {
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

TEST(Settings, AlbumFlagsKeepWholeKeysAcrossReloads) {
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
