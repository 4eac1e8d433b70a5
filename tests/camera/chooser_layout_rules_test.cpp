#include "camera/chooser_layout_rules.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace velvault12 {
namespace {

using Numbers = std::vector<double>;
/// In a background of 350 by 140 of a bar that is 700 wide: the button, the caption's font and its most size.
Numbers layout(bool isPad, bool hasDrawButton) {
  const auto [x, y, caption] = chooserLayout({350, 140, 700, isPad, hasDrawButton});
  return {x, y, static_cast<double>(caption.fontSize), caption.maxWidth, caption.maxHeight};
}

TEST(ChooserLayout, FollowsTheBarAndTheKindOfDevice) {
  EXPECT_EQ(layout(false, false), (Numbers{100, 75, 12, 380, 20}));
  EXPECT_EQ(layout(true, false), (Numbers{220, 30, 12, 380, 20}));
  for (const bool isPad : {false, true}) EXPECT_EQ(layout(isPad, true), (Numbers{128, 75, 8, 100, 40}));
  EXPECT_DOUBLE_EQ(chooserLayout({375, 141, 375, false, false}).x, 375 * 2.0 / 7);
}

TEST(ChooserLayout, ButtonTurnsInAWideViewOnly) {
  for (int orientation = -1; orientation <= 7; ++orientation) {
    const auto held = static_cast<DeviceOrientation>(orientation);
    const Turn turn = orientation == 3   ? Turn::clockwise
                      : orientation == 4 ? Turn::counterClockwise
                                         : Turn::upright;
    EXPECT_EQ(buttonTurn(375, 812, held), Turn::upright) << orientation;
    EXPECT_EQ(buttonTurn(812, 375, held), turn) << orientation;
    EXPECT_EQ(buttonTurn(500, 500, held), turn) << "as wide as high, " << orientation;
  }
}

}  // namespace
}  // namespace velvault12
