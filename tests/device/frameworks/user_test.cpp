// A person at the phone's apps: in the app's own process, and through its control socket.

#include <gtest/gtest.h>

#include <optional>

#include "device/user/alert_text.hpp"
#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

using std::chrono::milliseconds;

enum class Through { here, socket };
void PrintTo(Through way, std::ostream* out) { *out << (way == Through::here ? "here" : "socket"); }

class User : public PlainPhone, public ::testing::WithParamInterface<Through> {
 protected:
  const device::User& open(std::string_view app) {
    if (GetParam() == Through::here) {
      phone_.launchHere(app);
      return here_;
    }
    app_.emplace(phone_.launch(app));
    return app_->user();
  }
  const device::User& openPhotos() { return open(device::kPhotos); }

  device::PhotoDatabase library_ = phone_.photoLibrary();

 private:
  std::optional<device::App> app_;
  const device::User here_ = device::User::here();
};
INSTANTIATE_TEST_SUITE_P(Apps, User, ::testing::Values(Through::here, Through::socket),
                         [](const auto& way) { return way.param == Through::here ? "Here" : "Socket"; });

TEST_P(User, GoesThroughAllOfPhotos) {
  const auto pets = library_.addAlbum("Pets");
  library_.addAlbum("Fjords", library_.addFolder("Trips"));
  library_.addToAlbum(library_.addAsset({.creationDate = 1'588'334'400}), pets);
  library_.addToAlbum(library_.addAsset({.creationDate = 1, .isHidden = true}), pets);
  library_.addAsset({.mediaType = device::MediaType::video, .creationDate = 2});
  constexpr std::string_view kPhoto = "Photo, 2020-05-01 12:00:00", kVideo = "Video, 1970-01-01 00:00:02";
  const device::User& me = openPhotos();

  for (const std::string_view text : {"My Albums", "See All", "Pets", "1", "Trips", "Photos", "Albums"}) {
    EXPECT_TRUE(me.sees(text)) << text;
  }
  me.tap("Pets");
  EXPECT_TRUE(me.sees(kPhoto));
  EXPECT_FALSE(me.sees(kVideo)) << "not in the album";
  EXPECT_FALSE(me.sees("Photo, 1970-01-01 00:00:01")) << "hidden";
  EXPECT_FALSE(me.sees("Trips"));
  me.back();
  me.tap("See All");
  me.tap("Trips");
  EXPECT_FALSE(me.sees("Pets"));
  me.tap("Fjords");
  EXPECT_FALSE(me.sees("Edit"));
  me.back();
  me.back();
  EXPECT_TRUE(me.sees("Pets")) << "the list";

  EXPECT_FALSE(me.sees("Delete Pets"));
  me.tap("Edit");
  me.tap("Trips");
  EXPECT_FALSE(me.sees("Fjords")) << "nothing opens while editing";
  me.tap("Delete Pets");
  me.waitUntilGone("Pets");
  EXPECT_EQ(library_.collections().size(), 1u);
  EXPECT_TRUE(me.sees("Delete Trips"));
  me.tap("Done");
  EXPECT_FALSE(me.sees("Delete Trips"));

  me.tap("Photos");
  EXPECT_TRUE(me.sees(kPhoto) && me.sees(kVideo)) << "the whole library";
  library_.addAlbum("Meanwhile");
  me.tap("Albums");
  EXPECT_TRUE(me.sees("Done") || me.sees("Edit")) << "the tab is where it was left";
  EXPECT_TRUE(me.sees("Meanwhile"));
  me.tap("Albums");
  EXPECT_TRUE(me.sees("See All")) << "its first screen";
  EXPECT_TRUE(me.sees("Meanwhile"));
  EXPECT_FALSE(me.sees("Pets"));
}

TEST_P(User, MeansATileFirstAndScrollsToFindIt) {
  const auto photo = library_.addAsset({});
  for (const std::string_view title : {"Photos", "Edit"})
    library_.addToAlbum(photo, library_.addAlbum(title));
  for (int i = 0; i < 20; ++i) library_.addAlbum("Album " + std::to_string(i));
  const device::User& me = openPhotos();
  constexpr std::string_view kPhoto = "Photo, 1970-01-01 00:00:00";
  me.tap("Photos");
  EXPECT_FALSE(me.sees("See All"));
  me.back();
  EXPECT_TRUE(me.sees("See All")) << "the album had opened, not the tab";
  EXPECT_FALSE(me.sees("Album 19"));
  me.tap("Album 19");
  EXPECT_FALSE(me.sees(kPhoto));
  me.back();
  me.tap("See All");
  me.tap("Edit");
  EXPECT_TRUE(me.sees(kPhoto)) << "the album, not the button";
  me.back();
  EXPECT_FALSE(me.sees("Album 19"));
  me.longPress("Album 19");
  EXPECT_FALSE(me.sees("Album 18")) << "nobody takes a long press here: it is a slow touch";
}

TEST_P(User, IsToldWhatWasOnScreenWhenAStepCannotBeDone) {
  library_.addAlbum("Pets");
  const device::User& me = openPhotos();
  const std::function<void()> steps[] = {
      [&] { me.tap("Nothing"); },
      [&] { me.longPress("Nothing"); },
      [&] { me.type("text"); },
      [&] { me.back(); },
      [&] { me.alert(); },
      [&] { me.waitToSee("Nothing", milliseconds(1)); },
      [&] { me.waitUntilGone("Pets", milliseconds(1)); },
      [&] { me.waitForOwnerRequest(milliseconds(1)); },
      [&] { me.answerOwnerRequest(device::OwnerAnswer::success); },
  };
  for (const auto& step : steps)
    EXPECT_NE(refusal(step).find(me.screen()), std::string::npos) << refusal(step);
  EXPECT_FALSE(me.hasAlert());
  EXPECT_TRUE(me.feltFeedback().empty());
  EXPECT_NE(me.screen().find("PUAlbumListCellContentView"), std::string::npos);
  EXPECT_NE(me.picture().find("aria-label=\"See All\""), std::string::npos);

  me.tap("Pets");
  me.leaveApp();
  EXPECT_EQ(me.screen(), "(nothing)\n");
  EXPECT_EQ(me.picture().find("aria-label"), std::string::npos);
  EXPECT_NE(refusal([&] { me.tap("Albums"); }), "") << "another app is in front";
  me.returnToApp();
  EXPECT_TRUE(me.sees("Pets"));
  me.back();
  EXPECT_TRUE(me.sees("See All")) << "where it was left";
}

TEST_P(User, ReadsTheGalleryOfAnotherApp) {
  const auto pets = library_.addAlbum("Pets");
  const auto fjords = library_.addAlbum("Fjords", library_.addFolder("Trips"));
  library_.addToAlbum(library_.addAsset({.isFavorite = true}), pets);
  const device::User& me = open(device::kGallery);
  for (const std::string_view row :
       {"Camera Roll", "Favorites", "Pets", "Trips", "Pets: 1 photos", "Fjords: 0 photos"}) {
    EXPECT_TRUE(me.sees(row)) << row;
  }
  EXPECT_FALSE(me.sees("Videos")) << "there are none";
  EXPECT_FALSE(me.sees("Fjords")) << "it is in a folder";
  library_.addToAlbum(library_.addAsset({.mediaType = device::MediaType::video}), fjords);
  library_.removeCollection(pets);
  EXPECT_TRUE(me.sees("Pets"));
  me.tap("Refresh");
  for (const std::string_view row : {"Videos", "Fjords: 1 photos"}) EXPECT_TRUE(me.sees(row)) << row;
  EXPECT_FALSE(me.sees("Pets"));
  me.leaveApp();
  me.returnToApp();
  EXPECT_TRUE(me.sees("Fjords: 1 photos"));
}

TEST(AlertText, TravelsUnchanged) {
  const device::AlertText alert{"Title", "", {"Password (secure)", ""}, {"OK", "Cancel", "\U0001F512 b"}};
  const device::AlertText read = device::decodeAlertText(device::encode(alert));
  EXPECT_EQ(read.title, alert.title);
  EXPECT_EQ(read.message, "");
  EXPECT_EQ(read.fields, alert.fields);
  EXPECT_EQ(read.buttons, alert.buttons);
}

}  // namespace
}  // namespace velvault12
