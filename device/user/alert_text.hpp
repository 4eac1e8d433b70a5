#pragma once

#include <string>
#include <string_view>

#include "device/user/user.hpp"

namespace device {

// An alert's texts as the one string that answers a command.
std::string encode(const AlertText& alert);
AlertText decodeAlertText(std::string_view encoded);

}  // namespace device
