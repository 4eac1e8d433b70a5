#pragma once

#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <chrono>
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
#include "tests/temporary_folder.hpp"

namespace velvault12 {

// Foundation's own count of living objects.
extern "C" {
ObjcBool GSDebugAllocationActive(ObjcBool active);
int GSDebugAllocationCount(Class type);
const char* GSDebugAllocationList(ObjcBool sinceLastTime);
}
/// How many objects of each class are alive, as a text.
inline std::string alive() {
  const AutoreleasePool turn;
  return GSDebugAllocationList(0);
}

/// Entries without an object are left out, as a sender would that has none. Autoreleased.
inline NSMutableDictionary dictionaryOf(
    std::initializer_list<std::pair<std::string_view, Object>> entries = {}) {
  auto dictionary = makeObject<NSMutableDictionary>();
  for (const auto& [key, object] : entries) dictionary->set(key, object);
  return std::move(dictionary).autorelease();
}

/// Installs one hook of the test's own.
inline void installHook(const HookRow& row) { installHooks({&row, 1}); }

/// Makes each change to a folder's files an event of the main thread's run loop.
class FolderEvents {
 public:
  explicit FolderEvents(const std::filesystem::path& folder) {
    inotify_add_watch(descriptor_, folder.c_str(), IN_MOVED_TO | IN_CREATE | IN_CLOSE_WRITE | IN_DELETE);
  }
  ~FolderEvents() {
    watch_.reset();
    close(descriptor_);
  }
  FolderEvents(const FolderEvents&) = delete;
  FolderEvents& operator=(const FolderEvents&) = delete;

 private:
  void drain() const {
    char events[4096];
    while (read(descriptor_, events, sizeof events) > 0) continue;
  }

  int descriptor_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  std::optional<device::Watch> watch_{std::in_place, descriptor_, [this] { drain(); }};
};

/// Keeps the photo library from making changes, for as long as it lives.
class HeldLibrary {
 public:
  HeldLibrary() {
    const auto wait = [gate = gate_](bool, Object) { gate->wait(); };
    PHPhotoLibrary::sharedPhotoLibrary().performChanges(block<void()>([] {}),
                                                        block<void(bool, Object)>(wait));
  }
  ~HeldLibrary() { gate_->count_down(); }
  HeldLibrary(const HeldLibrary&) = delete;
  HeldLibrary& operator=(const HeldLibrary&) = delete;

 private:
  std::shared_ptr<std::latch> gate_ = std::make_shared<std::latch>(1);
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

  /// Makes this process that app, which does not start.
  void become(std::string_view bundleIdentifier) const {
    device::become({phone_.folder(), std::string(bundleIdentifier)});
  }

  void write(std::string_view phonePath, std::string_view bytes) const {
    const std::filesystem::path path = phone_.onDisk(phonePath);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
  }
  /// A property list file that holds an array of strings.
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
      if (album.title != title) continue;
      for (const auto& asset : library.assetsInAlbum(album.identifier)) all.push_back(asset);
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
  /// Lets what has reached this process by now be handled: one turn of its run loop handles all that is
  /// ready.
  static void turn() {
    bool isOver = false;
    runOnMainQueue([&isOver] { isOver = true; });
    ASSERT_TRUE(soon([&isOver] { return isOver; }));
  }
  void tap(std::initializer_list<std::string_view> texts) const {
    for (const std::string_view text : texts) me_.tap(text);
  }
  /// Lets everything that is on its way arrive: a message to SpringBoard, where the test runs one, and back.
  void settle() const {
    if (springBoard_) springBoard_->user().screen();
    turn();
  }
  /// Has the settings read again.
  void reload(const Preferences& preferences) const {
    phone_.writePreferences(preferences);
    phone_.post(kReload);
    settle();
  }
  /// Waits until the photo library has made the changes that it has been asked for by now, and those that
  /// these bring about.
  static void settleLibrary() {
    for (int round = 0; round < 2; ++round) {
      bool isOver = false;
      const auto end = [&isOver](bool, Object) { runOnMainQueue([&isOver] { isOver = true; }); };
      PHPhotoLibrary::sharedPhotoLibrary().performChanges(block<void()>([] {}),
                                                          block<void(bool, Object)>(end));
      ASSERT_TRUE(soon([&isOver] { return isOver; }));
    }
  }
  bool soonLocked(const Titles& titles) const {
    const FolderEvents events(phone_.onDisk(kStateFolder));
    return soon([&] { return phone_.strings(kLockedAlbums) == titles; });
  }

 private:
  TemporaryFolder folder_;

 protected:
  device::Device phone_{folder_.path() / "phone"};
  std::optional<device::App> springBoard_;
  /// Who uses the app that this process is.
  const device::User me_ = device::User::here();
  AutoreleasePool pool_;
};

}  // namespace velvault12
