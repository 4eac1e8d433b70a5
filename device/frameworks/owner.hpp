#pragma once

#include <string>

#include "device/user/user.hpp"

namespace device {

/// The reason that the owner reads on the sheet in front; "" when nobody asks.
std::string pendingOwnerRequest();

/// Answers the sheet in front. Throws std::runtime_error without one.
void answerPendingOwnerRequest(OwnerAnswer answer);

/// Whether the phone has a passcode. It has, at first.
void setPasscode(bool present);

}  // namespace device
