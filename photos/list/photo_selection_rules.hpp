#pragma once

namespace velvault12 {

/// The controllers that may hold the photos that the user means: in each of them some are selected, or none.
struct SelectionSources {
  bool albumView = false;
  bool zoomableGrid = false;
  bool photosContent = false;
  bool curatedLibrary = false;
  /// The grid of the whole library has come on screen since an album was last opened.
  bool gridShown = false;
};

enum class SelectionSource { none, albumView, zoomableGrid, photosContent, curatedLibrary };

/// The first with something selected. An album's view is asked before all others, but after them once the
/// grid has been shown: it is still there, in another tab, and so is what was selected in it.
SelectionSource selectionSource(const SelectionSources& sources);

}  // namespace velvault12
