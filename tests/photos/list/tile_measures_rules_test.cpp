#include "photos/list/tile_measures_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(TileMeasures, FollowTheScreenAndLeaveTheTextsTheirHeight) {
  EXPECT_EQ(albumSize(375), 164);
  EXPECT_EQ(albumSize(320), 140);
  EXPECT_EQ(albumSize(0), 1);
  EXPECT_EQ(shrunkStackSide(164), 109);
  EXPECT_EQ(shrunkTileHeight(109, 163, 207), 153);
  EXPECT_EQ(shrunkTileHeight(109, 163, 150), 109) << "no texts at all";
}

}  // namespace
}  // namespace velvault12
