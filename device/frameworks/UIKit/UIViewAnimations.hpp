#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cmath>

#import "device/frameworks/UIKit/CoreGraphics.h"

/// One run of an animation block. Times are in seconds.
struct UIViewAnimation {
  double start = 0;
  double duration = 0;
  bool takesTouches = true;

  static double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
  }
  bool hasBegun() const { return now() >= start; }
  bool isOver() const { return now() >= start + duration; }
  double progress() const { return isOver() ? 1 : std::max((now() - start) / duration, 0.0); }

  /// The one whose block runs, null outside of all.
  static inline const UIViewAnimation* current = nullptr;
};

/// A property on its way from where it was shown to its value.
template <class Value>
struct UIAnimatedProperty {
  static constexpr std::size_t kNumberBytes = sizeof(CGFloat);
  using Numbers = std::array<CGFloat, sizeof(Value) / kNumberBytes>;

  Value from{};
  UIViewAnimation animation;

  static Numbers numbersOf(Value value) { return std::bit_cast<Numbers>(value); }
  Value shown(Value value) const {
    const double progress = animation.progress();
    Numbers numbers = numbersOf(from);
    const Numbers ends = numbersOf(value);
    for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = std::lerp(numbers[i], ends[i], progress);
    return std::bit_cast<Value>(numbers);
  }
};

/// The animations of one view.
struct UIViewAnimations {
  UIAnimatedProperty<CGPoint> center;
  UIAnimatedProperty<CGRect> bounds;
  UIAnimatedProperty<CGAffineTransform> transform;
  UIAnimatedProperty<CGFloat> alpha;

  template <class Condition>
  bool any(Condition condition) const {
    return condition(center.animation) || condition(bounds.animation) || condition(transform.animation) ||
           condition(alpha.animation);
  }
};
