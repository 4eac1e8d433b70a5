#include "photos/list/authentication_answer.hpp"

#include <string>

#include "host/foundation.hpp"
#include "photos/list/answer_rules.hpp"
#include "photos/list/controller_registry.hpp"
#include "startup/host_plan_rules.hpp"
#include "startup/service_messages.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

void answerArrived() {
  if (NSBundle::mainBundle().bundleIdentifier().utf8() != kPhotosIdentifier) return;
  const NSDictionary answer = NSDictionary::contentsOfFile(kAnswerFile);
  const int method = intValue(answer[key::kMethod]).value_or(0);
  const std::string className = stringValue(answer[key::kController]).value_or(std::string());
  const bool success = boolValue(answer[key::kSuccess]).value_or(false);
  // Kept while it works: what it does may record another object in its place.
  const Ref<Object> receiver = controllerRegistry().receiver(answerReceiver(className));
  switch (answerStep(success, settings()->passOption)) {
    case AnswerStep::unlock:
      receiver->trySend<"unlockAuthorised:", void(int)>(method);
      break;
    case AnswerStep::requestPassword:
      receiver->trySend<"requestPassword:", void(int)>(method);
      break;
  }
}

}  // namespace velvault12
