#pragma once

#include <memory>
#include <utility>

extern "C" {
struct dispatch_queue_s;
extern dispatch_queue_s _dispatch_main_q;
void dispatch_async_f(dispatch_queue_s* queue, void* context, void (*work)(void* context));
}

namespace velvault12 {

/// Runs the work on the main thread's queue, after the current turn. May be called on any thread; what the
/// work captured is released on the main thread.
template <class Work>
void runOnMainQueue(Work work) {
  auto context = std::make_unique<Work>(std::move(work));
  dispatch_async_f(&_dispatch_main_q, context.release(), [](void* raw) {
    const std::unique_ptr<Work> owned(static_cast<Work*>(raw));
    (*owned)();
  });
}

}  // namespace velvault12
