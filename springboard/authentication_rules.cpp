#include "springboard/authentication_rules.hpp"

namespace velvault12 {

AuthenticationStep authenticationStep(int passOption) {
  switch (passOption) {
    case 0:
      return AuthenticationStep::askOwner;
    case 1:
      return AuthenticationStep::answerNo;
    default:
      return AuthenticationStep::answerYes;
  }
}

std::string authenticationReason(const std::optional<std::string>& album) {
  return album.value_or("(null)") + " needs to be unlocked.";
}

}  // namespace velvault12
