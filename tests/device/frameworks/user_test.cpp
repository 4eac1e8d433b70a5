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

TEST_P(User, MeansATileBeforeATabAndScrollsToWhatIsBelow) {
  for (const std::string_view title : {"Photos", "Pets"}) library_.addAlbum(title);
  for (int i = 0; i < 20; ++i) library_.addAlbum("Album " + std::to_string(i));
  GSDebugAllocationActive(1);
  const device::User& me = open(device::kPhotos);
  me.tap("Photos");
  EXPECT_FALSE(me.sees("Pets"));
  EXPECT_TRUE(refusal([&] { me.back(); }).empty()) << "it is the album";
  me.tap("See All");
  EXPECT_FALSE(me.sees("Album 19"));
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
