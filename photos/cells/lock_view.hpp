#pragma once

#include "host/uikit.hpp"

namespace velvault12 {

/// Lies over the photos of a locked album's tile. An image view without an image of its own: what it shows
/// are its subviews. The host gets to know the class when the first one is made.
class VVLockView : public HostClass<"VVLockView", UIImageView> {
 public:
  using HostClass::HostClass;

  /// Empty in a process without image views.
  static Ref<VVLockView> make();

  /// The view that it covers; kept alive with it.
  void setPhotoView(UIView view) const { send<"setPhotoView:", void(UIView)>(view); }
};

}  // namespace velvault12
