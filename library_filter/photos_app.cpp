#include "library_filter/photos_app.hpp"

#include "host/foundation.hpp"
#include "startup/host_plan_rules.hpp"

namespace velvault12 {

bool isPhotosApp() {
  static const bool isIt = NSBundle::mainBundle().bundleIdentifier().utf8() == kPhotosIdentifier;
  return isIt;
}

}  // namespace velvault12
