#include "startup/service_messages.hpp"

#include "host/app_support.hpp"

namespace velvault12 {

void sendToService(std::string_view message, NSDictionary userInfo) {
  CPDistributedMessagingCenter::centerNamed(kServiceName).sendMessage(message, userInfo);
}

}  // namespace velvault12
