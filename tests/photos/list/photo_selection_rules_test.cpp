#include "photos/list/photo_selection_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(Selection, IsTheFirstThatThereIs) {
  using enum SelectionSource;
  EXPECT_EQ(selectionSource({}), none);
  EXPECT_EQ(selectionSource({.gridShown = true}), none);
  EXPECT_EQ(selectionSource({.albumView = true, .zoomableGrid = true}), albumView);
  // The album's view is passed over once the grid has been shown, unless nothing else is selected.
  for (const bool gridShown : {true, false}) {
    SelectionSources sources{gridShown, true, true, true, gridShown};
    EXPECT_EQ(selectionSource(sources), zoomableGrid);
    sources.zoomableGrid = false;
    EXPECT_EQ(selectionSource(sources), photosContent);
    sources.photosContent = false;
    EXPECT_EQ(selectionSource(sources), curatedLibrary);
  }
  EXPECT_EQ(selectionSource({.albumView = true, .gridShown = true}), albumView);
}

}  // namespace
}  // namespace velvault12
