#pragma once

#include <sys/types.h>

#include <filesystem>
#include <memory>
#include <string>

#include "device/system/frame_server.hpp"
#include "device/user/user.hpp"

namespace device {

/// Lets others use this process's app, for as long as the server lives. Main thread only.
std::unique_ptr<FrameServer> serveControl();

/// Whoever uses the app in that process of a device. Each step throws when the process has ended.
User userOf(const std::filesystem::path& deviceFolder, pid_t app);

/// Waits until a child of this process has ended and tells how; leaves it to be waited for again.
std::string endOf(pid_t process);

}  // namespace device
