#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// The viewer of single photos.

/// `wantsIrisBadgeVisible`: whether a live photo bears its badge.
bool wantsLiveBadge(PUAssetViewModel photo, Replaced<bool()> host);

/// `setDefaultMaximumZoomFactor:`: the large zoom takes the place of whatever factor the host sets.
void setMaximumZoom(PUOneUpSettings viewer, Replaced<void(double)> host, double factor);

}  // namespace velvault12
