#pragma once

struct dispatch_queue_s;
using dispatch_queue_t = dispatch_queue_s*;

extern "C" {
/// The main queue is the one queue of this phone.
extern dispatch_queue_s _dispatch_main_q;
/// Performs the work in its turn on the main thread's run loop. From any thread.
void dispatch_async_f(dispatch_queue_t queue, void* context, void (*work)(void*));
}

namespace device {

/// Connects the main queue to the run loop of this thread, the main one. Once a process.
void openMainQueue();

}  // namespace device
