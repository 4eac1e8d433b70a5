#pragma once

#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <latch>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "device/device.hpp"
#include "device/system/process.hpp"
#include "device/system/run_loop.hpp"
#include "device/system/sockets.hpp"
#include "host/dispatch.hpp"
#include "host/foundation.hpp"
#include "host/hook.hpp"
#include "host/photos.hpp"
#include "host/runtime.hpp"
#include "host/uikit.hpp"
#include "tests/temporary_folder.hpp"

namespace velvault12 {

// Foundation's own count of living objects.
extern "C" {
ObjcBool GSDebugAllocationActive(ObjcBool active);
int GSDebugAllocationCount(Class type);
}

/// Entries without an object are left out, as a sender would that has none. Autoreleased.
inline NSMutableDictionary dictionaryOf(
    std::initializer_list<std::pair<std::string_view, Object>> entries = {}) {
  auto dictionary = makeObject<NSMutableDictionary>();
  for (const auto& [key, object] : entries) dictionary->set(key, object);
  return std::move(dictionary).autorelease();
}

inline void installHook(const HookRow& row) { installHooks({&row, 1}); }

/// A plus for each that is true and a minus for each that is not.
inline std::string signs(std::initializer_list<bool> answers) {
  std::string all;
  for (const bool each : answers) all += each ? '+' : '-';
  return all;
}
/// Where a view lies, in whole points.
inline std::string frameText(UIView view) {
  if (!view) return "none";
  const CGRect frame = view.frame();
  std::string text;
  for (const double number : {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height})
    text += (text.empty() ? "" : " ") + std::to_string(static_cast<int>(number));
  return text;
}

/// Makes each change to a folder's files an event of the main thread's run loop.
class FolderEvents {
 public:
  explicit FolderEvents(const std::filesystem::path& folder) {
    inotify_add_watch(events_.get(), folder.c_str(), IN_MOVED_TO | IN_CREATE | IN_CLOSE_WRITE | IN_DELETE);
  }

 private:
  device::Descriptor events_{inotify_init1(IN_NONBLOCK | IN_CLOEXEC)};
  device::Watch watch_{events_.get(), [events = events_.get()] {
                         char drained[4096];
                         while (read(events, drained, sizeof drained) > 0) continue;
                       }};
};

/// Keeps the photo library from making changes, for as long as it lives.
class HeldLibrary {
 public:
  HeldLibrary() {
    PHPhotoLibrary::sharedPhotoLibrary().performChanges(
        block<void()>([] {}), block<void(bool, Object)>([gate = gate_](bool, Object) { gate->wait(); }));
  }
  ~HeldLibrary() { gate_->count_down(); }
  HeldLibrary(const HeldLibrary&) = delete;
  HeldLibrary& operator=(const HeldLibrary&) = delete;

 private:
  const std::shared_ptr<std::latch> gate_ = std::make_shared<std::latch>(1);
};

/// A phone with the library installed, whose folder goes with the test. The test's own process may become one
/// of its apps, once: ctest runs each case in a process of its own.
class PhoneTest : public ::testing::Test {
 protected:
  static constexpr std::string_view kPreferences =
      "/var/mobile/Library/Preferences/com.qdx.velvault12prefs.plist";
  static constexpr std::string_view kStateFolder = "/var/mobile/Library/velvault";
  static constexpr std::string_view kLockedAlbums = "/var/mobile/Library/velvault/lockedAlbums.plist";
  static constexpr std::string_view kPassword = "/var/mobile/Library/velvault/settings.tct";
  static constexpr std::string_view kAnswer = "/var/mobile/Library/velvault/authenticate.plist";
  static constexpr std::string_view kAnswered = "com.qdx.VVAuthenticate";
  static constexpr std::string_view kReload = "com.qdx.velvault12prefs/reloadPrefs";

  using Titles = std::vector<std::string>;
  using Preferences = std::map<std::string, device::Device::Preference>;

  PhoneTest() { phone_.install(VELVAULT12_LIBRARY, VELVAULT12_FILTER, VELVAULT12_IMAGES); }

  void become(std::string_view bundleIdentifier) const {
    device::become({phone_.folder(), std::string(bundleIdentifier)});
  }

  void write(std::string_view phonePath, std::string_view bytes) const {
    const std::filesystem::path path = phone_.onDisk(phonePath);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
  }
  void writeStrings(std::string_view phonePath, const Titles& strings) const {
    std::string list = "(";
    for (const std::string& string : strings) list += (list.size() == 1 ? "\"" : ", \"") + string + "\"";
    write(phonePath, list + ")");
  }
  bool hasFile(std::string_view phonePath) const { return std::filesystem::exists(phone_.onDisk(phonePath)); }
  void remove(std::string_view phonePath) const { std::filesystem::remove_all(phone_.onDisk(phonePath)); }
  /// The titles of the user's albums, wherever they are kept.
  Titles albums() const {
    Titles all;
    for (const auto& album : phone_.photoLibrary().allAlbums()) all.push_back(album.title);
    return all;
  }
  /// What the albums of that title hold, hidden or not.
  std::vector<device::AssetRow> assetsIn(std::string_view title) const {
    std::vector<device::AssetRow> all;
    const auto library = phone_.photoLibrary();
    for (const auto& album : library.allAlbums()) {
      const auto assets = library.assetsInAlbum(album.identifier);
      if (album.title == title) all.insert(all.end(), assets.begin(), assets.end());
    }
    return all;
  }
  /// How many observers the notification has, in all processes.
  std::ptrdiff_t observers(std::string_view notification) const {
    const auto folder = phone_.folder() / "run/notifications" / device::fileNameOf(notification);
    if (!std::filesystem::exists(folder)) return 0;
    return std::distance(std::filesystem::directory_iterator(folder), {});
  }

  /// All that an alert says, from its title to its buttons.
  static Titles textsOf(const device::AlertText& alert) {
    Titles texts{alert.title, alert.message};
    for (const auto& more : {alert.fields, alert.buttons})
      texts.insert(texts.end(), more.begin(), more.end());
    return texts;
  }
  static NSUInteger references(Object object) { return object.send<"retainCount", NSUInteger()>(); }
  /// Runs this process's app until the condition holds.
  static bool soon(const std::function<bool()>& condition) {
    return device::runUntil(condition, device::kPatience);
  }
  /// Lets what has reached this process by now be handled: a turn of its run loop handles all that is ready.
  static void turn() {
    bool isOver = false;
    runOnMainQueue([&isOver] { isOver = true; });
    ASSERT_TRUE(soon([&isOver] { return isOver; }));
  }
  /// Waits until every timer has fired that is due by now.
  static void waitForTimers() {
    const Ref<NSTimer> timer(NSTimer::scheduledOnce(0, NSString::from("x"), selector<"length">()));
    ASSERT_TRUE(soon([&] { return !timer->send<"isValid", bool()>(); }));
  }
  static constexpr std::string_view kBack = "<";
  void tap(std::initializer_list<std::string_view> texts) const {
    for (const std::string_view text : texts) {
      if (text == kBack) {
        me_.back();
      } else {
        me_.tap(text);
      }
    }
  }
  /// Lets everything that is on its way arrive: a message to SpringBoard, where the test runs one, and back.
  void settle() const {
    // What SpringBoard had before the first question is handled before the second.
    if (springBoard_) {
      for (int question = 0; question < 2; ++question) springBoard_->user().ownerRequest();
    }
    turn();
  }
  void reload(const Preferences& preferences) const {
    phone_.writePreferences(preferences);
    phone_.post(kReload);
    settle();
  }
  /// Waits until the photo library has made the changes that it has been asked for by now, and those that
  /// these bring about.
  static void settleLibrary() {
    for (int round = 0; round < 2; ++round) {
      const auto isOver = std::make_shared<bool>(false);
      const auto end = [isOver](bool, Object) { runOnMainQueue([isOver] { *isOver = true; }); };
      PHPhotoLibrary::sharedPhotoLibrary().performChanges(block<void()>([] {}),
                                                          block<void(bool, Object)>(end));
      ASSERT_TRUE(soon([&] { return *isOver; }));
    }
  }
  /// Which photos an album or the whole library holds once it is at rest, by the minutes of 1970 in which
  /// they were taken, and which are hidden, such as "1 2* 3".
  std::string photosIn(std::string_view title) const {
    settleLibrary();
    return wordsOf(assetsIn(title));
  }
  std::string allPhotos() const {
    settleLibrary();
    return wordsOf(phone_.photoLibrary().allAssets());
  }
  /// How often a file of the phone is opened during the call.
  int openings(std::string_view phonePath, const std::function<void()>& call) const {
    const device::Descriptor watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    // Closing as well: of two events that are the same the second would be left out.
    inotify_add_watch(watch.get(), phone_.onDisk(phonePath).c_str(), IN_OPEN | IN_CLOSE);
    call();
    inotify_event events[64];
    const ssize_t bytes = read(watch.get(), events, sizeof events);
    return bytes < 0 ? 0 : static_cast<int>(bytes / (2 * sizeof(inotify_event)));
  }
  bool soonLocked(const Titles& titles) const {
    const FolderEvents events(phone_.onDisk(kStateFolder));
    return soon([&] { return phone_.strings(kLockedAlbums) == titles; });
  }

 private:
  static std::string wordsOf(const std::vector<device::AssetRow>& assets) {
    std::string words;
    for (const auto& asset : assets) {
      const int minute = static_cast<int>(asset.creationDate / 60);
      if (minute > 0)
        words += (words.empty() ? "" : " ") + std::to_string(minute) + (asset.isHidden ? "*" : "");
    }
    return words;
  }

  TemporaryFolder folder_;

 protected:
  device::Device phone_{folder_.path() / "phone"};
  std::optional<device::App> springBoard_;
  const device::User me_ = device::User::here();
  AutoreleasePool pool_;
};

}  // namespace velvault12
