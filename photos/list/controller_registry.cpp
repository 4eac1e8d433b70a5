#include "photos/list/controller_registry.hpp"

#include "host/process_wide.hpp"

namespace velvault12 {

void ControllerRegistry::recordRequesting(Object requester) {
  lastRequesting = Ref(requester);
  // Of two lists, the picker over the other one, the answer is for the one that asked.
  if (requester.as<PUAlbumListViewController>()) albumList = lastRequesting;
  if (requester.as<PUAlbumListCellContentView>()) albumTile = lastRequesting;
}

void ControllerRegistry::recordLibrary(Ref<Object> ControllerRegistry::*place, Object controller) {
  // Kept while the others go: one of them may be the last to hold it.
  const Ref<Object> shown(controller);
  zoomableGrid = {};
  photosContent = {};
  curatedLibrary = {};
  this->*place = shown;
}

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
