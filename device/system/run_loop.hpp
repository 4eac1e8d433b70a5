#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace device {

/// Calls `readable` from the main thread's run loop whenever the descriptor can be read, until destroyed.
/// The descriptor stays the caller's. To be made and destroyed on the main thread.
class Watch {
 public:
  Watch(int descriptor, std::function<void()> readable);
  ~Watch();
  Watch(Watch&&) noexcept;
  Watch& operator=(Watch&&) noexcept;

 private:
  struct Source;
  std::unique_ptr<Source> source_;
};

/// Runs the main thread's run loop until `condition` holds, asking again after every event and every
/// timer. Answers false when `limit` passes first. May be nested. Main thread only.
bool runUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit);

/// Runs the main thread's run loop for as long as the process lives.
[[noreturn]] void runForever();

}  // namespace device
