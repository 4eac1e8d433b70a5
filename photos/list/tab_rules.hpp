#pragma once

#include <vector>

#include "startup/settings_rules.hpp"

namespace velvault12 {

/// The app's numbers for the tabs that are switched off, in the tabs' order. With all four off the albums'
/// is kept: an app without a tab shows nothing. The system's version is CoreFoundation's.
std::vector<int> excludedContentModes(const Settings& settings, double systemVersion);

/// Whether exactly one of the four is switched on; with none there is one tab as well, and the answer is no.
bool hasOneTab(const Settings& settings);

}  // namespace velvault12
