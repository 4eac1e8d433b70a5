#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "device/demo/chapters.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

constexpr std::string_view kCaptureAlbum = "/var/mobile/Library/velvault/album.tct";
/// The name of the button's image, which is what it says to a user.
constexpr std::string_view kAlbumButton = "album";
constexpr std::string_view kParty = "Party";

bool isVideo(const AssetRow& asset) { return asset.mediaType == MediaType::video; }

std::string captionIs(const Phone& phone, std::string_view title) {
  phone.in(kCamera).waitToSee(title);
  return "The album button reads \"" + std::string(title) + "\"";
}

void waitForPhotosInParty(const Phone& phone, std::size_t inParty, std::size_t inRoll) {
  phone.waitUntil(
      std::to_string(inParty) + " photos in the album, " + std::to_string(inRoll) + " outside",
      [&] { return phone.inAlbum(kParty).size() == inParty && phone.inCameraRoll().size() == inRoll; });
}

void chooseAndCapture(Story& story, Phone& phone) {
  const std::size_t before = phone.inCameraRoll().size();
  story.chapter("Captures that go straight into an album");
  story.step("You open the Camera.", [&] {
    phone.open(kCamera).waitToSee(kAlbumButton);
    return captionIs(phone, "Camera Roll") + ".";
  });
  const User& camera = phone.in(kCamera);
  story.step("You tap the album button.", [&] {
    camera.tap(kAlbumButton);
    expect(camera.alert().buttons.size() == 6, "three albums, and what to do without one");
    return describe(camera.alert());
  });
  story.step("You choose \"- Create new album -\" and type \"Party\".", [&] {
    camera.tap("- Create new album -");
    camera.alert().type(kParty).tap("Create");
    const std::string caption = captionIs(phone, kParty);
    const std::string saved = phone.waitForFile(kCaptureAlbum, {std::string(kParty)});
    expect(phone.inAlbum(kParty).empty(), "no album yet");
    return caption + ": " + saved + ".";
  });
  story.step("You take a picture, and another.", [&] {
    for (const std::size_t taken : {1, 2}) {
      camera.tap("Take Picture");
      waitForPhotosInParty(phone, taken, before);
    }
    return "The new album \"Party\" holds both. The camera roll holds what it held before.";
  });
  story.step("You film.", [&] {
    camera.tap("Video");
    camera.tap("Record Video");
    // The roll has the film more, and one photo less.
    waitForPhotosInParty(phone, 3, before);
    expect(std::ranges::none_of(phone.inAlbum(kParty), isVideo), "no film in the album");
    expect(std::ranges::count_if(phone.inCameraRoll(), isVideo) == 1, "the film is in the camera roll");
    return "The film stays in the camera roll. The newest photo there was moved, which was one of "
           "\"Recipes\".";
  });
}

void startAgain(Story& story, Phone& phone) {
  story.chapter("What the Camera remembers");
  story.step("You start the Camera again.", [&] {
    phone.open(kCamera);
    return captionIs(phone, "Camera Roll") + ": it does not remember by default.";
  });
  story.step("In the settings you have it remember, and start it once more.", [&] {
    phone.changeSettings({{"rememberDefault", true}});
    phone.open(kCamera);
    return captionIs(phone, kParty) + ".";
  });
}

void captureWhileAnotherAppReads(Story& story, Phone& phone) {
  const std::size_t before = phone.inCameraRoll().size();
  story.chapter("While another app reads the library");
  phone.compare({{kCamera, "Camera"}, {kGallery, "Another app"}});
  story.step("You take a picture, to be copied, while another app looks again and again.", [&] {
    phone.changeSettings({{"rememberDefault", true}, {"pickerMovePhotos", false}});
    const User& gallery = phone.open(kGallery);
    phone.in(kCamera).tap("Take Picture");
    phone.waitUntil("the other app finds the photo in the album", [&] {
      gallery.tap("Refresh");
      return gallery.sees("fetched Party: 4 photos");
    });
    const std::string roll = "Camera Roll: " + std::to_string(before + 1) + " photos";
    for (const std::string_view row :
         {std::string_view(roll), std::string_view("fetched Recipes: 3 photos")}) {
      expect(gallery.sees(row), row);
    }
    return "It finds all four photos of \"Party\", the moved ones as well. Only the copied one is in the "
           "roll too.";
  });
  phone.changeSettings({});
  phone.compare({});
}

}  // namespace

void tellCamera(Story& story, Phone& phone) {
  chooseAndCapture(story, phone);
  startAgain(story, phone);
  captureWhileAnotherAppReads(story, phone);
}

}  // namespace device
