#pragma once

#include "host/uikit.hpp"

namespace velvault12 {

/// The home screen's own application.
class SpringBoard : public HostClass<"SpringBoard", UIApplication> {
 public:
  using HostClass::HostClass;
};

}  // namespace velvault12
