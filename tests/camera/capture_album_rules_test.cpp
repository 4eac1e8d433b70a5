#include "camera/capture_album_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(CaptureAlbum, StartsWithTheRememberedOneOnlyWhenWanted) {
  EXPECT_EQ(captureAlbumAtStart("Pets", true), "Pets");
  EXPECT_EQ(captureAlbumAtStart("Pets", false), "Camera Roll");
  EXPECT_EQ(captureAlbumAtStart(std::nullopt, true), "Camera Roll");
  EXPECT_EQ(captureAlbumAtStart("", true), "");
}

}  // namespace
}  // namespace velvault12
