#include "device/demo/album_lock_chapters.hpp"

#include <chrono>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "device/system/process.hpp"

namespace device {
namespace {

constexpr std::string_view kLockedAlbums = "/var/mobile/Library/velvault/lockedAlbums.plist";
constexpr std::string_view kAnswer = "/var/mobile/Library/velvault/authenticate.plist";
constexpr std::string_view kAnswerNotification = "com.qdx.VVAuthenticate";
constexpr std::string_view kPassword = "/var/mobile/Library/velvault/settings.tct";
/// What the screen calls a photo of an open album.
constexpr std::string_view kPhotoView = "PUPhotosGridCell";
/// What the phone's haptic engine is told.
constexpr int kTick = 1001;

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
  phone.in(kSpringBoard).waitForOwnerRequest();
  expect(!isAlbumOpen(phone.in(kPhotos)), "nothing opens before the owner answers");
  return "the phone asks: \"" + phone.in(kSpringBoard).ownerRequest() + "\"";
}

void lockAndOpen(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("Locking an album");
  story.step("You hold your finger on \"Holidays\".", [&] {
    photos.longPress("Holidays");
    expect(!photos.hasAlert(), "no dialog");
    expect(photos.feltFeedback() == std::vector<int>{kTick}, "one tick");
    expect(phone.in(kSpringBoard).ownerRequest().empty(), "the owner is not asked");
    return phone.onceHolds(kLockedAlbums, {"Holidays"}) + "; the phone gave a tick, and asked nothing";
  });
  story.step("You tap it.", [&] {
    photos.tap("Holidays");
    return asksForOwner(phone);
  });
  story.step("It was not you: the request is cancelled.", [&] {
    NotificationCounter answered(phone.device(), kAnswerNotification);
    phone.in(kSpringBoard).answerOwnerRequest(OwnerAnswer::cancel);
    // Time enough for an answer that must not come.
    phone.in(kSpringBoard).screen();
    const std::string closed = staysClosed(photos);
    expect(!phone.hasFile(kAnswer), "no answer is written");
    expect(answered.count() == 0, "no notification is posted");
    return closed + ", no answer was written, no notification posted";
  });
  story.step("You tap it again, and put your own finger on the sensor.", [&] {
    photos.tap("Holidays");
    asksForOwner(phone);
    phone.in(kSpringBoard).answerOwnerRequest(OwnerAnswer::success);
    return showsOpenAlbum(photos, "Holidays");
  });
  story.step("You go back, and tap it once more.", [&] {
    photos.back();
    photos.tap("Holidays");
    return asksForOwner(phone) + " again: it had opened once, no more";
  });
  story.step("You leave it at that. \"Pets\" was never locked: you tap it.", [&] {
    phone.in(kSpringBoard).answerOwnerRequest(OwnerAnswer::cancel);
    photos.tap("Pets");
    std::string open = showsOpenAlbum(photos, "Pets");
    photos.back();
    return open;
  });
}

void usePassword(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
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
  const User& photos = phone.in(kPhotos);
  story.chapter("Removing the lock");
  story.step("Back to Touch ID. You hold your finger on \"Holidays\".", [&] {
    phone.changeSettings({});
    photos.tap("See All");
    photos.longPress("Holidays");
    return asksForOwner(phone) + ", and it is still locked: " + phone.onceHolds(kLockedAlbums, {"Holidays"});
  });
  story.step("You put your finger on the sensor.", [&] {
    phone.in(kSpringBoard).answerOwnerRequest(OwnerAnswer::success);
    return phone.onceHolds(kLockedAlbums, {});
  });
  story.step("You tap it.", [&] {
    photos.tap("Holidays");
    std::string open = showsOpenAlbum(photos, "Holidays");
    photos.back();
    return open;
  });
}

void withoutSpringBoard(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("When SpringBoard is gone");
  story.step("SpringBoard crashes, and just then you hold your finger on \"Pets\".", [&] {
    phone.crash(kSpringBoard);
    const auto start = std::chrono::steady_clock::now();
    photos.longPress("Pets");
    const auto taken = std::chrono::steady_clock::now() - start;
    expect(taken < std::chrono::seconds(4), "nothing waits");
    const auto locked = phone.device().strings(kLockedAlbums);
    expect(locked && locked->empty(), "nobody writes the file");
    return std::string(
        "nothing waits and nothing breaks; the file stays as it was, since nobody is there to write it");
  });
  story.step("It is back at once, as on a phone. You open \"Recipes\".", [&] {
    phone.open(kSpringBoard);
    photos.tap("Recipes");
    return showsOpenAlbum(photos, "Recipes");
  });
}

}  // namespace

void tellAlbumLock(Story& story, Phone& phone) {
  lockAndOpen(story, phone);
  usePassword(story, phone);
  removeLock(story, phone);
  withoutSpringBoard(story, phone);
}

}  // namespace device
