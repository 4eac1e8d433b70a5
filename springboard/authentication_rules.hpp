#pragma once

#include <optional>
#include <string>

namespace velvault12 {

/// How a request to authenticate the phone's owner is met.
enum class AuthenticationStep { askOwner, answerNo, answerYes };

AuthenticationStep authenticationStep(int passOption);

/// What the sheet tells the owner. A request that names no album still has to be readable.
std::string authenticationReason(const std::optional<std::string>& album);

}  // namespace velvault12
