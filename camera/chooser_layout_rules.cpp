#include "camera/chooser_layout_rules.hpp"

namespace velvault12 {

namespace {

constexpr double twoSeventhsOf(double width) { return width * 2 / 7; }

constexpr double kBelowMiddle = 5;
constexpr double kBesideDrawButton = 28;
constexpr double kPadOffset = 20;
constexpr double kPadY = 30;

}  // namespace

ChooserLayout chooserLayout(const ChooserSurroundings& surroundings) {
  const double x = twoSeventhsOf(surroundings.backgroundWidth);
  const double y = surroundings.backgroundHeight / 2 + kBelowMiddle;
  if (surroundings.hasDrawButton) return {x + kBesideDrawButton, y, kNarrowCaption};
  if (surroundings.isPad) return {twoSeventhsOf(surroundings.barWidth) + kPadOffset, kPadY, kWideCaption};
  return {x, y, kWideCaption};
}

Turn buttonTurn(double viewWidth, double viewHeight, DeviceOrientation orientation) {
  if (viewHeight > viewWidth) return Turn::upright;
  if (orientation == DeviceOrientation::landscapeLeft) return Turn::clockwise;
  if (orientation == DeviceOrientation::landscapeRight) return Turn::counterClockwise;
  return Turn::upright;
}

}  // namespace velvault12
