#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "library_filter/smart_album_rules.hpp"
#include "startup/settings_rules.hpp"

// Which collections a list shows, and which of their assets a fetch finds. `lockedTitles` are the titles of
// the locked albums: they are asked, by `contains`, only where they decide.

namespace velvault12 {

/// A collection as the host tells of it.
struct CollectionTraits {
  enum class Type : std::int64_t { none = 0, album = 1, smartAlbum = 2, imports = 9 };

  Type type = Type::none;
  std::int64_t subtype = 0;
  /// Whether it says that it responds to the question for its subtype: a folder does not, a proxy may not and
  /// answer it all the same.
  bool tellsSubtype = false;
  bool isTrashBin = false;
  std::optional<std::string> title;

  bool isRegularAlbum() const { return tellsSubtype && type == Type::album && subtype == 2; }
  bool isImportHistory() const { return type == Type::imports && subtype == 200; }
  /// The user has switched it off, by its title.
  bool isSwitchedOff(const Settings& settings) const { return title && settings.albumFlag(*title) == false; }
};

/// In the Photos app's own lists, where locked albums have their tiles.
inline bool isListedInPhotos(const CollectionTraits& collection, const Settings& settings) {
  constexpr struct {
    bool contains(std::string_view) const { return false; }
  } kNoTitles{};
  using enum CollectionTraits::Type;
  if (collection.isTrashBin && !settings.showDeleted) return false;
  if (collection.isImportHistory()) return settings.showImports;
  if (collection.type == album) return !settings.hideFoldersInApps || !collection.isSwitchedOff(settings);
  if (collection.type != smartAlbum || !collection.tellsSubtype) return true;
  return isSmartAlbumShown(kSmartAlbumsInPhotos, collection.subtype, settings, kNoTitles);
}

/// In the lists of any other app.
template <class Titles>
bool isListedInOtherApps(const CollectionTraits& collection, const Settings& settings, Titles& lockedTitles) {
  using enum CollectionTraits::Type;
  if (collection.isTrashBin && !settings.showDeleted) return false;
  // The import history itself stays; a proxy of it goes by the switch.
  if (!collection.tellsSubtype) return settings.showImports || !collection.isImportHistory();
  if (collection.type == smartAlbum)
    return isSmartAlbumShown(kSmartAlbumsInOtherApps, collection.subtype, settings, lockedTitles);
  if (!collection.isRegularAlbum() || !collection.title) return true;
  if (collection.isSwitchedOff(settings)) return false;
  return !settings.hideLockedFromApps || !lockedTitles.contains(*collection.title);
}

/// Whether an album that stands in a folder only is shown in the list of another app as well. One whose
/// switch is on stays in its folder.
template <class Titles>
bool isTakenOutOfFolder(const std::optional<std::string>& title, const Settings& settings,
                        Titles& lockedTitles) {
  if (!title) return true;
  const std::optional<bool> flag = settings.albumFlag(*title);
  if (flag && (*flag || settings.hideFoldersInApps)) return false;
  return !settings.hideLockedFromApps || !lockedTitles.contains(*title);
}

// Subtypes of smart albums.
inline constexpr std::int64_t kHiddenAlbum = 205;
inline constexpr std::int64_t kUserLibrary = 209;
inline constexpr std::int64_t kAllPhotos = 1000000205;

/// What a fetch of a collection's assets comes to.
enum class AssetFetch { refused, withoutHidden, withHidden };

/// Of all that a collection holds.
template <class Titles>
AssetFetch assetFetch(const CollectionTraits& collection, bool inPhotos, const Settings& settings,
                      Titles& lockedTitles) {
  const bool isSmartAlbum = collection.type == CollectionTraits::Type::smartAlbum;
  if (!inPhotos) {
    if (isSmartAlbum && collection.subtype == kHiddenAlbum) return AssetFetch::refused;
    if (settings.hideFoldersInApps && collection.isSwitchedOff(settings)) return AssetFetch::refused;
    if (collection.title && lockedTitles.contains(*collection.title)) return AssetFetch::refused;
  }
  const bool isWholeLibrary = collection.subtype == kUserLibrary || collection.subtype == kAllPhotos;
  return isSmartAlbum && isWholeLibrary ? AssetFetch::withoutHidden : AssetFetch::withHidden;
}

/// Of the few that stand for it.
template <class Titles>
AssetFetch keyAssetFetch(const CollectionTraits& collection, bool inPhotos, Titles& lockedTitles) {
  if (!inPhotos && collection.title && lockedTitles.contains(*collection.title)) return AssetFetch::refused;
  const bool isUserLibrary = collection.tellsSubtype && collection.subtype == kUserLibrary;
  return isUserLibrary ? AssetFetch::withoutHidden : AssetFetch::withHidden;
}

}  // namespace velvault12
