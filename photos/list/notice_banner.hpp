#pragma once

#include <string_view>

namespace velvault12 {

/// Shows a short message over the app for two seconds. A newer message takes the place of the one on screen.
/// Without a window nothing is shown. Main thread only.
void showNotice(std::string_view message);

}  // namespace velvault12
