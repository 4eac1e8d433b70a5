#pragma once

#include <nlohmann/json.hpp>

#include "device/user/user.hpp"

namespace device {

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(AlertText, title, message, fields, buttons)

NLOHMANN_JSON_SERIALIZE_ENUM(OwnerAnswer, {{OwnerAnswer::cancel, "cancel"},
                                           {OwnerAnswer::success, "success"},
                                           {OwnerAnswer::failure, "failure"}})

}  // namespace device
