#include "springboard/service.hpp"

#include "host/app_support.hpp"
#include "host/darwin_notifications.hpp"
#include "host/dispatch.hpp"
#include "host/local_authentication.hpp"
#include "host/process_wide.hpp"
#include "springboard/authentication_rules.hpp"
#include "startup/service_messages.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

/// The messaging centre, which is served for as long as SpringBoard lives.
struct Service {
  Ref<CPDistributedMessagingCenter> center;
};

void answer(NSMutableDictionary request, bool success) {
  request.set(key::kSuccess, NSNumber::from(success));
  request.writeToFile(NSString::from(kAnswerFile), true);
  postDarwinNotification(kAnswerNotification);
}

void askOwner(const Ref<LAContext>& context, const Ref<NSMutableDictionary>& request,
              const std::string& reason) {
  // A process without the framework cannot tell whether there is an owner to ask: the album stays closed.
  if (!context) return;
  if (!context->canEvaluatePolicy(kDeviceOwnerAuthentication)) {
    answer(request.get(), false);
    return;
  }
  // The context is among what the reply keeps: one that is released cancels the evaluation.
  context->evaluatePolicy(kDeviceOwnerAuthentication, NSString::from(reason),
                          block<void(bool, Object)>([context, request](bool success, Object) {
                            if (!success) return;
                            runOnMainQueue([request] { answer(request.get(), true); });
                          }));
}

}  // namespace

void startService(SpringBoard springBoard, Replaced<void(UIApplication)> host, UIApplication application) {
  host(application);
  const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
  processWide<Service>().center = Ref(center);
  center.runServerOnCurrentThread();
  center.registerForMessage(kSaveArrayMessage, springBoard, selector<"handleMessageNamed:withUserInfo:">());
  center.registerForMessage(kAuthenticateMessage, springBoard, selector<"authenticate:withUserInfo:">());
}

NSDictionary serveSaveArray(SpringBoard, NSString, Object userInfo) {
  const auto request = userInfo.as<NSDictionary>();
  const auto array = request[key::kArray].as<NSArray>();
  const auto path = request[key::kPath].as<NSString>();
  if (array && path) array.writeToFile(path, true);
  return {};
}

NSDictionary serveAuthenticate(SpringBoard, NSString, Object userInfo) {
  const auto request = userInfo.as<NSDictionary>();
  if (!request) return {};
  const Ref<NSMutableDictionary> reply = mutableCopy(request);
  reply->set(key::kSender, NSBundle::mainBundle().bundleIdentifier());
  reply->set(key::kType, NSString::from("SpringBoard"));
  switch (authenticationStep(settings()->passOption)) {
    case AuthenticationStep::answerNo:
      answer(reply.get(), false);
      break;
    case AuthenticationStep::answerYes:
      answer(reply.get(), true);
      break;
    case AuthenticationStep::askOwner:
      askOwner(makeObject<LAContext>(), reply, authenticationReason(stringValue(request[key::kAlbumName])));
      break;
  }
  return {};
}

}  // namespace velvault12
