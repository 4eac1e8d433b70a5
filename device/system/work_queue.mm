#include "device/system/work_queue.hpp"

#import <Foundation/Foundation.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace device {

struct WorkQueue::State {
  std::function<void()> take() {
    std::unique_lock lock(mutex);
    posted.wait(lock, [this] { return !waiting.empty(); });
    std::function<void()> next = std::move(waiting.front());
    waiting.pop_front();
    return next;
  }

  [[noreturn]] void performForever() {
    GSRegisterCurrentThread();
    while (true) {
      NSAutoreleasePool* pool = [NSAutoreleasePool new];
      take()();
      [pool drain];
    }
  }

  std::mutex mutex;
  std::condition_variable posted;
  std::deque<std::function<void()>> waiting;
};

WorkQueue::WorkQueue() : state_(std::make_shared<State>()) {
  std::thread([state = state_] { state->performForever(); }).detach();
}

void WorkQueue::post(std::function<void()> work) {
  const std::lock_guard lock(state_->mutex);
  state_->waiting.push_back(std::move(work));
  state_->posted.notify_one();
}

}  // namespace device
