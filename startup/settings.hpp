#pragma once

#include <memory>

#include "startup/settings_rules.hpp"

namespace velvault12 {

/// The process's settings as they were last read, the defaults until `loadSettings` has run. What is answered
/// never changes, so that one call of a hook that asks once goes by one state of them. Any thread: apps fetch
/// photos on threads of their own.
std::shared_ptr<const Settings> settings();

/// Whether the library is switched on, and for the second that choice as well. Any thread.
bool isEnabled();
bool isChosen(bool Settings::*choice);

/// Reads the preferences file afresh. A file that is missing or no dictionary gives every setting its
/// default. Main thread only.
void loadSettings();

}  // namespace velvault12
