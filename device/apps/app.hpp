#pragma once

#include <string_view>

namespace device {

/// Makes the app of this process: its application object and what is on its screen. Returns when it has
/// finished launching. After `become` and the loader, on the main thread. Throws std::runtime_error for an
/// app that the phone does not have.
void startApp(std::string_view bundleIdentifier);

}  // namespace device
