#include "startup/settings_rules.hpp"

#include <variant>

namespace velvault12 {

namespace {

constexpr std::string_view kAlbumFlagMark = "albumName";
constexpr int kDefaultFontSize = 14;

struct BoolSetting {
  bool Settings::*member;
  bool byDefault;
};
struct IntSetting {
  int Settings::*member;
  int byDefault;
};
struct SettingRow {
  std::string_view key;
  std::variant<BoolSetting, IntSetting> setting;
};

constexpr bool YES = true;
constexpr bool NO = false;

constexpr SettingRow kRows[] = {
    {"enabled", BoolSetting{&Settings::enabled, YES}},
    {"showDeleted", BoolSetting{&Settings::showDeleted, YES}},
    {"showFavourites", BoolSetting{&Settings::showFavourites, YES}},
    {"showPlaces", BoolSetting{&Settings::showPlaces, YES}},
    {"showPeople", BoolSetting{&Settings::showPeople, YES}},
    {"showVideos", BoolSetting{&Settings::showVideos, YES}},
    {"showSelfies", BoolSetting{&Settings::showSelfies, YES}},
    {"showPanoramas", BoolSetting{&Settings::showPanoramas, YES}},
    {"showTimelapse", BoolSetting{&Settings::showTimelapse, YES}},
    {"showSlowmo", BoolSetting{&Settings::showSlowmo, YES}},
    {"showBursts", BoolSetting{&Settings::showBursts, YES}},
    {"showScreenshots", BoolSetting{&Settings::showScreenshots, YES}},
    {"showHidden", BoolSetting{&Settings::showHidden, NO}},
    {"showPortrait", BoolSetting{&Settings::showPortrait, YES}},
    {"showAnimated", BoolSetting{&Settings::showAnimated, YES}},
    {"showLive", BoolSetting{&Settings::showLive, YES}},
    {"showExposure", BoolSetting{&Settings::showExposure, YES}},
    {"showRecordings", BoolSetting{&Settings::showRecordings, YES}},
    {"showRAW", BoolSetting{&Settings::showRAW, YES}},
    {"showImports", BoolSetting{&Settings::showImports, YES}},
    {"showTabMoments", BoolSetting{&Settings::showTabMoments, YES}},
    {"showTabMemories", BoolSetting{&Settings::showTabMemories, YES}},
    {"showTabShared", BoolSetting{&Settings::showTabShared, YES}},
    {"showTabAlbums", BoolSetting{&Settings::showTabAlbums, YES}},
    {"layoutShowTitle", BoolSetting{&Settings::layoutShowTitle, YES}},
    {"layoutShowSubtitle", BoolSetting{&Settings::layoutShowSubtitle, YES}},
    {"layoutFontSize", IntSetting{&Settings::layoutFontSize, kDefaultFontSize}},
    {"passOption", IntSetting{&Settings::passOption, 0}},
    {"hideRollAlbum", BoolSetting{&Settings::hideRollAlbum, NO}},
    {"hideRollScreenshots", BoolSetting{&Settings::hideRollScreenshots, NO}},
    {"hideLockedFromApps", BoolSetting{&Settings::hideLockedFromApps, YES}},
    {"hideHiddenStock", BoolSetting{&Settings::hideHiddenStock, NO}},
    {"skipDelete", BoolSetting{&Settings::skipDelete, NO}},
    {"reorderStock", BoolSetting{&Settings::reorderStock, NO}},
    {"showLiveBadge", BoolSetting{&Settings::showLiveBadge, NO}},
    {"increaseZoom", BoolSetting{&Settings::increaseZoom, NO}},
    {"enableCameraPicker", BoolSetting{&Settings::enableCameraPicker, YES}},
    {"rememberDefault", BoolSetting{&Settings::rememberDefault, NO}},
    {"showLockedinCamera", BoolSetting{&Settings::showLockedinCamera, NO}},
    {"returnToMainLocked", BoolSetting{&Settings::returnToMainLocked, YES}},
    {"returnToMainDefault", BoolSetting{&Settings::returnToMainDefault, NO}},
    {"pickerMovePhotos", BoolSetting{&Settings::pickerMovePhotos, YES}},
    {"showSharedAlbums", BoolSetting{&Settings::showSharedAlbums, YES}},
    {"showPeopleAnd", BoolSetting{&Settings::showPeopleAnd, YES}},
    {"showMediaTypes", BoolSetting{&Settings::showMediaTypes, YES}},
    {"showOtherAlbums", BoolSetting{&Settings::showOtherAlbums, YES}},
    {"hideFoldersInApps", BoolSetting{&Settings::hideFoldersInApps, YES}},
    {"shrinkAlbums", BoolSetting{&Settings::shrinkAlbums, NO}},
    {"startAtBottom", BoolSetting{&Settings::startAtBottom, NO}},
};

void apply(Settings& settings, const BoolSetting& setting, const PreferenceValue& value) {
  settings.*setting.member = value.asBool.value_or(setting.byDefault);
}

void apply(Settings& settings, const IntSetting& setting, const PreferenceValue& value) {
  settings.*setting.member = value.asInt.value_or(setting.byDefault);
}

void collectAlbumFlags(Settings& settings, const Preferences& preferences) {
  for (const auto& [key, value] : preferences) {
    // Anywhere in the key, since a title may stand before the mark as well.
    if (key.find(kAlbumFlagMark) != std::string::npos) settings.albumFlags[key] = value.asBool.value_or(true);
  }
}

}  // namespace

void applyPreferences(Settings& settings, const Preferences& preferences) {
  for (const SettingRow& row : kRows) {
    const auto found = preferences.find(std::string(row.key));
    const PreferenceValue value = found == preferences.end() ? PreferenceValue() : found->second;
    std::visit([&](const auto& setting) { apply(settings, setting, value); }, row.setting);
  }
  collectAlbumFlags(settings, preferences);
  const bool showsText = settings.layoutShowTitle || settings.layoutShowSubtitle;
  if (settings.layoutFontSize < 1 && showsText) settings.layoutFontSize = kDefaultFontSize;
}

}  // namespace velvault12
