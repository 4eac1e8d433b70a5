#include "device/frameworks/Foundation/timers.hpp"

#import <Foundation/Foundation.h>

#include "device/system/method_replacement.hpp"

namespace device {
namespace {

using Fire = void (*)(NSTimer*, SEL);
Fire hostFire;

void fire(NSTimer* self, SEL command) {
  // One of an invocation or a block, such as the run loop's own.
  if (!self->_selector) return hostFire(self, command);
  // The target may end the timer, which releases it.
  id target = [[self->_target retain] autorelease];
  [[self retain] autorelease];
  [target performSelector:self->_selector withObject:self];
  if (!self->_repeats) [self invalidate];
}

}  // namespace

void letTimersRaise() {
  hostFire =
      reinterpret_cast<Fire>(replaceMethod([NSTimer class], @selector(fire), reinterpret_cast<IMP>(fire)));
}

}  // namespace device
