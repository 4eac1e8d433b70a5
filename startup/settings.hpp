#pragma once

#include "startup/settings_rules.hpp"

namespace velvault12 {

/// The process's settings: the defaults until `loadSettings` has run. Main thread only.
Settings& settings();

/// Reads the preferences file afresh. A file that is missing or no dictionary gives every setting its
/// default.
void loadSettings();

}  // namespace velvault12
