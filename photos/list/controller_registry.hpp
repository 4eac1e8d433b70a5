#pragma once

#include <atomic>

#include "host/photos_ui.hpp"
#include "host/reference.hpp"
#include "photos/list/answer_rules.hpp"

namespace velvault12 {

/// The Photos app's objects that an answer of SpringBoard can be for, or that tell what its user has
/// selected: of each kind the latest, kept alive until another takes its place. Main thread only, but for
/// what says otherwise.
struct ControllerRegistry {
  Ref<Object> albumList;
  /// The tile that locked or that asked for its owner last.
  Ref<Object> albumTile;
  Ref<Object> lastRequesting;

  /// The view that was last given an album.
  Ref<PUPhotosAlbumViewController> albumView;
  /// What shows the library, of whatever version the app is: one of them at a time.
  Ref<Object> zoomableGrid;
  Ref<Object> photosContent;
  Ref<Object> curatedLibrary;
  /// A zoomable grid has come on screen since a view was last given an album.
  bool gridShown = false;
  /// The album last given to `albumView` is the camera roll. Any thread: lists of albums are made on others
  /// as well.
  std::atomic<bool> albumIsCameraRoll = false;

  /// Records who an answer will be for.
  void recordRequesting(Object requester);
  /// Records what shows the library, in one of the three places, in the place of all three.
  void recordLibrary(Ref<Object> ControllerRegistry::*place, Object controller);

  /// Empty where no such object has shown itself yet.
  const Ref<Object>& receiver(AnswerReceiver receiver) const;
};

/// The process's one.
ControllerRegistry& controllerRegistry();

}  // namespace velvault12
