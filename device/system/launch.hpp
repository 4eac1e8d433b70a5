#pragma once

#include <string_view>

#include "device/system/process.hpp"

namespace device {

/// Makes this process that app and launches it: identity, injected libraries, then the app's own code.
void launchApp(Identity identity);

/// What it writes when it has launched; anything else is the reason why it did not.
inline constexpr std::string_view kReady = "ready";

/// The whole life of an app's process: launches, writes `kReady` to the descriptor and closes it, then serves
/// its user. Returns only when the launch failed, with the process's exit status.
int runApp(Identity identity, int ready);

}  // namespace device
