#include "device/system/darwin_notifications.hpp"

#include <unistd.h>

#include <atomic>
#include <string>
#include <utility>

namespace device {
namespace {

namespace fs = std::filesystem;

fs::path folderOf(const fs::path& deviceFolder, std::string_view name) {
  return deviceFolder / "run/notifications" / fileNameOf(name);
}

}  // namespace

NotificationSocket observeNotification(const fs::path& deviceFolder, std::string_view name) {
  static std::atomic<int> made = 0;
  const std::string observer = std::to_string(::getpid()) + "." + std::to_string(made++);
  fs::path path = folderOf(deviceFolder, name) / observer;
  Descriptor descriptor = bindDatagrams(path);
  return {std::move(path), std::move(descriptor)};
}

void postNotification(const fs::path& deviceFolder, std::string_view name) {
  if (!name.empty()) signalAll(folderOf(deviceFolder, name));
}

}  // namespace device
