#pragma once

namespace velvault12 {

/// What the album button and its caption are laid out by. All lengths here are points.
struct ChooserSurroundings {
  /// The view that they are put on.
  double backgroundWidth = 0;
  double backgroundHeight = 0;
  /// The bar that this view belongs to.
  double barWidth = 0;
  bool isPad = false;
  /// The bar holds a drawing button, beside which there is little room.
  bool hasDrawButton = false;
};

/// How large a caption may be: its text is measured at that font size within that width and height.
struct CaptionFit {
  double fontSize = 0;
  double maxWidth = 0;
  double maxHeight = 0;
};

/// Also for a caption that gets another album's title, whatever the bar holds.
inline constexpr CaptionFit kWideCaption{12, 380, 20};
inline constexpr CaptionFit kNarrowCaption{8, 100, 40};
/// From the button's centre down to the caption's.
inline constexpr double kCaptionBelowButton = 28;

struct ChooserLayout {
  /// The button's centre in the view that it is put on.
  double x = 0;
  double y = 0;
  CaptionFit caption;
};

ChooserLayout chooserLayout(const ChooserSurroundings& surroundings);

/// How the phone is held, by the host's own numbers.
enum class DeviceOrientation {
  portrait = 1,
  portraitUpsideDown = 2,
  /// The phone's top points to the left.
  landscapeLeft = 3,
  landscapeRight = 4,
};

enum class Turn { upright, clockwise, counterClockwise };

/// The quarter turn with which the button stands upright before whoever holds the phone so. In a view that is
/// higher than wide it always does.
Turn buttonTurn(double viewWidth, double viewHeight, DeviceOrientation orientation);

}  // namespace velvault12
