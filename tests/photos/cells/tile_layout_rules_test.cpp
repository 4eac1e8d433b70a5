#include "photos/cells/tile_layout_rules.hpp"

#include <gtest/gtest.h>

#include <string>

namespace velvault12 {
namespace {

std::string frameText(const Frame& frame) {
  const auto number = [](double value) { return std::to_string(value).substr(0, 6) + " "; };
  return number(frame.x) + number(frame.y) + number(frame.width) + number(frame.height);
}

TEST(Overlay, IsAsLargeAsTheLastLargeStackAsksFor) {
  EXPECT_EQ(overlaySide({0, 0, 163.9, 81}, 7), 165) << "the whole points of the width";
  EXPECT_EQ(overlaySide({0, 0, 300, 80}, 7), 7) << "80 points high is not large";
  EXPECT_EQ(overlaySide({0, 0, 20, 80.1}, 7), 22);
}

TEST(Overlay, LiesAroundTheStackAndThePadlockInItsMiddle) {
  const Frame stack{3, 4.5, 100, 200};
  EXPECT_EQ(frameText(newOverlayFrame(stack, 164)), frameText({3, 4.5, 164, 164}));
  EXPECT_EQ(frameText(overlayFrame(stack, 164)), frameText({2, 3.5, 166, 166}));
  EXPECT_EQ(frameText(blurFrame(164)), frameText({0, 0, 264, 264}));
  EXPECT_EQ(frameText(padlockFrame(165)), frameText({57, 57, 50, 50})) << "in whole points";
  EXPECT_EQ(frameText(padlockFrame(0)), frameText({-25, -25, 50, 50}));
}

}  // namespace
}  // namespace velvault12
