#pragma once

#include "host/foundation.hpp"

namespace velvault12 {

/// An album, a smart album or a folder.
class PHCollection : public HostClass<"PHCollection"> {
 public:
  using HostClass::HostClass;
  /// As shown; may be nil.
  NSString localizedTitle() const { return send<"localizedTitle", NSString()>(); }
};

}  // namespace velvault12
