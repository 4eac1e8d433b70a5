#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// The viewer of single photos.

/// `wantsIrisBadgeVisible`: whether a live photo bears its badge.
bool wantsLiveBadge(PUAssetViewModel photo, Replaced<bool()> host);

/// `setDefaultMaximumZoomFactor:`. A larger zoom is the same for whatever the host asks for.
void setMaximumZoom(PUOneUpSettings viewer, Replaced<void(double)> host, double factor);

}  // namespace velvault12
