#pragma once

#include "host/block.hpp"
#include "host/foundation.hpp"

namespace velvault12 {

/// Biometrics, with the passcode to fall back to.
inline constexpr NSInteger kDeviceOwnerAuthentication = 2;

class LAContext : public HostClass<"LAContext"> {
 public:
  using HostClass::HostClass;
  bool canEvaluatePolicy(NSInteger policy) const {
    return send<"canEvaluatePolicy:error:", bool(NSInteger, id*)>(policy, nullptr);
  }
  /// The reason is shown to the owner and must not be empty. The reply comes on a queue of its own; a context
  /// that is released before it cancels the evaluation.
  void evaluatePolicy(NSInteger policy, NSString reason, Block<void(bool, Object)> reply) const {
    send<"evaluatePolicy:localizedReason:reply:", void(NSInteger, NSString, Block<void(bool, Object)>)>(
        policy, reason, reply);
  }
};

}  // namespace velvault12
