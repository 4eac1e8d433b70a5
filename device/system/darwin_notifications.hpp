#pragma once

#include <filesystem>
#include <string_view>

#include "device/system/sockets.hpp"

namespace device {

/// A socket that receives a datagram whenever the notification is posted on the device. An observer that is
/// slow finds few of them, but never none: where none fits any more, some are waiting.
struct NotificationSocket {
  std::filesystem::path path;
  Descriptor descriptor;
};

/// Throws std::system_error when it cannot be had.
NotificationSocket observeNotification(const std::filesystem::path& deviceFolder, std::string_view name);

/// Reaches all observers in all processes of the device, never waiting for one. From any thread.
void postNotification(const std::filesystem::path& deviceFolder, std::string_view name);

}  // namespace device
