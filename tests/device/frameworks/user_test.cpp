// A person at the phone's apps: in the app's own process, and through its control socket.

#include <gtest/gtest.h>

#include <optional>

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
      return me_;
    }
    app_.emplace(phone_.launch(app));
    return app_->user();
  }

  device::PhotoDatabase library_ = phone_.photoLibrary();

 private:
  std::optional<device::App> app_;
};
INSTANTIATE_TEST_SUITE_P(Apps, User, ::testing::Values(Through::here, Through::socket),
                         ::testing::PrintToStringParamName());

TEST_P(User, GoesThroughAllOfPhotos) {
  const auto album = library_.addAlbum("Photos");
  library_.addAlbum("Fjords", library_.addFolder("Edit"));
  for (int i = 0; i < 20; ++i) library_.addAlbum("Album " + std::to_string(i));
  library_.addToAlbum(library_.addAsset({.creationDate = 1'588'334'400}), album);
  library_.addToAlbum(library_.addAsset({.creationDate = 1, .isHidden = true}), album);
  library_.addAsset({.mediaType = device::MediaType::video, .creationDate = 2});
  const std::string_view photo = "Photo, 2020-05-01 12:00:00", hidden = "Photo, 1970-01-01 00:00:01",
                         video = "Video, 1970-01-01 00:00:02";
  GSDebugAllocationActive(1);
  const device::User& me = open(device::kPhotos);

  for (const auto* const text : {"My Albums", "See All", "Photos", "1", "Edit", "Albums"})
    EXPECT_TRUE(me.sees(text)) << text;
  EXPECT_FALSE(me.sees("Album 19"));
  me.tap("Photos");
  EXPECT_TRUE(me.sees(photo));
  EXPECT_FALSE(me.sees(video) || me.sees(hidden)) << "a tile is meant before a tab";
  me.back();
  me.tap("See All");
  me.tap("Edit");
  me.tap("Fjords");
  me.tap("Photos");
  EXPECT_TRUE(me.sees(photo) && me.sees(video)) << "the whole library";
  me.tap("Albums");
  EXPECT_FALSE(me.sees(photo) || me.sees("See All")) << "the tab is where it was left";
  me.tap("Albums");
  me.tap("See All");
  me.longPress("Album 19");
  EXPECT_FALSE(me.sees("Album 18")) << "nobody takes a long press here: it is a slow touch";
  EXPECT_LE(GSDebugAllocationCount(objc_getClass("PUAlbumListCell")), 12) << "cells are used again";
}

TEST_P(User, IsToldWhatWasOnScreenWhenAStepCannotBeDone) {
  library_.addAlbum("Pets");
  const device::User& me = open(device::kPhotos);
  const std::function<void()> steps[] = {
      [&] { me.tap("Nothing"); },
      [&] { me.zoomIn("Pets"); },
      [&] { me.type("text"); },
      [&] { me.back(); },
      [&] { me.alert(); },
      [&] { me.waitToSee("Nothing", milliseconds(1)); },
      [&] { me.waitUntilGone("Pets", milliseconds(1)); },
      [&] { me.answerOwnerRequest(device::OwnerAnswer::success); },
  };
  for (const auto& step : steps)
    EXPECT_NE(refusal(step).find(me.screen()), std::string::npos) << refusal(step);
  EXPECT_FALSE(me.hasAlert());
  EXPECT_NE(me.picture().find("aria-label=\"See All\""), std::string::npos);

  for (const auto* const text : {"See All", "Edit", "Pets"}) me.tap(text);
  EXPECT_TRUE(me.sees("Delete Pets")) << "nothing opens while editing";
  me.leaveApp();
  EXPECT_EQ(me.screen(), "(nothing)\n");
  EXPECT_NE(refusal([&] { me.tap("Albums"); }), "") << "another app is in front";
  me.returnToApp();
  EXPECT_TRUE(me.sees("Delete Pets")) << "it is where it was left";
}

}  // namespace
}  // namespace velvault12
