#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "startup/settings_rules.hpp"

namespace velvault12 {

/// A kind of smart album that can be left out of the lists of albums.
struct SmartAlbumRow {
  std::int64_t subtype;
  /// The switch that shows it.
  bool Settings::*shows;
  /// Names that hide it as well by standing among the titles of locked albums, English in whatever language
  /// the phone speaks; empty for none.
  std::string_view lockedNames[2] = {};
};

// The two differ on purpose, in 214 and 215: in Photos these are the animated photos and the long exposures,
// each with a switch; in other apps the switch of the animated ones goes for 215, and 214 is always shown.

inline constexpr SmartAlbumRow kSmartAlbumsInPhotos[] = {
    {200, &Settings::showPeople},        {201, &Settings::showPanoramas},
    {202, &Settings::showVideos},        {203, &Settings::showFavourites},
    {204, &Settings::showTimelapse},     {205, &Settings::showHidden},
    {207, &Settings::showBursts},        {208, &Settings::showSlowmo},
    {210, &Settings::showSelfies},       {211, &Settings::showScreenshots},
    {212, &Settings::showPortrait},      {213, &Settings::showLive},
    {214, &Settings::showAnimated},      {215, &Settings::showExposure},
    {1000000203, &Settings::showPlaces}, {1000000207, &Settings::showRecordings},
    {1000000208, &Settings::showRAW},
};

inline constexpr SmartAlbumRow kSmartAlbumsInOtherApps[] = {
    {200, &Settings::showPeople},
    {201, &Settings::showPanoramas, {"Panoramas"}},
    {202, &Settings::showVideos, {"Videos"}},
    {203, &Settings::showFavourites, {"Favourites", "Favorites"}},
    {204, &Settings::showTimelapse, {"Timelapse"}},
    {205, &Settings::showHidden},
    {207, &Settings::showBursts, {"Bursts"}},
    {208, &Settings::showSlowmo, {"Slo-mo"}},
    {210, &Settings::showSelfies, {"Selfies"}},
    {211, &Settings::showScreenshots, {"Screenshots"}},
    {212, &Settings::showPortrait, {"Portrait"}},
    {213, &Settings::showLive, {"Live Photos"}},
    {215, &Settings::showAnimated, {"Animated"}},
    {1000000203, &Settings::showPlaces, {"Places"}},
    {1000000207, &Settings::showRecordings, {"Screen Recordings"}},
    {1000000208, &Settings::showRAW, {"RAW"}},
};

/// A kind that has no row is always shown. `lockedTitles` is asked, by `contains`, only when it decides.
template <class Titles>
bool isSmartAlbumShown(std::span<const SmartAlbumRow> rows, std::int64_t subtype, const Settings& settings,
                       Titles& lockedTitles) {
  for (const SmartAlbumRow& row : rows) {
    if (row.subtype != subtype) continue;
    if (!(settings.*row.shows)) return false;
    for (const std::string_view name : row.lockedNames) {
      if (!name.empty() && lockedTitles.contains(name)) return false;
    }
    return true;
  }
  return true;
}

}  // namespace velvault12
