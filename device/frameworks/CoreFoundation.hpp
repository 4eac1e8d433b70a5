#pragma once

// Darwin notifications: names posted from one process to every process that observes them.

#include <cstdint>

#ifdef __OBJC__
@class NSString;
using CFStringRef = NSString*;
#else
using CFStringRef = const void*;
#endif
using CFNotificationCenterRef = const void*;
using CFIndex = long;
using CFNotificationSuspensionBehavior = CFIndex;
using CFNotificationCallback = void (*)(CFNotificationCenterRef center, void* observer, CFStringRef name,
                                        const void* object, const void* userInfo);

extern "C" {
/// iOS 12.
extern const double kCFCoreFoundationVersionNumber;

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void);
/// Calls back on the main thread's run loop, for as long as the process lives. Posts that pile up before it
/// runs are one. Main thread only; object and behavior are ignored.
void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void* observer,
                                     CFNotificationCallback callBack, CFStringRef name, const void* object,
                                     CFNotificationSuspensionBehavior behavior);
/// From any thread. Answers 0.
std::uint32_t notify_post(const char* name);
}
