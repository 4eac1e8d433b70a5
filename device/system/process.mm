#include "device/system/process.hpp"

#import <Foundation/Foundation.h>
#include <fcntl.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

#include "device/frameworks/Dispatch.hpp"
#include "device/frameworks/Foundation/disk_methods.hpp"
#include "device/frameworks/Foundation/timers.hpp"
#include "device/system/sockets.hpp"

namespace device {
namespace {

namespace fs = std::filesystem;

Identity& ownIdentity() {
  static Identity identity;
  return identity;
}

void appendToLog(NSString* line) {
  static const Descriptor log(
      ::open((identity().folder / "log" / (identity().bundleIdentifier + ".log")).c_str(),
             O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644));
  NSData* bytes = [line dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
  if (::write(log.get(), [bytes bytes], [bytes length]) < 0) return;
}

}  // namespace

void become(Identity identity) {
  if (!ownIdentity().folder.empty()) throw std::runtime_error("this process is an app of a device already");
  identity.folder = fs::absolute(identity.folder).lexically_normal();
  ownIdentity() = std::move(identity);
  fs::current_path(ownIdentity().folder / "disk");

  // Never drained: what is autoreleased outside of the run loop lives as long as the process.
  [NSAutoreleasePool new];
  _NSLog_printf_handler = appendToLog;
  leadFoundationToDisk();
  letTimersRaise();
  openMainQueue();
}

const Identity& identity() { return ownIdentity(); }

bool isSandboxed() { return identity().bundleIdentifier != kSpringBoard; }

}  // namespace device
