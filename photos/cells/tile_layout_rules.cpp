#include "photos/cells/tile_layout_rules.hpp"

namespace velvault12 {

namespace {

constexpr double kLargeHeight = 80;
constexpr int kPadlockSize = 50;
constexpr double kButtonSize = 22;
constexpr int kHostFontSize = 15;

Frame buttonAt(TileButton button, double x) {
  return {x, button == TileButton::move ? 40.0 : 70.0, kButtonSize, kButtonSize};
}

}  // namespace

int overlaySide(const Frame& stack, int before) {
  return stack.height > kLargeHeight ? static_cast<int>(stack.width + 2.0) : before;
}

Frame newOverlayFrame(const Frame& stack, int side) {
  return {stack.x, stack.y, static_cast<double>(side), static_cast<double>(side)};
}

Frame overlayFrame(const Frame& stack, int side) {
  return newOverlayFrame({stack.x - 1, stack.y - 1}, side + 2);
}

Frame padlockFrame(int overlaySide) {
  const int inset = overlaySide / 2 - kPadlockSize / 2;
  return newOverlayFrame({static_cast<double>(inset), static_cast<double>(inset)}, kPadlockSize);
}

Frame blurFrame(int overlaySide) { return newOverlayFrame({}, overlaySide + 100); }

Frame buttonFrame(TileButton button) { return buttonAt(button, 10); }

Frame enteringButtonFrame(TileButton button) { return buttonAt(button, 0); }

std::optional<int> tileFontSize(bool isShown, int chosen) {
  if (!isShown) return 0;
  if (chosen == kHostFontSize) return std::nullopt;
  return chosen;
}

}  // namespace velvault12
