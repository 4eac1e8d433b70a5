#include "device/demo/photo_chapters.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "device/system/process.hpp"

namespace device {
namespace {

constexpr std::string_view kLockedAlbums = "/var/mobile/Library/velvault/lockedAlbums.plist";
// What the phone calls what has these images: the padlock, and the buttons of the first tile.
constexpr std::string_view kPadlock = "whitelock";
constexpr std::string_view kLockButton = "greenlock";
constexpr std::string_view kMoveButton = "move";

std::size_t hiddenIn(const Phone& phone, std::string_view title) {
  const std::vector<AssetRow> photos = phone.inAlbum(title);
  return static_cast<std::size_t>(std::ranges::count(photos, true, &AssetRow::isHidden));
}

std::string counted(std::size_t count, std::string_view what) {
  return std::to_string(count) + " " + std::string(what);
}

void letOwnerIn(const Phone& phone) {
  phone.in(kSpringBoard).waitForOwnerRequest();
  phone.in(kSpringBoard).answerOwnerRequest(OwnerAnswer::success);
}

std::string textOf(const AlertText& sheet) {
  return sheet.title + " / " + sheet.message + " / " + joined(sheet.buttons);
}

void lookAtTiles(Story& story, Phone& phone) {
  story.chapter("What a tile tells");
  story.step("You open Photos and all of its albums.", [&] {
    const User& photos = phone.open(kPhotos);
    photos.tap("See All");
    photos.scrollTo("Party");
    photos.scrollTo("4");
    expect(photos.sees("4"), "the tile of \"Party\" counts its hidden photos");
    return "\"Party\" reads 4: " +
           counted(hiddenIn(phone, "Party"), "of its photos are hidden, and count as well");
  });
  story.step("You hold your finger on \"Holidays\".", [&] {
    phone.in(kPhotos).longPress("Holidays");
    phone.in(kPhotos).waitToSee(kPadlock);
    return phone.onceHolds(kLockedAlbums, {"Holidays"}) + ", and a padlock lies over its photos";
  });
}

void editAlbums(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("Buttons on the tiles");
  story.step("You tap Edit.", [&] {
    photos.tap("Edit");
    photos.waitToSee(kLockButton);
    photos.waitToSee(kMoveButton);
    return std::string("each tile has two more buttons, which slide in from the left");
  });
  story.step("You tap the lock button of \"Holidays\", and put your finger on the sensor.", [&] {
    photos.tap(kLockButton);
    letOwnerIn(phone);
    photos.waitUntilGone(kPadlock);
    return phone.onceHolds(kLockedAlbums, {}) + "; the padlock is gone";
  });
  story.step("You tap it again.", [&] {
    photos.waitToSee(kLockButton);
    photos.tap(kLockButton);
    photos.waitToSee(kPadlock);
    return phone.onceHolds(kLockedAlbums, {"Holidays"}) + "; to lock, nobody is asked";
  });
  story.step("You tap its move button. It is locked: the phone asks for you first.", [&] {
    photos.waitToSee(kMoveButton);
    photos.tap(kMoveButton);
    expect(!photos.hasAlert(), "no sheet before the owner has answered");
    letOwnerIn(phone);
    photos.waitToSee("Move Album");
    return textOf(photos.alert());
  });
  story.step("You choose \"Move out of camera roll\".", [&] {
    const std::size_t before = phone.inCameraRoll().size();
    photos.tap("Move out of camera roll");
    photos.waitToSee("Finished moving");
    expect(hiddenIn(phone, "Holidays") == 3, "its photos are hidden");
    expect(phone.inCameraRoll().size() == before - 3, "the camera roll has three photos less");
    expect(photos.sees("3"), "the tile counts them");
    return std::string(
        "\"Finished moving\": the camera roll has lost its three photos, its tile still counts them");
  });
  story.step("You tap Done.", [&] {
    photos.tap("Done");
    photos.waitUntilGone(kLockButton);
    return std::string("the buttons are gone");
  });
}

void addToAlbum(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("Photos into another album");
  story.step("In \"Recipes\" you select two photos and tap Add To.", [&] {
    photos.tap("Recipes");
    photos.tap("Select");
    for (const AssetRow& photo : phone.inAlbum("Recipes")) {
      if (!photo.isHidden) photos.tap(wordsFor(photo));
    }
    photos.tap("Add To");
    photos.waitToSee("Add 2 Photos to an album");
    return std::string("\"Add 2 Photos to an album\"");
  });
  story.step("You choose \"Pets\".", [&] {
    photos.tap("Pets");
    return textOf(photos.alert());
  });
  story.step("You choose Move.", [&] {
    photos.tap("Move");
    phone.waitUntil("both are in \"Pets\" alone, and hidden", [&] {
      return phone.inAlbum("Pets").size() == 5 && hiddenIn(phone, "Pets") == 2 &&
             phone.inAlbum("Recipes").size() == 1;
    });
    return std::string("both have left \"Recipes\" and the camera roll, and are in \"Pets\"");
  });
}

void deleteAlbum(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("Deleting an album");
  story.step("You go back and delete \"Party\".", [&] {
    const std::size_t before = phone.inCameraRoll().size();
    expect(hiddenIn(phone, "Party") == 3 && hiddenIn(phone, "Recipes") == 1,
           "one of three is in \"Recipes\" too");
    photos.back();
    photos.tap("Edit");
    photos.tap("Delete Party");
    photos.waitUntilGone("Party");
    phone.waitUntil("the other two are back", [&] { return phone.inCameraRoll().size() == before + 2; });
    photos.tap("Done");
    photos.waitUntilGone(kLockButton);
    return std::string(
        "of its three hidden photos, two were nowhere else: they are back in the camera roll. The third is\n"
        "in \"Recipes\" as well, and stays hidden");
  });
}

}  // namespace

void tellPhotos(Story& story, Phone& phone) {
  lookAtTiles(story, phone);
  editAlbums(story, phone);
  addToAlbum(story, phone);
  deleteAlbum(story, phone);
}

}  // namespace device
