#import "device/frameworks/AppSupport.h"

#include <cerrno>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "device/frameworks/Foundation/property_list.hpp"
#include "device/system/frame_server.hpp"
#include "device/system/process.hpp"
#include "device/system/sockets.hpp"

struct CenterState {
  explicit CenterState(std::string centerName) : name(std::move(centerName)) {}

  std::filesystem::path socket(bool isUnlocked) const {
    return device::identity().folder / "run" / (isUnlocked ? "bootstrap" : "mach") /
           device::fileNameOf(name) / "socket";
  }

  // The sandbox hides every centre from an app but those that are unlocked at both ends.
  device::Descriptor connect() const {
    device::Descriptor connection;
    if (isUnlocked || !device::isSandboxed()) connection = device::connectTo(socket(true));
    if (!connection && !device::isSandboxed()) connection = device::connectTo(socket(false));
    return connection;
  }

  // A server that ended since the last message may have a successor.
  bool send(std::string_view frame) {
    const std::lock_guard lock(sending);
    for (int attempt = 0; attempt < 2; attempt++) {
      if (!connection) connection = connect();
      if (!connection) return false;
      if (device::sendFrame(connection.get(), frame)) return true;
      const int reason = errno;
      connection = device::Descriptor();
      if (reason != EPIPE && reason != ECONNRESET) return false;
    }
    return false;
  }

  struct Handler {
    id target;
    SEL selector;
  };

  void receive(std::string_view frame) const {
    NSDictionary* message = device::propertyListIn(frame, [NSDictionary class]);
    id messageName = [message objectForKey:@"name"];
    id userInfo = [message objectForKey:@"userInfo"];
    if (![messageName isKindOfClass:[NSString class]]) return;
    if (![userInfo isKindOfClass:[NSDictionary class]]) userInfo = nil;

    const auto found = handlers.find(device::utf8(messageName));
    if (found == handlers.end()) return;
    const auto [target, selector] = found->second;
    using Method = void (*)(id, SEL, NSString*, NSDictionary*);
    reinterpret_cast<Method>([target methodForSelector:selector])(target, selector, messageName, userInfo);
  }

  const std::string name;
  bool isUnlocked = false;
  std::map<std::string, Handler> handlers;
  std::unique_ptr<device::FrameServer> server;
  std::mutex sending;
  device::Descriptor connection;
};

@implementation CPDistributedMessagingCenter

+ (CPDistributedMessagingCenter*)centerNamed:(NSString*)name {
  static auto& centers = *new std::map<std::string, CPDistributedMessagingCenter*>;
  static std::mutex access;
  const std::lock_guard lock(access);
  CPDistributedMessagingCenter*& center = centers[device::utf8(name)];
  if (!center) {
    center = [self new];
    center->state_ = new CenterState(device::utf8(name));
  }
  return center;
}

- (void)runServerOnCurrentThread {
  if (state_->server) return;
  auto receive = [state = state_](const std::string& frame) -> std::optional<std::string> {
    state->receive(frame);
    return std::nullopt;
  };
  state_->server =
      std::make_unique<device::FrameServer>(state_->socket(state_->isUnlocked), std::move(receive));
  if (state_->server->isServing()) return;
  NSLog(@"%s is served by another process", state_->name.c_str());
  state_->server.reset();
}

- (void)registerForMessageName:(NSString*)message target:(id)target selector:(SEL)selector {
  state_->handlers[device::utf8(message)] = {target, selector};
}

- (BOOL)sendMessageName:(NSString*)message userInfo:(NSDictionary*)userInfo {
  NSMutableDictionary* parts = [NSMutableDictionary dictionary];
  if (message) [parts setObject:message forKey:@"name"];
  if (userInfo) [parts setObject:userInfo forKey:@"userInfo"];
  const std::optional<std::string> frame = device::xmlPropertyListOf(parts);
  return frame && state_->send(*frame);
}

- (BOOL)doesServerExist {
  return static_cast<bool>(state_->connect());
}

@end

void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter* center) {
  if (center) center->state_->isUnlocked = true;
}
