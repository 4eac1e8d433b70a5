#include "photos/list/tile_measures_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(AlbumSize, IsWhatTheScreensWidthLeavesForTwoAndABit) {
  EXPECT_EQ(albumSize(375), 164);
  EXPECT_EQ(albumSize(320), 140);
  EXPECT_EQ(albumSize(0), 1);
}

}  // namespace
}  // namespace velvault12
