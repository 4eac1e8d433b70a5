#include "photos/list/controller_registry.hpp"

#include "host/process_wide.hpp"

namespace velvault12 {

const Ref<Object>& ControllerRegistry::receiver(AnswerReceiver receiver) const {
  switch (receiver) {
    case AnswerReceiver::albumList:
      return albumList;
    case AnswerReceiver::zoomableGrid:
      return zoomableGrid;
    case AnswerReceiver::albumTile:
      return albumTile;
    case AnswerReceiver::lastRequesting:
      break;
  }
  return lastRequesting;
}

ControllerRegistry& controllerRegistry() { return processWide<ControllerRegistry>(); }

}  // namespace velvault12
