#include "device/frameworks/Dispatch.hpp"

#import <Foundation/Foundation.h>
#include <sys/eventfd.h>

#include <cstdlib>
#include <deque>
#include <mutex>
#include <optional>

#include "device/system/run_loop.hpp"
#include "device/system/sockets.hpp"

struct dispatch_queue_s {};

namespace device {
namespace {

struct Work {
  void* context;
  void (*perform)(void*);
};

class MainQueue {
 public:
  /// Never destroyed: other threads may post until the process ends.
  static MainQueue& instance() {
    static MainQueue* const queue = new MainQueue;
    return *queue;
  }

  void open() {
    watch_.emplace(wakeup_.get(), [this] { perform(); });
  }

  void post(Work work) {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(work);
    ::eventfd_write(wakeup_.get(), 1);
  }

 private:
  // What is posted meanwhile waits for the next turn.
  void perform() {
    eventfd_t posted = 0;
    ::eventfd_read(wakeup_.get(), &posted);
    while (posted-- > 0) {
      const std::optional<Work> work = take();
      if (!work) return;
      NSAutoreleasePool* pool = [NSAutoreleasePool new];
      work->perform(work->context);
      [pool drain];
    }
  }

  std::optional<Work> take() {
    const std::lock_guard lock(mutex_);
    if (waiting_.empty()) return std::nullopt;
    const Work work = waiting_.front();
    waiting_.pop_front();
    return work;
  }

  std::mutex mutex_;
  std::deque<Work> waiting_;
  Descriptor wakeup_{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
  std::optional<Watch> watch_;
};

}  // namespace

void openMainQueue() { MainQueue::instance().open(); }

}  // namespace device

dispatch_queue_s _dispatch_main_q;

void dispatch_async_f(dispatch_queue_t queue, void* context, void (*work)(void*)) {
  // Any other queue is a stray pointer, which a phone does not survive either.
  if (queue != &_dispatch_main_q) std::abort();
  device::MainQueue::instance().post({context, work});
}
