#pragma once

namespace device {

/// Lets what a timer's target raises end the process, as on a phone. GNUstep would tell it on the log and go
/// on.
void letTimersRaise();

}  // namespace device
