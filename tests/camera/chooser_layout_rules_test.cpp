#include "camera/chooser_layout_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(ChooserLayout, FollowsTheBarAndTheKindOfDevice) {
  struct Case {
    bool isPad;
    bool hasDrawButton;
    double x, y, fontSize, maxWidth, maxHeight;
  };
  // A background of 350 by 140 in a bar that is 700 wide.
  constexpr Case kCases[] = {{false, false, 100, 75, 12, 380, 20},
                             {true, false, 220, 30, 12, 380, 20},
                             {false, true, 128, 75, 8, 100, 40},
                             {true, true, 128, 75, 8, 100, 40}};
  for (const Case& each : kCases) {
    const ChooserLayout layout = chooserLayout({350, 140, 700, each.isPad, each.hasDrawButton});
    EXPECT_DOUBLE_EQ(layout.x, each.x);
    EXPECT_DOUBLE_EQ(layout.y, each.y);
    EXPECT_EQ(layout.caption.fontSize, each.fontSize);
    EXPECT_EQ(layout.caption.maxWidth, each.maxWidth);
    EXPECT_EQ(layout.caption.maxHeight, each.maxHeight);
  }
  EXPECT_DOUBLE_EQ(chooserLayout({375, 141, 375, false, false}).x, 375 * 2.0 / 7);
}

TEST(ChooserLayout, TheButtonTurnsInAWideViewOnly) {
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
