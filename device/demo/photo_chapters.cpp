#include <string>
#include <string_view>
#include <vector>

#include "device/demo/chapters.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

// The names of the images of a tile's buttons, which are what they say to a user.
constexpr std::string_view kLockButton = "greenlock";
constexpr std::string_view kMoveButton = "move";
constexpr std::string_view kMoved = "Finished moving";

void lookAtTiles(Story& story, Phone& phone) {
  story.chapter("What a tile shows");
  story.step("You open Photos and all of its albums.", [&] {
    const User& photos = phone.open(kPhotos);
    photos.tap("See All");
    photos.scrollTo("Party");
    photos.scrollTo("4");
    expect(photos.sees("4"), "the tile of \"Party\" counts its hidden photos");
    expect(phone.hiddenIn("Party") == 3, "three of its photos are hidden");
    return "\"Party\" reads 4: its three hidden photos count as well.";
  });
  story.step("You hold your finger on \"Holidays\".", [&] {
    phone.in(kPhotos).longPress("Holidays");
    phone.in(kPhotos).waitToSee(kPadlock);
    return "A padlock lies over its photos: " + phone.waitForFile(kLockedAlbums, {"Holidays"}) + ".";
  });
}

void editAlbums(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("Buttons on the tiles");
  story.step("You tap Edit.", [&] {
    photos.tap("Edit");
    photos.waitToSee(kLockButton);
    photos.waitToSee(kMoveButton);
    return "Two buttons slide in from the left on the tile of each album.";
  });
  story.step("You tap the lock button of \"Holidays\", and the phone recognizes you.", [&] {
    photos.tap(kLockButton);
    phone.authenticate();
    photos.waitUntilGone(kPadlock);
    return "The padlock is gone: " + phone.waitForFile(kLockedAlbums, {}) + ".";
  });
  story.step("You tap it again.", [&] {
    photos.waitToSee(kLockButton);
    photos.tap(kLockButton);
    photos.waitToSee(kPadlock);
    return "It is locked without a question: " + phone.waitForFile(kLockedAlbums, {"Holidays"}) + ".";
  });
  story.step("You tap its move button. It is locked, so the phone has to recognize you first.", [&] {
    photos.waitToSee(kMoveButton);
    photos.tap(kMoveButton);
    phone.waitForOwnerRequest();
    expect(!photos.hasAlert(), "no sheet before the owner has replied");
    phone.authenticate();
    photos.waitToSee("Move Album");
    return describe(photos.alert());
  });
  story.step("You choose \"Move out of camera roll\".", [&] {
    const std::size_t before = phone.inCameraRoll().size();
    photos.tapToSee("Move out of camera roll", kMoved);
    expect(phone.hiddenIn("Holidays") == 3, "its photos are hidden");
    expect(phone.inCameraRoll().size() == before - 3, "the camera roll has three photos less");
    expect(photos.sees("3"), "the tile counts them");
    return "\"" + std::string(kMoved) +
           "\": its three photos left the camera roll. Its tile still counts them.";
  });
  story.step("You tap Done.", [&] {
    photos.tap("Done");
    photos.waitUntilGone(kLockButton);
    photos.waitUntilGone(kMoved);
    return "The buttons are gone.";
  });
}

void addToAlbum(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("Photos into another album");
  story.step("In \"Recipes\" you select two photos and tap Add To.", [&] {
    photos.tap("Recipes");
    photos.tap("Select");
    for (const AssetRow& photo : phone.inAlbum("Recipes")) {
      if (!photo.isHidden) photos.tap(describe(photo));
    }
    photos.tap("Add To");
    photos.waitToSee("Add 2 Photos to an album");
    return "A list asks for the album: \"Add 2 Photos to an album\".";
  });
  story.step("You choose \"Pets\".", [&] {
    photos.tap("Pets");
    return describe(photos.alert());
  });
  story.step("You choose Move.", [&] {
    photos.tap("Move");
    phone.waitUntil("both are in \"Pets\" alone, and hidden", [&] {
      return phone.inAlbum("Pets").size() == 5 && phone.hiddenIn("Pets") == 2 &&
             phone.inAlbum("Recipes").size() == 1;
    });
    return "Both are in \"Pets\", and neither in \"Recipes\" nor in the camera roll.";
  });
}

void deleteAlbum(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  story.chapter("Deleting an album");
  story.step("You go back and delete \"Party\".", [&] {
    const std::size_t before = phone.inCameraRoll().size();
    expect(phone.hiddenIn("Party") == 3 && phone.hiddenIn("Recipes") == 1,
           "one of three is in \"Recipes\" too");
    photos.back();
    photos.tap("Edit");
    photos.tap("Delete Party");
    photos.waitUntilGone("Party");
    phone.waitUntil("the other two are back", [&] { return phone.inCameraRoll().size() == before + 2; });
    photos.tap("Done");
    photos.waitUntilGone(kLockButton);
    photos.waitUntilGone(kMoved);
    return "Two of its hidden photos are back in the camera roll. The third is in \"Recipes\" too: it stays "
           "hidden.";
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
