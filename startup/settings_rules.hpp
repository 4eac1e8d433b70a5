#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace velvault12 {

/// What stands under one key of the preferences: how it reads as a switch and as a number, each nothing for a
/// value that cannot be read so.
struct PreferenceValue {
  std::optional<bool> asBool;
  std::optional<int> asInt;
};

using Preferences = std::unordered_map<std::string, PreferenceValue>;

/// The user's choices, one member for each key of the preferences and named as it.
struct Settings {
  bool enabled = true;

  bool showDeleted = true;
  bool showFavourites = true;
  bool showPlaces = true;
  bool showPeople = true;
  bool showVideos = true;
  bool showSelfies = true;
  bool showPanoramas = true;
  bool showTimelapse = true;
  bool showSlowmo = true;
  bool showBursts = true;
  bool showScreenshots = true;
  bool showHidden = false;
  bool showPortrait = true;
  bool showAnimated = true;
  bool showLive = true;
  bool showExposure = true;
  bool showRecordings = true;
  bool showRAW = true;
  bool showImports = true;
  bool showTabMoments = true;
  bool showTabMemories = true;
  bool showTabShared = true;
  bool showTabAlbums = true;

  bool layoutShowTitle = true;
  bool layoutShowSubtitle = true;
  /// Points. Below 1 only when neither title nor subtitle is shown.
  int layoutFontSize = 14;
  /// How an album's owner is asked: 0 Touch ID or passcode, 1 the password, anything else not at all.
  int passOption = 0;
  bool hideLockedFromApps = true;
  bool skipDelete = false;
  bool reorderStock = false;
  bool showLiveBadge = false;
  bool increaseZoom = false;
  bool enableCameraPicker = true;
  bool rememberDefault = false;
  bool returnToMainLocked = true;
  bool returnToMainDefault = false;
  bool pickerMovePhotos = true;
  bool showSharedAlbums = true;
  bool showPeopleAnd = true;
  bool showMediaTypes = true;
  bool showOtherAlbums = true;
  bool hideFoldersInApps = true;
  bool shrinkAlbums = false;
  bool startAtBottom = false;

  // The settings pane still writes these; nothing depends on them.
  bool hideRollAlbum = false;
  bool hideRollScreenshots = false;
  bool hideHiddenStock = false;
  bool showLockedinCamera = false;

  /// The switches of single albums, under their whole key: "albumName" followed by the title.
  std::unordered_map<std::string, bool> albumFlags;

  /// Whether the album of that title is to be shown; nothing for one without a switch.
  std::optional<bool> albumFlag(std::string_view title) const;
};

/// Overwrites every setting with what the preferences say, or its default. An album's flag whose key is gone
/// keeps its last value: flags are only ever set, until the process ends.
void applyPreferences(Settings& settings, const Preferences& preferences);

}  // namespace velvault12
