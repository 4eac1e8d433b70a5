#pragma once

#include <optional>

namespace velvault12 {

/// In points, in the view that it lies in.
struct Frame {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

/// The side of a locked tile's overlay: a large tile's own, as its stack of photos asks for; otherwise the
/// one before.
int overlaySide(const Frame& stack, int before);

/// Where a new overlay lies on its tile. As long as it is there it lies one point further out on every side.
Frame newOverlayFrame(const Frame& stack, int side);
Frame overlayFrame(const Frame& stack, int side);

/// Within the overlay. In whole points: of an odd side the half is cut off.
Frame padlockFrame(int overlaySide);
/// Within the overlay, and larger than it: its edges are never to be seen.
Frame blurFrame(int overlaySide);

/// A tile's two buttons, at its left edge, and where they come from as they slide in.
enum class TileButton { move, lock };
Frame buttonFrame(TileButton button);
Frame enteringButtonFrame(TileButton button);

/// The size of a tile's title, or of its subtitle, in points; nothing where the host's own stays. It does
/// with 15, which is that size.
std::optional<int> tileFontSize(bool isShown, int chosen);

}  // namespace velvault12
