#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "device/demo/chapters.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

using Choices = std::map<std::string, Device::Preference>;

constexpr std::string_view kTabBar = "UITabBar";
constexpr std::string_view kHeader = "PUPhotosSectionHeaderView";
constexpr int kPhotosOfJourney = 60;
constexpr double kFirstOfJourney = 1'730'000'000;

void tapAll(const User& user, const std::vector<std::string_view>& texts) {
  for (const std::string_view text : texts) user.tap(text);
}

/// The tabs by their names, which the app's first screen has on its bar alone.
std::string tabsIn(const User& photos) {
  std::vector<std::string> seen;
  for (const std::string_view tab : {"Photos", "Memories", "Shared", "Albums"}) {
    if (photos.sees(tab)) seen.emplace_back(tab);
  }
  return joined(seen);
}

bool showsTabBar(const User& photos) { return photos.screen().find(kTabBar) != std::string::npos; }

/// The tabs are chosen when Photos starts.
const User& startedWith(Phone& phone, const Choices& choices) {
  phone.changeSettings(choices);
  const User& photos = phone.open(kPhotos);
  photos.waitToSee("See All");
  return photos;
}

void switchTabsOff(Story& story, Phone& phone) {
  story.chapter("Fewer tabs");
  story.step("You start Photos.", [&] {
    const std::string tabs = tabsIn(startedWith(phone, {}));
    expect(tabs == "[Photos, Memories, Shared, Albums]", "four tabs, not " + tabs);
    return "Its tabs are " + tabs + ".";
  });
  Choices choices;
  const auto switchOff = [&](std::string_view tab, const std::string& key, const std::string& left) {
    story.step("You switch \"" + std::string(tab) + "\" off and restart it.", [&] {
      choices[key] = false;
      const std::string tabs = tabsIn(startedWith(phone, choices));
      expect(tabs == left, left + ", not " + tabs);
      return "Its tabs are " + tabs + ".";
    });
  };
  switchOff("Memories", "showTabMemories", "[Photos, Shared, Albums]");
  switchOff("Shared", "showTabShared", "[Photos, Albums]");
  story.step("You switch \"Photos\" off as well.", [&] {
    choices["showTabMoments"] = false;
    const User& photos = startedWith(phone, choices);
    expect(!showsTabBar(photos), "no tab bar");
    return "A single tab is left, and its bar is gone.";
  });
  story.step("You even switch \"Albums\" off.", [&] {
    choices["showTabAlbums"] = false;
    const User& photos = startedWith(phone, choices);
    expect(!showsTabBar(photos), "no tab bar");
    return "It stays: an app without a tab would show nothing.";
  });
}

/// Whether there are stacks of photos of that side on screen.
bool hasStacksOf(const User& photos, const std::string& side) {
  const std::string screen = photos.screen();
  return screen.find(" " + side + " " + side + ")") != std::string::npos;
}

void shrinkTiles(Story& story, Phone& phone) {
  story.chapter("Smaller tiles");
  story.step("You have your tabs back, and open all albums.", [&] {
    startedWith(phone, {}).tap("See All");
    expect(hasStacksOf(phone.in(kPhotos), "163"), "stacks of photos of 163 points");
    return "Each album's photos are 163 points wide.";
  });
  story.step("You switch to smaller tiles, and open them again.", [&] {
    phone.changeSettings({{"shrinkAlbums", true}});
    const User& photos = phone.in(kPhotos);
    photos.back();
    photos.tap("See All");
    expect(hasStacksOf(photos, "109"), "stacks of photos of 109 points");
    expect(!hasStacksOf(photos, "163"), "no larger ones");
    return "They are 109 points wide: two thirds.";
  });
}

/// What one of the photos of "Journey" says to a user, from 0.
std::string photoOfJourney(const Phone& phone, std::size_t index) {
  return describe(phone.inAlbum("Journey").at(index));
}

void openLongAlbum(Story& story, Phone& phone) {
  story.chapter("An album from its end");
  PhotoDatabase library = phone.device().photoLibrary();
  const std::int64_t journey = library.addAlbum("Journey");
  for (int i = 0; i < kPhotosOfJourney; ++i) {
    const bool isLast = i == kPhotosOfJourney - 1;
    library.addToAlbum(library.addAsset({.creationDate = kFirstOfJourney + 3600 * i,
                                         .isHidden = isLast,
                                         .smartSubtype = isLast ? 213 : 0,
                                         .color = 0x1D3557U + 0x020301U * static_cast<std::uint32_t>(i)}),
                       journey);
  }
  const std::string first = photoOfJourney(phone, 0), last = photoOfJourney(phone, kPhotosOfJourney - 1);
  story.step("You open \"Journey\" with its 60 photos.", [&] {
    const User& photos = startedWith(phone, {});
    tapAll(photos, {"See All", "Journey"});
    expect(photos.sees(last) && !photos.sees(first), "its last photo is in sight, and its first is not");
    return "Its newest photos are on screen.";
  });
  story.step("You scroll to its beginning.", [&] {
    phone.in(kPhotos).scrollTo("2024-10-27 – 2024-10-29");
    return "A header shows its days: \"2024-10-27 – 2024-10-29\".";
  });
  story.step("You open \"Camera Roll\".", [&] {
    const User& photos = phone.in(kPhotos);
    photos.back();
    photos.tap("Camera Roll");
    photos.waitUntilGone("Journey");
    expect(photos.screen().find(kHeader) == std::string::npos, "no header");
    expect(!photos.sees(last), "the last photo of \"Journey\" was moved out of it");
    return "It has no header. The last photo of \"Journey\" is hidden, and not there.";
  });
}

void takeOutOfAlbum(Story& story, Phone& phone) {
  const User& photos = phone.in(kPhotos);
  const std::string last = photoOfJourney(phone, kPhotosOfJourney - 1);
  story.step("Back in \"Journey\" you select that last photo and tap Remove.", [&] {
    const std::size_t before = phone.inCameraRoll().size();
    photos.back();
    tapAll(photos, {"Journey", "Select", last, "Remove"});
    phone.waitUntil("it is in no album, and shown again", [&] {
      return phone.inAlbum("Journey").size() == kPhotosOfJourney - 1 &&
             phone.inCameraRoll().size() == before + 1;
    });
    photos.back();
    photos.tap("Camera Roll");
    photos.waitToSee(last);
    return "It was in no other album, so it is back in the camera roll.";
  });
  story.step("You tap it.", [&] {
    photos.tap(last);
    photos.waitUntilGone("Select");
    expect(photos.screen().find(" 375 500)") != std::string::npos, "it is as wide as the screen");
    expect(!photos.sees("LIVE"), "no badge");
    return "It is shown alone, as wide as the screen.";
  });
  story.step(
      "You switch the badge of live photos and the large zoom on, tap it again, and spread two fingers.",
      [&] {
        const User& again = startedWith(phone, {{"showLiveBadge", true}, {"increaseZoom", true}});
        tapAll(again, {"See All", "Camera Roll", last});
        again.waitToSee("LIVE");
        again.zoomIn(last);
        expect(again.screen().find(" 150000 200000)") != std::string::npos, "375 points have become 150000");
        return "It has the badge, and is 400 times as wide.";
      });
}

}  // namespace

void tellPresentation(Story& story, Phone& phone) {
  switchTabsOff(story, phone);
  shrinkTiles(story, phone);
  openLongAlbum(story, phone);
  takeOutOfAlbum(story, phone);
  phone.changeSettings({});
}

}  // namespace device
