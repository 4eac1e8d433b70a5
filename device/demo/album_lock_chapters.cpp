#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "device/demo/chapters.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

constexpr std::string_view kReply = "/var/mobile/Library/velvault/authenticate.plist";
constexpr std::string_view kReplyNotification = "com.qdx.VVAuthenticate";
constexpr std::string_view kPassword = "/var/mobile/Library/velvault/settings.tct";
constexpr std::string_view kWrong = "Incorrect password";
/// A photo of an open album.
constexpr std::string_view kPhotoView = "PUPhotosGridCell";
/// The haptic feedback of one tick.
constexpr int kTick = 1001;

bool isAlbumOpen(const User& photos) { return photos.screen().find(kPhotoView) != std::string::npos; }

std::string showsOpenAlbum(const User& photos, std::string_view title) {
  // Its title is on the list too; the other albums are on the list alone.
  photos.waitUntilGone(title == "Recipes" ? "Pets" : "Recipes");
  expect(isAlbumOpen(photos), "the album's photos are on screen");
  return "\"" + std::string(title) + "\" is open: its photos are on screen.";
}

std::string asksForOwner(const Phone& phone, std::string_view lead = "The phone asks") {
  const std::string request = phone.waitForOwnerRequest();
  expect(!isAlbumOpen(phone.in(kPhotos)), "nothing opens before the owner replies");
  return std::string(lead) + ": \"" + request + "\"";
}

void cancelOwnerRequest(const Phone& phone) {
  phone.in(kSpringBoard).answerOwnerRequest(OwnerAnswer::cancel);
  // SpringBoard has handled it when it replies to this.
  phone.in(kSpringBoard).screen();
}

void lockAndOpen(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("Locking an album");
  story.step("You hold your finger on \"Holidays\".", [&] {
    photos.longPress("Holidays");
    photos.waitToSee(kPadlock);
    expect(!photos.hasAlert(), "no dialog");
    expect(photos.feltFeedback() == std::vector<int>{kTick}, "one tick");
    expect(phone.in(kSpringBoard).ownerRequest().empty(), "the owner is not asked");
    return "A padlock lies over its photos: " + phone.waitForFile(kLockedAlbums, {"Holidays"}) +
           ". One haptic tick, no question.";
  });
  story.step("You tap it.", [&] {
    photos.tap("Holidays");
    return asksForOwner(phone);
  });
  story.step("It was not you: you cancel.", [&] {
    NotificationCounter replied(phone.device(), kReplyNotification);
    cancelOwnerRequest(phone);
    expect(!isAlbumOpen(photos), "no photo is on screen");
    expect(!phone.hasFile(kReply), "no reply is written");
    expect(replied.count() == 0, "no notification is posted");
    return "It stays closed. SpringBoard wrote no reply and posted no notification.";
  });
  story.step("You tap it again, and the phone recognizes you.", [&] {
    photos.tap("Holidays");
    phone.authenticate();
    return showsOpenAlbum(photos, "Holidays");
  });
  story.step("You go back and tap it once more.", [&] {
    photos.back();
    photos.tap("Holidays");
    return asksForOwner(phone, "It opened once. The phone asks again");
  });
  story.step("You cancel. \"Pets\" was never locked: you tap it.", [&] {
    cancelOwnerRequest(phone);
    photos.tap("Pets");
    return showsOpenAlbum(photos, "Pets");
  });
}

void usePassword(Story& story, Phone& phone) {
  story.chapter("A password of its own");
  story.step("In the settings you choose a password, \"open sesame\".", [&] {
    phone.in(kPhotos).back();
    std::ofstream(phone.device().onDisk(kPassword)) << "open sesame";
    phone.changeSettings({{"passOption", 1}});
    return "passOption is 1. Every app has reloaded its settings.";
  });
  story.step("You tap \"Holidays\".", [&] {
    const User& photos = phone.in(kPhotos);
    photos.tap("Holidays");
    photos.waitToSee("Unlock album");
    std::string alert = describe(photos.alert());
    const std::string_view expected =
        "Unlock album: Enter password to unlock album. [Password (secure), OK, Cancel]";
    expect(alert == expected, expected);
    return alert;
  });
  const User& photos = phone.in(kPhotos);
  story.step("You type \"open barley\" and tap OK.", [&] {
    photos.type("open barley");
    photos.tapToSee("OK", kWrong);
    expect(!isAlbumOpen(photos), "no photo is on screen");
    return "\"" + std::string(kWrong) + "\": it stays closed.";
  });
  story.step("You tap it again and type \"open sesame\".", [&] {
    photos.waitUntilGone(kWrong);
    photos.tap("Holidays");
    photos.waitToSee("Unlock album");
    photos.alert().type("open sesame").tap("OK");
    return showsOpenAlbum(photos, "Holidays");
  });
  story.step("You go to the home screen with the album open, and return to Photos.", [&] {
    photos.leaveApp();
    photos.returnToApp();
    photos.waitToSee("See All");
    expect(!isAlbumOpen(photos), "no photo is on screen");
    return "The album is closed: you are back on the Albums tab.";
  });
}

void removeLock(Story& story, Phone& phone) {
  story.chapter("Removing the lock");
  story.step("You switch the password off again, and hold your finger on \"Holidays\".", [&] {
    phone.changeSettings({});
    phone.in(kPhotos).tap("See All");
    phone.in(kPhotos).longPress("Holidays");
    return asksForOwner(phone) + " It is still locked: " + phone.waitForFile(kLockedAlbums, {"Holidays"}) +
           ".";
  });
  const User& photos = phone.in(kPhotos);
  story.step("The phone recognizes you.", [&] {
    phone.authenticate();
    photos.waitUntilGone(kPadlock);
    return "The padlock is gone: " + phone.waitForFile(kLockedAlbums, {}) + ".";
  });
  story.step("You tap it.", [&] {
    photos.tap("Holidays");
    return showsOpenAlbum(photos, "Holidays");
  });
}

void withoutSpringBoard(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("Without SpringBoard");
  story.step("SpringBoard crashes, and just then you hold your finger on \"Pets\".", [&] {
    photos.back();
    phone.crash(kSpringBoard);
    photos.longPress("Pets");
    photos.waitToSee(kPadlock);
    const auto locked = phone.device().strings(kLockedAlbums);
    expect(locked && locked->empty(), "the file stays as it was");
    return "Photos goes on with \"Pets\" locked. lockedAlbums.plist is as it was: only SpringBoard writes "
           "it.";
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
