#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/foundation.hpp"
#include "host/runtime.hpp"

namespace velvault12 {

extern "C" {
using CFNotificationCallback = void (*)(void* center, void* observer, id name, const void* object,
                                        id userInfo);
void* CFNotificationCenterGetDarwinNotifyCenter();
void CFNotificationCenterAddObserver(void* center, const void* observer, CFNotificationCallback callback,
                                     id name, const void* object, NSInteger suspensionBehavior);
std::uint32_t notify_post(const char* name);
}

/// How a notification that arrives while the app is suspended is delivered.
enum class SuspensionBehavior : NSInteger { coalesce = 2, deliverImmediately = 4 };

/// Posts to every process that observes the name.
inline void postDarwinNotification(std::string_view name) { notify_post(std::string(name).c_str()); }

/// Calls `Notified` on the main thread whenever any process posts the Darwin notification, until this process
/// ends.
template <void (*Notified)()>
void observeDarwinNotification(std::string_view name, SuspensionBehavior behavior) {
  const CFNotificationCallback callback = [](void*, void*, id, const void*, id) { Notified(); };
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), nullptr, callback,
                                  NSString::from(name).get(), nullptr, static_cast<NSInteger>(behavior));
}

}  // namespace velvault12
