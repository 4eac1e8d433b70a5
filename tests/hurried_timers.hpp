#pragma once

#include <algorithm>
#include <vector>

#include "host/foundation.hpp"
#include "host/hook.hpp"
#include "host/reference.hpp"

namespace velvault12 {

/// Lets no timer of this process wait: each fires in the run loop's next turn. One a process.
class HurriedTimers {
 public:
  HurriedTimers() {
    const HookRow row = replaceClassMethod<schedule>(
        "NSTimer", "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:", "@@:d@:@B");
    installHooks({&row, 1});
  }

  /// Whether all timers have fired that were scheduled so far.
  static bool haveFired() {
    std::erase_if(waiting(), [](const auto& timer) { return !timer->template send<"isValid", bool()>(); });
    return waiting().empty();
  }

 private:
  static std::vector<Ref<NSTimer>>& waiting() {
    static auto& timers = *new std::vector<Ref<NSTimer>>;
    return timers;
  }
  static NSTimer schedule(Object, Replaced<NSTimer(double, Object, SEL, Object, bool)> host, double,
                          Object target, SEL action, Object info, bool repeats) {
    const NSTimer timer = host(0, target, action, info, repeats);
    waiting().emplace_back(timer);
    return timer;
  }
};

}  // namespace velvault12
