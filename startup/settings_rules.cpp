#include "startup/settings_rules.hpp"

namespace velvault12 {

namespace {

constexpr std::string_view kAlbumFlagMark = "albumName";
constexpr int kDefaultFontSize = 14;

/// One key: a switch or a number, whichever member it has.
struct SettingRow {
  std::string_view key;
  bool Settings::*flag;
  int Settings::*number;
  int byDefault;
};

constexpr SettingRow row(std::string_view key, bool Settings::*flag, bool byDefault) {
  return {key, flag, nullptr, byDefault ? 1 : 0};
}

constexpr SettingRow row(std::string_view key, int Settings::*number, int byDefault) {
  return {key, nullptr, number, byDefault};
}

constexpr bool YES = true;
constexpr bool NO = false;

constexpr SettingRow kRows[] = {
    row("enabled", &Settings::enabled, YES),
    row("showDeleted", &Settings::showDeleted, YES),
    row("showFavourites", &Settings::showFavourites, YES),
    row("showPlaces", &Settings::showPlaces, YES),
    row("showPeople", &Settings::showPeople, YES),
    row("showVideos", &Settings::showVideos, YES),
    row("showSelfies", &Settings::showSelfies, YES),
    row("showPanoramas", &Settings::showPanoramas, YES),
    row("showTimelapse", &Settings::showTimelapse, YES),
    row("showSlowmo", &Settings::showSlowmo, YES),
    row("showBursts", &Settings::showBursts, YES),
    row("showScreenshots", &Settings::showScreenshots, YES),
    row("showHidden", &Settings::showHidden, NO),
    row("showPortrait", &Settings::showPortrait, YES),
    row("showAnimated", &Settings::showAnimated, YES),
    row("showLive", &Settings::showLive, YES),
    row("showExposure", &Settings::showExposure, YES),
    row("showRecordings", &Settings::showRecordings, YES),
    row("showRAW", &Settings::showRAW, YES),
    row("showImports", &Settings::showImports, YES),
    row("showTabMoments", &Settings::showTabMoments, YES),
    row("showTabMemories", &Settings::showTabMemories, YES),
    row("showTabShared", &Settings::showTabShared, YES),
    row("showTabAlbums", &Settings::showTabAlbums, YES),
    row("layoutShowTitle", &Settings::layoutShowTitle, YES),
    row("layoutShowSubtitle", &Settings::layoutShowSubtitle, YES),
    row("layoutFontSize", &Settings::layoutFontSize, kDefaultFontSize),
    row("passOption", &Settings::passOption, 0),
    row("hideRollAlbum", &Settings::hideRollAlbum, NO),
    row("hideRollScreenshots", &Settings::hideRollScreenshots, NO),
    row("hideLockedFromApps", &Settings::hideLockedFromApps, YES),
    row("hideHiddenStock", &Settings::hideHiddenStock, NO),
    row("skipDelete", &Settings::skipDelete, NO),
    row("reorderStock", &Settings::reorderStock, NO),
    row("showLiveBadge", &Settings::showLiveBadge, NO),
    row("increaseZoom", &Settings::increaseZoom, NO),
    row("enableCameraPicker", &Settings::enableCameraPicker, YES),
    row("rememberDefault", &Settings::rememberDefault, NO),
    row("showLockedinCamera", &Settings::showLockedinCamera, NO),
    row("returnToMainLocked", &Settings::returnToMainLocked, YES),
    row("returnToMainDefault", &Settings::returnToMainDefault, NO),
    row("pickerMovePhotos", &Settings::pickerMovePhotos, YES),
    row("showSharedAlbums", &Settings::showSharedAlbums, YES),
    row("showPeopleAnd", &Settings::showPeopleAnd, YES),
    row("showMediaTypes", &Settings::showMediaTypes, YES),
    row("showOtherAlbums", &Settings::showOtherAlbums, YES),
    row("hideFoldersInApps", &Settings::hideFoldersInApps, YES),
    row("shrinkAlbums", &Settings::shrinkAlbums, NO),
    row("startAtBottom", &Settings::startAtBottom, NO),
};

void apply(Settings& settings, const SettingRow& row, const PreferenceValue& value) {
  if (row.flag != nullptr) settings.*row.flag = value.asBool.value_or(row.byDefault != 0);
  if (row.number != nullptr) settings.*row.number = value.asInt.value_or(row.byDefault);
}

void collectAlbumFlags(Settings& settings, const Preferences& preferences) {
  for (const auto& [key, value] : preferences) {
    // Anywhere in the key, since a title may stand before the mark as well.
    if (key.find(kAlbumFlagMark) != std::string::npos) settings.albumFlags[key] = value.asBool.value_or(true);
  }
}

}  // namespace

std::optional<bool> Settings::albumFlag(std::string_view title) const {
  const auto found = albumFlags.find(std::string(kAlbumFlagMark).append(title));
  if (found == albumFlags.end()) return std::nullopt;
  return found->second;
}

void applyPreferences(Settings& settings, const Preferences& preferences) {
  for (const SettingRow& row : kRows) {
    const auto found = preferences.find(std::string(row.key));
    apply(settings, row, found == preferences.end() ? PreferenceValue() : found->second);
  }
  collectAlbumFlags(settings, preferences);
  const bool showsText = settings.layoutShowTitle || settings.layoutShowSubtitle;
  if (settings.layoutFontSize < 1 && showsText) settings.layoutFontSize = kDefaultFontSize;
}

}  // namespace velvault12
