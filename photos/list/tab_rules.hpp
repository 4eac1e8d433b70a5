#pragma once

#include <array>
#include <optional>

#include "startup/settings_rules.hpp"

namespace velvault12 {

/// The app's numbers for the tabs to leave out, in the tabs' order; nothing for one that stays. With all four
/// switched off the albums stay: an app without a tab shows nothing. The system's version is
/// CoreFoundation's.
std::array<std::optional<int>, 4> excludedContentModes(const Settings& settings, double systemVersion);

/// Whether exactly one of the four is switched on; with none there is one tab as well, and the answer is no.
bool hasOneTab(const Settings& settings);

}  // namespace velvault12
