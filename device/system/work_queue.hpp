#pragma once

#include <functional>
#include <memory>

namespace device {

/// Performs work on a thread of its own, one piece after the other, in the order in which it came. Whatever
/// becomes of this object, the thread lives as long as the process. All from any thread.
class WorkQueue {
 public:
  WorkQueue();
  /// The work has an autorelease pool around it.
  void post(std::function<void()> work);

 private:
  struct State;
  std::shared_ptr<State> state_;
};

}  // namespace device
