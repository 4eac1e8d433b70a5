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

TEST(CaptureAlbum, ATitleHasMoreThanWhiteSpaceInIt) {
  for (const std::string_view blank : {"", " ", " \t\r\n", "\u3000", "\u00a0 \u2003\u205f"}) {
    EXPECT_FALSE(isAlbumTitle(blank)) << '"' << blank << '"';
  }
  for (const std::string_view title :
       {"a", "  a  ", "\u3000\u5bb6", ".", "\u200b", "\u00a1", "\xc2", "\x80"}) {
    EXPECT_TRUE(isAlbumTitle(title)) << '"' << title << '"';
  }
}

}  // namespace
}  // namespace velvault12
