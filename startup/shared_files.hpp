#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velvault12 {

inline constexpr std::string_view kPreferencesFile =
    "/var/mobile/Library/Preferences/com.qdx.velvault12prefs.plist";

/// SpringBoard makes the folder. The path has no slash in front on purpose: SpringBoard runs in "/".
inline constexpr std::string_view kStateFolderToMake = "var/mobile/Library/velvault/";

/// The titles of the locked albums: an array of strings.
inline constexpr std::string_view kLockedAlbumsFile = "/var/mobile/Library/velvault/lockedAlbums.plist";
/// A dictionary that the settings pane may write.
inline constexpr std::string_view kLockedAlbumsPathsFile =
    "/var/mobile/Library/velvault/lockedAlbumsPaths.plist";
/// The title of the album that captures go into: an array whose first element it is.
inline constexpr std::string_view kCaptureAlbumFile = "/var/mobile/Library/velvault/album.tct";
/// The same file, as it is named to SpringBoard.
inline constexpr std::string_view kCaptureAlbumFileToSave = "/private/var/mobile/Library/velvault/album.tct";
/// The password of locked albums: plain UTF-8 text, written by the settings pane.
inline constexpr std::string_view kPasswordFile = "/var/mobile/Library/velvault/settings.tct";
/// SpringBoard's latest answer: a dictionary.
inline constexpr std::string_view kAnswerFile = "/var/mobile/Library/velvault/authenticate.plist";

// The images of the buttons: the Camera's, and those of a tile that set or remove its lock and move its
// album.
inline constexpr std::string_view kAlbumImage = "/Library/Application Support/velvault12/album.png";
inline constexpr std::string_view kLockButtonImage = "/Library/Application Support/velvault12/greenlock.png";
inline constexpr std::string_view kMoveImage = "/Library/Application Support/velvault12/move.png";
/// The padlock over a locked album.
inline constexpr std::string_view kPadlockImage = "/Library/Application Support/velvault12/whitelock.png";

/// Posted by the settings pane when the preferences have changed.
inline constexpr std::string_view kReloadNotification = "com.qdx.velvault12prefs/reloadPrefs";
/// Posted by SpringBoard when it has written an answer.
inline constexpr std::string_view kAnswerNotification = "com.qdx.VVAuthenticate";

/// The strings of a file that holds an array, what is no string left out; nothing when the file is missing or
/// holds something else. Read afresh at each call: any process may have had it rewritten.
std::optional<std::vector<std::string>> readStrings(std::string_view path);

/// The first element of such a file; nothing when there is none or it is no string.
std::optional<std::string> readFirstString(std::string_view path);

/// Has SpringBoard replace the whole file. Nothing waits for it, and without SpringBoard's service nothing is
/// saved.
void saveArray(const std::vector<std::string>& strings, std::string_view path);

}  // namespace velvault12
