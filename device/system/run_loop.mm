#include "device/system/run_loop.hpp"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <cstdint>
#include <utility>

@interface DeviceWatcher : NSObject <RunLoopEvents> {
 @public
  std::function<void()>* readable;
}
@end

@implementation DeviceWatcher
- (void)receivedEvent:(void*)data type:(RunLoopEventType)type extra:(void*)extra forMode:(NSString*)mode {
  (void)data, (void)type, (void)extra, (void)mode;
  if (!readable) return;
  // A copy: the call may end the watch.
  const std::function<void()> call = *readable;
  call();
}
@end

namespace device {
namespace {

using Clock = std::chrono::steady_clock;

// One turn: fires what is due, and waits for an event where the condition does not hold yet. GNUstep's own
// runMode:beforeDate: fires timers and then goes on waiting, with nobody asked in between.
bool turn(const std::function<bool()>& condition, Clock::time_point end) {
  NSAutoreleasePool* pool = [NSAutoreleasePool new];
  NSRunLoop* loop = [NSRunLoop currentRunLoop];
  NSDate* next = [loop limitDateForMode:NSDefaultRunLoopMode];
  const bool holds = condition();
  if (!holds) {
    const double seconds = std::max(std::chrono::duration<double>(end - Clock::now()).count(), 0.0);
    NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:seconds];
    [loop acceptInputForMode:NSDefaultRunLoopMode beforeDate:next ? [next earlierDate:limit] : limit];
  }
  [pool drain];
  return holds;
}

}  // namespace

struct Watch::Source {
  Source(int watched, std::function<void()> call) : descriptor(watched), readable(std::move(call)) {
    watcher = [DeviceWatcher new];
    watcher->readable = &readable;
    [[NSRunLoop currentRunLoop] addEvent:data() type:ET_RDESC watcher:watcher forMode:NSDefaultRunLoopMode];
  }
  ~Source() {
    watcher->readable = nullptr;
    [[NSRunLoop currentRunLoop] removeEvent:data() type:ET_RDESC forMode:NSDefaultRunLoopMode all:YES];
    // The run loop may be about to call it.
    [watcher autorelease];
  }
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;

  void* data() const {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the run loop takes a descriptor as a pointer
    return reinterpret_cast<void*>(static_cast<std::intptr_t>(descriptor));
  }

  int descriptor;
  std::function<void()> readable;
  DeviceWatcher* watcher;
};

Watch::Watch(int descriptor, std::function<void()> readable)
    : source_(std::make_unique<Source>(descriptor, std::move(readable))) {}
Watch::~Watch() = default;
Watch::Watch(Watch&&) noexcept = default;
Watch& Watch::operator=(Watch&&) noexcept = default;

bool runUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
  const Clock::time_point end = Clock::now() + limit;
  while (true) {
    // Asked before the turn: events that are waiting are taken even when the time is up.
    const bool isLast = Clock::now() >= end;
    if (turn(condition, end)) return true;
    if (isLast) return condition();
  }
}

void runForever() {
  while (true) runUntil([] { return false; }, std::chrono::hours(24));
}

}  // namespace device
