#import <Foundation/Foundation.h>

#include "device/frameworks/CoreFoundation.hpp"

#include <memory>
#include <utility>
#include <vector>

#include "device/system/darwin_notifications.hpp"
#include "device/system/process.hpp"
#include "device/system/run_loop.hpp"

namespace device {
namespace {

const char kDarwinCenter = 0;

// One that lives as long as its process.
class Observer {
 public:
  Observer(const void* observer, CFNotificationCallback callBack, NSString* name)
      : observer_(const_cast<void*>(observer)),
        callBack_(callBack),
        name_([name copy]),
        socket_(observeNotification(identity().folder, [name UTF8String])),
        watch_(socket_.descriptor.get(), [this] { received(); }) {}

 private:
  void received() {
    if (takeDatagrams(socket_.descriptor.get()))
      callBack_(&kDarwinCenter, observer_, name_, nullptr, nullptr);
  }

  void* observer_;
  CFNotificationCallback callBack_;
  NSString* name_;
  NotificationSocket socket_;
  Watch watch_;
};

}  // namespace
}  // namespace device

const double kCFCoreFoundationVersionNumber = 1575.17;

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void) { return &device::kDarwinCenter; }

void CFNotificationCenterAddObserver(CFNotificationCenterRef, const void* observer,
                                     CFNotificationCallback callBack, CFStringRef name, const void*,
                                     CFNotificationSuspensionBehavior) {
  static auto& observers = *new std::vector<std::unique_ptr<device::Observer>>;
  if (!name || !callBack) return;
  observers.push_back(std::make_unique<device::Observer>(observer, callBack, name));
}

std::uint32_t notify_post(const char* name) {
  device::postNotification(device::identity().folder, name ? name : "");
  return 0;
}
