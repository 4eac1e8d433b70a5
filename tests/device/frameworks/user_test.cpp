// A user of the phone's apps: in the app's own process, and through its control socket.

#include <gtest/gtest.h>

#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

using User = PlainPhone;

TEST_F(User, TapsATileBeforeATabAndScrollsToWhatIsBelow) {
  device::PhotoDatabase library = phone_.photoLibrary();
  for (const std::string_view title : {"Photos", "Pets"}) library.addAlbum(title);
  for (int i = 0; i < 20; ++i) library.addAlbum("Album " + std::to_string(i));
  GSDebugAllocationActive(1);
  phone_.launchHere(device::kPhotos);
  me_.tap("Photos");
  EXPECT_FALSE(me_.sees("Pets"));
  EXPECT_EQ(refusal([&] { me_.back(); }), "") << "it is the album";
  me_.tap("See All");
  EXPECT_FALSE(me_.sees("Album 19"));
  me_.longPress("Album 19");
  EXPECT_FALSE(me_.sees("Album 18")) << "nothing recognizes a long press here: it is a slow touch";
  EXPECT_LE(GSDebugAllocationCount(objc_getClass("PUAlbumListCell")), 12) << "cells are used again";
}

TEST_F(User, SeesTheScreenInTheErrorOfAStep) {
  phone_.photoLibrary().addAlbum("Pets");
  const device::App app = phone_.launch(device::kPhotos);
  const device::User& me = app.user();
  const std::function<void()> steps[] = {
      [&] { me.tap("Nothing"); },
      [&] { me.zoomIn("Pets"); },
      [&] { me.type("text"); },
      [&] { me.back(); },
      [&] { me.waitToSee("Nothing", std::chrono::milliseconds(1)); },
      [&] { me.answerOwnerRequest(device::OwnerAnswer::success); },
  };
  for (const auto& step : steps)
    EXPECT_NE(refusal(step).find(me.screen()), std::string::npos) << refusal(step);
  for (const auto* const text : {"See All", "Edit", "Pets"}) me.tap(text);
  EXPECT_TRUE(me.sees("Delete Pets")) << "nothing opens while editing";
  me.leaveApp();
  EXPECT_EQ(me.screen(), "(nothing)\n");
  EXPECT_NE(refusal([&] { me.tap("Albums"); }), "") << "another app is in front";
  me.returnToApp();
  EXPECT_TRUE(me.sees("Delete Pets")) << "it is where it was left";
}

using ControlSocket = PlainPhone;

TEST_F(ControlSocket, RefusesWhatIsNoCommand) {
  const device::App app = phone_.launch(device::kGallery);
  const auto socket = phone_.folder() / "run/control" / std::to_string(app.process());
  const device::Descriptor connection = device::connectTo(socket);
  for (const std::string_view frame :
       {"", "{", "7", "[]", "[7]", "[\"nothing\"]", "[\"tap\"]", "[\"tap\",7]", "[\"screen\",\"x\"]",
        "[\"\xff\"]", "[\"setPasscode\",1]", "[\"answerOwnerRequest\",\"maybe\"]",
        "[\"waitToSee\",\"Gallery\",0.5]"}) {
    EXPECT_TRUE(device::sendFrame(connection.get(), frame));
    EXPECT_TRUE(device::receiveFrame(connection.get()).value_or("").starts_with("{\"error\":")) << frame;
  }
  EXPECT_FALSE(app.user().sees("\xff"));
  EXPECT_TRUE(app.user().sees("Gallery"));
}

}  // namespace
}  // namespace velvault12
