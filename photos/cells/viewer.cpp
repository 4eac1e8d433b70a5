#include "photos/cells/viewer.hpp"

#include "startup/settings.hpp"

namespace velvault12 {

namespace {
constexpr double kLargeZoom = 400.0;
}

bool wantsLiveBadge(PUAssetViewModel, Replaced<bool()> host) {
  return isChosen(&Settings::showLiveBadge) || host();
}

void setMaximumZoom(PUOneUpSettings, Replaced<void(double)> host, double factor) {
  host(isChosen(&Settings::increaseZoom) ? kLargeZoom : factor);
}

}  // namespace velvault12
