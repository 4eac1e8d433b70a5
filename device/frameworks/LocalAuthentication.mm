#import "device/frameworks/LocalAuthentication.h"

#include <Block.h>

#include <deque>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

#include "device/frameworks/Foundation/property_list.hpp"
#include "device/frameworks/owner.hpp"

NSString* const LAErrorDomain = @"com.apple.LocalAuthentication";

namespace device {
namespace {

struct Request {
  // Compared only: the context is not kept alive.
  const LAContext* context;
  std::string reason;
  void (^reply)(BOOL, NSError*);
};

class Owner {
 public:
  static Owner& instance() {
    static Owner* const owner = new Owner;
    return *owner;
  }

  bool hasPasscode() {
    const std::lock_guard lock(mutex_);
    return hasPasscode_;
  }

  void setPasscode(bool present) {
    const std::lock_guard lock(mutex_);
    hasPasscode_ = present;
  }

  void ask(Request request) {
    const std::lock_guard lock(mutex_);
    requests_.push_back(std::move(request));
  }

  std::string reason() {
    const std::lock_guard lock(mutex_);
    return requests_.empty() ? "" : requests_.front().reason;
  }

  /// The oldest request, or the oldest of that context; it is asked no more.
  std::optional<Request> take(const LAContext* context = nil) {
    const std::lock_guard lock(mutex_);
    for (auto request = requests_.begin(); request != requests_.end(); ++request) {
      if (context && request->context != context) continue;
      const Request taken = *request;
      requests_.erase(request);
      return taken;
    }
    return std::nullopt;
  }

 private:
  std::mutex mutex_;
  std::deque<Request> requests_;
  bool hasPasscode_ = true;
};

NSError* errorOf(LAError code) { return [NSError errorWithDomain:LAErrorDomain code:code userInfo:nil]; }

// Takes over the copied block, which it calls on the thread that it answers. Success without an error code.
std::thread reply(void (^block)(BOOL, NSError*), std::optional<LAError> failure) {
  return std::thread([block, failure] {
    GSRegisterCurrentThread();
    NSAutoreleasePool* pool = [NSAutoreleasePool new];
    block(!failure, failure ? errorOf(*failure) : nil);
    Block_release(block);
    [pool drain];
    GSUnregisterCurrentThread();
  });
}

}  // namespace

std::string pendingOwnerRequest() { return Owner::instance().reason(); }

void answerPendingOwnerRequest(OwnerAnswer answer) {
  const std::optional<Request> request = Owner::instance().take();
  if (!request) throw std::runtime_error("nobody asks for the owner");
  std::optional<LAError> failure;
  if (answer == OwnerAnswer::cancel) failure = LAErrorUserCancel;
  if (answer == OwnerAnswer::failure) failure = LAErrorAuthenticationFailed;
  reply(request->reply, failure).join();
}

void setPasscode(bool present) { Owner::instance().setPasscode(present); }

}  // namespace device

@implementation LAContext

- (BOOL)canEvaluatePolicy:(NSInteger)policy error:(NSError**)error {
  // This owner has a passcode at most: no finger and no face is enrolled.
  if (policy != LAPolicyDeviceOwnerAuthentication) {
    if (error) *error = device::errorOf(LAErrorBiometryNotEnrolled);
    return NO;
  }
  const bool can = device::Owner::instance().hasPasscode();
  if (!can && error) *error = device::errorOf(LAErrorPasscodeNotSet);
  return can;
}

- (void)evaluatePolicy:(NSInteger)policy
       localizedReason:(NSString*)reason
                 reply:(void (^)(BOOL, NSError*))reply {
  if ([reason length] == 0 || !reply) {
    [NSException raise:NSInvalidArgumentException
                format:@"-[LAContext %@] needs a reason and a reply", NSStringFromSelector(_cmd)];
  }
  if (![self canEvaluatePolicy:policy error:NULL])
    return device::reply(Block_copy(reply), LAErrorPasscodeNotSet).detach();
  device::Owner::instance().ask({self, device::utf8(reason), Block_copy(reply)});
}

- (void)dealloc {
  while (const auto request = device::Owner::instance().take(self)) {
    device::reply(request->reply, LAErrorAppCancel).detach();
  }
  [super dealloc];
}

@end
