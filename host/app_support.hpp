#pragma once

#include <string_view>

#include "host/foundation.hpp"

extern "C" void rocketbootstrap_distributedmessagingcenter_apply(objc_object* center);

namespace velvault12 {

/// A named channel of messages between processes, of which one is its server. Its framework is private: where
/// a method is gone nothing is sent, or served.
class CPDistributedMessagingCenter : public HostClass<"CPDistributedMessagingCenter"> {
 public:
  using HostClass::HostClass;

  /// Opened to sandboxed apps. Nil in a process without the framework.
  static CPDistributedMessagingCenter centerNamed(std::string_view name) {
    const auto center = trySendToClass<"centerNamed:", CPDistributedMessagingCenter(NSString)>(
        hostClass(), NSString::from(name));
    if (center) rocketbootstrap_distributedmessagingcenter_apply(center.get());
    return center;
  }

  /// Makes the calling thread's run loop the server's.
  void runServerOnCurrentThread() const { trySend<"runServerOnCurrentThread", void()>(); }
  /// The target, which is not retained, is sent `handler` with the message's name and user info.
  void registerForMessage(std::string_view name, Object target, SEL handler) const {
    trySend<"registerForMessageName:target:selector:", void(NSString, Object, SEL)>(NSString::from(name),
                                                                                    target, handler);
  }
  /// One way: the sender neither waits nor learns what became of it.
  void sendMessage(std::string_view name, NSDictionary userInfo) const {
    trySend<"sendMessageName:userInfo:", bool(NSString, NSDictionary)>(NSString::from(name), userInfo);
  }
};

}  // namespace velvault12
