#include "benchmarks/heap_growth/heap_growth.hpp"

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <set>
#include <stdexcept>

#include "device/system/run_loop.hpp"
#include "device/user/user.hpp"
#include "host/dispatch.hpp"
#include "host/hook.hpp"
#include "host/uikit.hpp"
#include "tests/hurried_timers.hpp"

#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#include <sanitizer/allocator_interface.h>
#endif

namespace velvault12 {
namespace {

using Clock = std::chrono::steady_clock;

/// What allocators and the host's caches keep at hand varies, whatever the number of calls. A leak is at
/// least a block a call, and no allocator's is smaller than this.
constexpr std::int64_t kNoiseBytes = 4096, kSmallestBlock = 16;
constexpr int kCallsToTime = 100, kMostToWarmUp = 1000;
/// What fills once does not grow in each of them. Each is twice as long as the one before: a container that
/// grows by doubling does so in every one.
constexpr int kRounds = 4;
/// What calls leave to the run loop does not pile up.
constexpr int kCallsBetweenRests = 32;

std::int64_t heapBytes() {
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
  return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
#else
  const auto heap = mallinfo2();
  return static_cast<std::int64_t>(heap.uordblks + heap.hblkhd);
#endif
}

void feelNothing(Object, Replaced<void(NSInteger)>, NSInteger) {}

struct Growth {
  int calls;
  std::int64_t bytes;
  double seconds;

  double microsecondsPerCall() const { return seconds * 1e6 / calls; }
};

Growth growthOf(const std::function<void()>& call, int calls) {
  rest();
  const std::int64_t before = heapBytes();
  const auto start = Clock::now();
  for (int i = 0; i < calls; ++i) {
    const AutoreleasePool turn;
    call();
    if (i % kCallsBetweenRests == 0) rest();
  }
  rest();
  return {calls, heapBytes() - before, std::chrono::duration<double>(Clock::now() - start).count()};
}

bool isLeak(const Growth& growth) {
  return growth.bytes > std::max(kNoiseBytes, growth.calls * kSmallestBlock);
}

/// False when it has grown.
bool tell(const std::string& name, const std::function<void()>& call, Effort effort) {
  const double microseconds = growthOf(call, kCallsToTime).microsecondsPerCall();
  const auto affordable = std::max(static_cast<int>(effort.mostSeconds * 1e6 / microseconds), 1);
  growthOf(call, std::min({effort.calls / 10, affordable, kMostToWarmUp}));
  Growth growth{};
  for (int round = 0; round < kRounds; ++round) {
    growth = growthOf(call, std::min(affordable, effort.calls << round));
    if (!isLeak(growth)) break;
  }
  const bool hasGrown = isLeak(growth);
  std::printf("%-96s %7d %10lld %9.2f %9.1f%s\n", name.c_str(), growth.calls,
              static_cast<long long>(growth.bytes),
              static_cast<double>(growth.bytes) / static_cast<double>(growth.calls),
              growth.microsecondsPerCall(), hasGrown ? "  GROWS" : "");
  std::fflush(stdout);
  return !hasGrown;
}

// Hooks that are called by their encoding alone.

using Call = std::function<void(Object receiver, SEL selector)>;

template <class Signature, class... Arguments>
Call with(Arguments... arguments) {
  return [=](Object receiver, SEL selector) {
    Message<Signature>::send(receiver.get(), selector, arguments...);
  };
}

const Call* callOf(std::string_view encoding) {
  static const std::map<std::string_view, Call> calls = {
      {"v@:", with<void()>()},
      {"B@:", with<bool()>()},
      {"@@:", with<Object()>()},
      {"Q@:", with<NSUInteger()>()},
      {"{CGSize=dd}@:", with<CGSize()>()},
      {"{CGRect={CGPoint=dd}{CGSize=dd}}@:", with<CGRect()>()},
      {"v@:B", with<void(bool)>(true)},
      {"v@:d", with<void(double)>(3.5)},
      {"v@:{CGSize=dd}", with<void(CGSize)>(CGSize{375, 140})},
  };
  const auto found = calls.find(encoding);
  return found == calls.end() ? nullptr : &found->second;
}

Object newObject(const std::string& className) {
  const auto made = Object(sendToClass<"new", id()>(objc_getClass(className.c_str())));
  return Ref<Object>::adopt(made).autorelease();
}

std::function<void()> driverByEncoding(const device::InstalledHook& hook, const Drivers& drivers) {
  const Call* const call = callOf(hook.encoding);
  if (call == nullptr || hook.isClassMethod) return {};
  const SEL selector = sel_registerName(hook.selector.c_str());
  const auto known = drivers.receivers.find(hook.className);
  if (known != drivers.receivers.end())
    return [=, receiver = known->second] { (*call)(receiver(), selector); };
  return [=, className = hook.className] { (*call)(newObject(className), selector); };
}

UIViewController presented(UIViewController controller) {
  return controller.send<"presentedViewController", UIViewController()>();
}

UIViewController frontController() {
  auto front =
      UIApplication::sharedApplication().keyWindow().send<"rootViewController", UIViewController()>();
  while (const UIViewController next = presented(front)) front = next;
  return front;
}

UIAlertController frontAlert() { return frontController().as<UIAlertController>(); }

}  // namespace

std::vector<device::InstalledHook> letTimePass() {
  std::vector<device::InstalledHook> hooks = device::installedHooks();
  static const HurriedTimers timers;
  const HookRow rows[] = {replace<feelNothing>("_UITapticEngine", "actuateFeedback:", "v@:q")};
  installHooks(rows);
  return hooks;
}

void await(const std::function<bool()>& condition) {
  if (!device::runUntil(condition, device::kPatience)) throw std::runtime_error("waited in vain");
}

void rest() {
  const AutoreleasePool turn;
  // A change of the library may bring about another one.
  for (int round = 0; round < 2; ++round) {
    bool isOver = false;
    const auto end = [&isOver](bool, Object) { runOnMainQueue([&isOver] { isOver = true; }); };
    PHPhotoLibrary::sharedPhotoLibrary().performChanges(block<void()>([] {}), block<void(bool, Object)>(end));
    await([&isOver] { return isOver && HurriedTimers::haveFired(); });
  }
}

bool hasAlert() { return static_cast<bool>(frontAlert()); }

void typeIn(std::string_view text) {
  frontAlert().firstTextField().send<"setText:", void(NSString)>(NSString::from(text));
}

void press(std::string_view button) {
  const UIAlertController alert = frontAlert();
  for (const Object action : alert.send<"actions", NSArray()>()) {
    if (action.send<"title", NSString()>().utf8() != button) continue;
    const Ref<Object> pressed(action);
    alert.send<"dismissViewControllerAnimated:completion:", void(bool, Block<void()>)>(false,
                                                                                       Block<void()>());
    pressed->send<"_perform", void()>();
    return;
  }
  throw std::runtime_error("no button " + std::string(button));
}

bool measure(Effort effort, const std::vector<device::InstalledHook>& hooks, const Drivers& drivers) {
  bool isClean = true;
  std::set<std::string> names;
  for (const auto& hook : hooks) {
    const std::string name = hook.className + (hook.isClassMethod ? " +" : " ") + hook.selector;
    if (!names.insert(hook.className + " " + hook.selector).second) continue;
    bool hasDriver = false;
    for (const Driver& driver : drivers.all) {
      if (driver.className != hook.className || driver.selector != hook.selector) continue;
      hasDriver = true;
      const std::string way = driver.way.empty() ? "" : " (" + std::string(driver.way) + ")";
      isClean = tell(name + way, driver.call, effort) && isClean;
    }
    if (hasDriver) continue;
    if (const auto call = driverByEncoding(hook, drivers)) {
      isClean = tell(name, call, effort) && isClean;
    } else {
      std::printf("no driver for %s %s\n", name.c_str(), hook.encoding.c_str());
      isClean = false;
    }
  }
  for (const Driver& driver : drivers.all) {
    const std::string name = std::string(driver.className) + " " + std::string(driver.selector);
    if (names.contains(name)) continue;
    std::printf("not installed: %s\n", name.c_str());
    isClean = false;
  }
  return isClean;
}

}  // namespace velvault12
