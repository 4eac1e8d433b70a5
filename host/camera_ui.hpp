#pragma once

#include "host/uikit.hpp"

// The Camera app's private classes.

namespace velvault12 {

class CAMCaptureEngine : public HostClass<"CAMCaptureEngine"> {
 public:
  using HostClass::HostClass;
};

/// What the camera's controls lie on: a bottom bar, or a metal view in layouts without one.
class CameraBar : public UIView {
 public:
  using UIView::UIView;
  /// What is behind the controls; the bar itself where it has no such view.
  UIView background() const {
    const auto view = trySend<"backgroundView", UIView()>();
    return view ? view : *this;
  }
};

class CAMBottomBar : public HostClass<"CAMBottomBar", CameraBar> {
 public:
  using HostClass::HostClass;
};

class CAMMetalView : public HostClass<"CAMMetalView", CameraBar> {
 public:
  using HostClass::HostClass;
};

/// The button that shows the latest capture.
class CAMImageWell : public HostClass<"CAMImageWell", UIView> {
 public:
  using HostClass::HostClass;
};

/// Not in every version of the host.
class CustomDrawButton : public HostClass<"CustomDrawButton", UIView> {
 public:
  using HostClass::HostClass;
};

}  // namespace velvault12
