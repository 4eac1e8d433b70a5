#include "photos/list/photo_selection_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(Selection, IsTheFirstThatThereIs) {
  using enum SelectionSource;
  const struct {
    SelectionSources sources;
    SelectionSource expected;
  } cases[] = {
      {{}, none},
      {{.gridShown = true}, none},
      {{.albumView = true, .zoomableGrid = true, .photosContent = true, .curatedLibrary = true}, albumView},
      {{.zoomableGrid = true, .photosContent = true, .curatedLibrary = true}, zoomableGrid},
      {{.photosContent = true, .curatedLibrary = true}, photosContent},
      {{.curatedLibrary = true}, curatedLibrary},
      // The album's view is passed over once the grid has been shown, unless nothing else is selected.
      {{.albumView = true, .zoomableGrid = true, .gridShown = true}, zoomableGrid},
      {{.albumView = true, .photosContent = true, .gridShown = true}, photosContent},
      {{.albumView = true, .curatedLibrary = true, .gridShown = true}, curatedLibrary},
      {{.albumView = true, .gridShown = true}, albumView},
  };
  for (const auto& each : cases) EXPECT_EQ(selectionSource(each.sources), each.expected) << &each - cases;
}

}  // namespace
}  // namespace velvault12
