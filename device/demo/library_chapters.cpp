#include <string>
#include <string_view>

#include "device/demo/chapters.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

constexpr std::int64_t kPlaces = 1000000203;

/// Has the app read the library again, and returns its user.
const User& refreshed(const Phone& phone, std::string_view gallery) {
  const User& user = phone.in(gallery);
  user.tap("Refresh");
  return user;
}

std::string onlyShopShows(const Phone& phone, std::string_view row) {
  expect(!refreshed(phone, kGallery).sees(row), "the other app does not show it");
  expect(refreshed(phone, kShopDemo).sees(row), "the demonstration does");
  return "\"" + std::string(row) + "\" is gone from the other app. The demonstration still shows it.";
}

void expectInBoth(const Phone& phone, std::string_view row) {
  for (const std::string_view app : {kGallery, kShopDemo}) expect(refreshed(phone, app).sees(row), row);
}

int padlocksIn(const User& photos) {
  const std::string screen = photos.screen();
  int count = 0;
  for (auto at = screen.find(kPadlock); at != std::string::npos; at = screen.find(kPadlock, at + 1)) ++count;
  return count;
}

/// The Albums tab, shown again.
const User& albumsTab(const Phone& phone) {
  const User& photos = phone.in(kPhotos);
  for (const std::string_view tab : {"Photos", "Albums"}) photos.tap(tab);
  return photos;
}

void openAll(Story& story, Phone& phone) {
  story.chapter("The same library in three apps");
  PhotoDatabase library = phone.device().photoLibrary();
  const std::int64_t north = library.addAlbum("North", library.addFolder("Trips"));
  for (const std::int64_t kind : {kPlaces, std::int64_t{0}}) {
    library.addToAlbum(
        library.addAsset({.creationDate = 1'720'000'000, .smartSubtype = kind, .color = 0x118AB2}), north);
  }
  phone.compare({{kGallery, "Another app"}, {kPhotos, "Photos"}, {kShopDemo, "A shop's demonstration"}});
  story.step(
      "You unlock \"Holidays\" for good, and add a folder \"Trips\" with an album \"North\". You open three "
      "apps.",
      [&] {
        const User& photos = phone.open(kPhotos);
        photos.longPress("Holidays");
        phone.authenticate();
        phone.waitForFile(kLockedAlbums, {});
        for (const std::string_view app : {kGallery, kShopDemo}) phone.open(app);
        albumsTab(phone).waitToSee("Holidays");
        expectInBoth(phone, "Pets: 3 photos");
        for (const std::string_view row : {"North: 2 photos", "Holidays: 3 photos"})
          expect(phone.in(kGallery).sees(row), row);
        expect(!phone.in(kShopDemo).sees("North: 2 photos"), "it is in its folder");
        expect(phone.in(kShopDemo).sees("Holidays: 0 photos"), "they are hidden");
        return "The other app lists \"North\" next to its folder, and the moved photos of \"Holidays\". The "
               "demonstration does not.";
      });
}

void lockOne(Story& story, Phone& phone) {
  story.step("In Photos you hold your finger on \"Pets\".", [&] {
    phone.in(kPhotos).longPress("Pets");
    phone.waitForFile(kLockedAlbums, {"Pets"});
    phone.in(kPhotos).waitToSee(kPadlock);
    const std::string gone = onlyShopShows(phone, "Pets: 3 photos");
    expect(phone.in(kGallery).sees("fetched Pets: nothing"), "its photos are refused");
    return gone + " What fetches it by its type finds its title, and nothing in it.";
  });
  story.step("In the settings you let other apps list locked albums.", [&] {
    phone.changeSettings({{"hideLockedFromApps", false}});
    refreshed(phone, kGallery).waitToSee("Pets: 0 photos");
    return "\"Pets: 0 photos\" in the other app: the album is there, without its photos.";
  });
}

void hideSmartAlbums(Story& story, Phone& phone) {
  story.step("You switch the videos off.", [&] {
    albumsTab(phone).scrollTo("Videos");
    phone.changeSettings({{"showVideos", false}});
    const std::string gone = onlyShopShows(phone, "Videos: 1 photo");
    albumsTab(phone).waitUntilGone("Videos");
    return gone + " Photos has lost them as well.";
  });
  story.step("You switch them on again, and hold your finger on \"Places\".", [&] {
    phone.changeSettings({});
    expectInBoth(phone, "Videos: 1 photo");
    phone.in(kPhotos).longPress("Places");
    phone.waitForFile(kLockedAlbums, {"Pets", "Places"});
    phone.waitUntil("a padlock on each of the two", [&] { return padlocksIn(phone.in(kPhotos)) == 2; });
    const std::string gone = onlyShopShows(phone, "Places: 1 photo");
    expect(!phone.in(kGallery).sees("Places"), "its name is gone as well");
    return gone + " In Photos it is locked.";
  });
}

void hideInFolder(Story& story, Phone& phone) {
  story.step("You switch \"North\" off.", [&] {
    phone.changeSettings({{"albumNameNorth", false}});
    const User& gallery = refreshed(phone, kGallery);
    gallery.waitUntilGone("North: 2 photos");
    expect(gallery.sees("fetched North: nothing"), "its photos are refused");
    return "The other app no longer shows it. The folder stays.";
  });
  story.step("You open the folder in Photos.", [&] {
    const User& photos = phone.in(kPhotos);
    photos.tap("Trips");
    photos.waitUntilGone("See All");
    expect(!photos.sees("North"), "the album is not there");
    return "It is empty: \"North\" is left out there, too.";
  });
}

}  // namespace

void tellLibraryFilter(Story& story, Phone& phone) {
  openAll(story, phone);
  lockOne(story, phone);
  hideSmartAlbums(story, phone);
  hideInFolder(story, phone);
  phone.changeSettings({});
  phone.compare({});
}

}  // namespace device
