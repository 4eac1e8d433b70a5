#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "device/demo/story.hpp"
#include "device/device.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

constexpr std::string_view kStateFolder = "/var/mobile/Library/velvault";
constexpr std::string_view kLockedAlbums = "/var/mobile/Library/velvault/lockedAlbums.plist";
constexpr std::string_view kPassword = "/var/mobile/Library/velvault/settings.tct";
constexpr std::string_view kAnswer = "/var/mobile/Library/velvault/authenticate.plist";
constexpr std::string_view kAnswerNotification = "com.qdx.VVAuthenticate";
/// What the screen calls a photo of an open album.
constexpr std::string_view kPhotoView = "PUPhotosGridCell";
/// What the phone's haptic engine is told.
constexpr int kTick = 1001;
constexpr std::string_view kReloadNotification = "com.qdx.velvault12prefs/reloadPrefs";

std::string joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + text;
  return "[" + all + "]";
}

void fillLibrary(PhotoDatabase library) {
  constexpr double kDay = 86'400;
  constexpr std::uint32_t kColors[] = {0x3A86FF, 0x8338EC, 0xFF006E, 0xFB5607, 0xFFBE0B, 0x2A9D8F};
  double date = 1'700'000'000;
  std::size_t next = 0;
  for (const std::string_view title : {"Holidays", "Pets", "Recipes"}) {
    const std::int64_t album = library.addAlbum(title);
    for (int i = 0; i < 3; ++i) {
      const std::int64_t asset =
          library.addAsset({.creationDate = date += kDay, .color = kColors[next++ % 6]});
      library.addToAlbum(asset, album);
    }
  }
}

/// The phone of the story, and who holds it.
class Phone {
 public:
  Phone(const std::filesystem::path& folder, const std::filesystem::path& library,
        const std::filesystem::path& filter, const std::filesystem::path& images)
      : device_(folder) {
    device_.install(library, filter, images);
    fillLibrary(device_.photoLibrary());
  }

  const Device& device() const { return device_; }
  const User& photos() const { return photos_.value().user(); }
  const User& owner() const { return springBoard_.value().user(); }

  void boot() { springBoard_.emplace(device_.launch(kSpringBoard)); }
  void crashSpringBoard() { springBoard_.value().kill(); }
  void openPhotos() { photos_.emplace(device_.launch(kPhotos)); }

  std::string lockedAlbums() const {
    const auto titles = device_.strings(kLockedAlbums);
    return titles ? joined(*titles) : "missing";
  }
  /// SpringBoard writes the file in its own time.
  std::string lockedOnceItIs(const std::vector<std::string>& titles) const {
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (device_.strings(kLockedAlbums) != titles) {
      expect(std::chrono::steady_clock::now() < deadline, "lockedAlbums.plist holds " + joined(titles));
      photos().screen();  // Lets the app go on.
    }
    return "lockedAlbums.plist holds " + lockedAlbums();
  }
  /// As the settings pane does; every app has read them when it returns.
  void changeSettings(const std::map<std::string, Device::Preference>& preferences) const {
    device_.writePreferences(preferences);
    device_.post(kReloadNotification);
    // An app that answers has been through what came before.
    owner().screen();
    photos().screen();
  }
  bool hasFile(std::string_view path) const { return std::filesystem::exists(device_.onDisk(path)); }

 private:
  Device device_;
  std::optional<App> springBoard_;
  std::optional<App> photos_;
};

bool isAlbumOpen(const User& photos) { return photos.screen().find(kPhotoView) != std::string::npos; }

std::string showsOpenAlbum(const User& photos, std::string_view title) {
  // Its title is on the list too; the other albums are on the list alone.
  photos.waitUntilGone(title == "Recipes" ? "Pets" : "Recipes");
  expect(isAlbumOpen(photos), "the album's photos are on screen");
  return "\"" + std::string(title) + "\" is open: its photos are on screen";
}

std::string staysClosed(const User& photos) {
  expect(!isAlbumOpen(photos), "no photo is on screen");
  return "no photo is on screen";
}

std::string asksForOwner(const Phone& phone) {
  phone.owner().waitForOwnerRequest();
  expect(!isAlbumOpen(phone.photos()), "nothing opens before the owner answers");
  return "the phone asks: \"" + phone.owner().ownerRequest() + "\"";
}

/// Answers whether there is a phone to go on with.
bool bootAndLook(Story& story, Phone& phone) {
  story.chapter("A phone with three albums");
  story.step("The phone boots.", [&] {
    phone.boot();
    expect(phone.hasFile(kStateFolder), "SpringBoard makes its folder");
    return "SpringBoard runs and has made " + std::string(kStateFolder);
  });
  story.step("You open Photos and all of its albums.", [&] {
    phone.openPhotos();
    phone.photos().tap("See All");
    for (const std::string_view title : {"Holidays", "Pets", "Recipes"}) phone.photos().waitToSee(title);
    return "on screen:\n" + phone.photos().screen();
  });
  return story.failures() == 0;
}

void lockAndOpen(Story& story, Phone& phone) {
  const User& photos = phone.photos();
  story.chapter("Locking an album");
  story.step("You hold your finger on \"Holidays\".", [&] {
    photos.longPress("Holidays");
    expect(!photos.hasAlert(), "no dialog");
    expect(photos.feltFeedback() == std::vector<int>{kTick}, "one tick");
    expect(phone.owner().ownerRequest().empty(), "the owner is not asked");
    return phone.lockedOnceItIs({"Holidays"}) + "; the phone gave a tick, and asked nothing";
  });
  story.step("You tap it.", [&] {
    photos.tap("Holidays");
    return asksForOwner(phone);
  });
  story.step("It was not you: the request is cancelled.", [&] {
    NotificationCounter answered(phone.device(), kAnswerNotification);
    phone.owner().answerOwnerRequest(OwnerAnswer::cancel);
    // Time enough for an answer that must not come.
    phone.owner().screen();
    const std::string closed = staysClosed(photos);
    expect(!phone.hasFile(kAnswer), "no answer is written");
    expect(answered.count() == 0, "no notification is posted");
    return closed + ", no answer was written, no notification posted";
  });
  story.step("You tap it again, and put your own finger on the sensor.", [&] {
    photos.tap("Holidays");
    asksForOwner(phone);
    phone.owner().answerOwnerRequest(OwnerAnswer::success);
    return showsOpenAlbum(photos, "Holidays");
  });
  story.step("You go back, and tap it once more.", [&] {
    photos.back();
    photos.tap("Holidays");
    return asksForOwner(phone) + " again: it had opened once, no more";
  });
  story.step("You leave it at that. \"Pets\" was never locked: you tap it.", [&] {
    phone.owner().answerOwnerRequest(OwnerAnswer::cancel);
    photos.tap("Pets");
    std::string open = showsOpenAlbum(photos, "Pets");
    photos.back();
    return open;
  });
}

void usePassword(Story& story, Phone& phone) {
  const User& photos = phone.photos();
  story.chapter("A password instead of Touch ID");
  story.step("In the settings you choose a password, \"open sesame\".", [&] {
    std::ofstream(phone.device().onDisk(kPassword)) << "open sesame";
    phone.changeSettings({{"passOption", 1}});
    return std::string("every app has read the settings again");
  });
  story.step("You tap \"Holidays\".", [&] {
    photos.tap("Holidays");
    photos.waitToSee("Unlock album");
    const AlertText alert = photos.alert();
    expect(alert.message == "Enter password to unlock album.", "the dialog's message");
    expect(alert.fields == std::vector<std::string>{"Password (secure)"}, "one field that hides its text");
    expect(alert.buttons == std::vector<std::string>{"OK", "Cancel"}, "two buttons");
    return alert.title + " / " + alert.message + " / " + joined(alert.fields) + " / " + joined(alert.buttons);
  });
  story.step("You type \"open barley\" and tap OK.", [&] {
    photos.alert().type("open barley").tap("OK");
    photos.waitToSee("Incorrect password");
    staysClosed(photos);
    return std::string("\"Incorrect password\", and nothing opens");
  });
  story.step("You tap it again and type \"open sesame\".", [&] {
    photos.tap("Holidays");
    photos.waitToSee("Unlock album");
    photos.alert().type("open sesame").tap("OK");
    return showsOpenAlbum(photos, "Holidays");
  });
  story.step("You press the home button with the album open, and come back to Photos.", [&] {
    photos.leaveApp();
    photos.returnToApp();
    photos.waitToSee("See All");
    return staysClosed(photos) + ": you are back on the Albums tab";
  });
}

void removeLock(Story& story, Phone& phone) {
  const User& photos = phone.photos();
  story.chapter("Removing the lock");
  story.step("Back to Touch ID. You hold your finger on \"Holidays\".", [&] {
    phone.changeSettings({});
    photos.tap("See All");
    photos.longPress("Holidays");
    return asksForOwner(phone) + ", and it is still locked: " + phone.lockedAlbums();
  });
  story.step("You put your finger on the sensor.", [&] {
    phone.owner().answerOwnerRequest(OwnerAnswer::success);
    return phone.lockedOnceItIs({});
  });
  story.step("You tap it.", [&] {
    photos.tap("Holidays");
    std::string open = showsOpenAlbum(photos, "Holidays");
    photos.back();
    return open;
  });
}

void withoutSpringBoard(Story& story, Phone& phone) {
  const User& photos = phone.photos();
  story.chapter("When SpringBoard is gone");
  story.step("SpringBoard crashes, and just then you hold your finger on \"Pets\".", [&] {
    phone.crashSpringBoard();
    const auto start = std::chrono::steady_clock::now();
    photos.longPress("Pets");
    const auto taken = std::chrono::steady_clock::now() - start;
    expect(taken < std::chrono::seconds(4), "nothing waits");
    expect(phone.lockedAlbums() == "[]", "nobody writes the file");
    return std::string(
        "nothing waits and nothing breaks; the file stays as it was, since nobody is there to write it");
  });
  story.step("It is back at once, as on a phone. You open \"Recipes\".", [&] {
    phone.boot();
    photos.tap("Recipes");
    return showsOpenAlbum(photos, "Recipes");
  });
}

int play(const std::filesystem::path& folder) {
  Phone phone(folder, VELVAULT12_LIBRARY, VELVAULT12_FILTER, VELVAULT12_IMAGES);
  Story story;
  if (bootAndLook(story, phone)) {
    lockAndOpen(story, phone);
    usePassword(story, phone);
    removeLock(story, phone);
    withoutSpringBoard(story, phone);
  }
  std::printf("\n%d of %d steps went as told. The phone's disk is left in %s.\n",
              story.steps() - story.failures(), story.steps(), folder.c_str());
  return story.failures() == 0 ? 0 : 1;
}

}  // namespace
}  // namespace device

int main(int count, char** arguments) {
  try {
    return device::play(count > 1 ? arguments[1] : DEMO_FOLDER);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "The phone did not start: %s\n", error.what());
    return 1;
  }
}
