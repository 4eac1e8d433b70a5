#pragma once

#include "host/photos_ui.hpp"
#include "host/reference.hpp"
#include "photos/list/answer_rules.hpp"

namespace velvault12 {

/// The Photos app's objects that an answer of SpringBoard can be for: of each kind the latest, kept alive
/// until another takes its place. Main thread only.
struct ControllerRegistry {
  Ref<Object> albumList;
  Ref<Object> zoomableGrid;
  Ref<Object> albumTile;
  Ref<Object> lastRequesting;

  /// Empty where no such object has shown itself yet.
  const Ref<Object>& receiver(AnswerReceiver receiver) const;
};

/// The process's one.
ControllerRegistry& controllerRegistry();

}  // namespace velvault12
