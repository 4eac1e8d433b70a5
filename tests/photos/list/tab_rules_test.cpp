#include "photos/list/tab_rules.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace velvault12 {
namespace {

/// With these tabs on: M(oments), m(emories), s(hared), a(lbums).
Settings withTabs(std::string_view on) {
  const auto has = [&](char tab) { return on.find(tab) != std::string_view::npos; };
  Settings settings;
  settings.showTabMoments = has('M');
  settings.showTabMemories = has('m');
  settings.showTabShared = has('s');
  settings.showTabAlbums = has('a');
  return settings;
}

TEST(Tabs, AreLeftOutByTheirNumbersButForTheLastOne) {
  using Modes = std::vector<int>;
  struct Case {
    std::string_view on;
    Modes excluded;
    bool isOne;
  };
  // Before iOS 13.
  const Case cases[] = {
      {"Mmsa", {}, false},    {"Mms", {13}, false},     {"Mma", {12}, false},     {"Mm", {12, 13}, false},
      {"Msa", {11}, false},   {"Ms", {11, 13}, false},  {"Ma", {11, 12}, false},  {"M", {11, 12, 13}, true},
      {"msa", {0}, false},    {"ms", {0, 13}, false},   {"ma", {0, 12}, false},   {"m", {0, 12, 13}, true},
      {"sa", {0, 11}, false}, {"s", {0, 11, 13}, true}, {"a", {0, 11, 12}, true}, {"", {0, 11, 12}, false},
  };
  for (const auto& [on, excluded, isOne] : cases) {
    const Settings settings = withTabs(on);
    const auto left = [&](double version) {
      Modes modes;
      for (const auto mode : excludedContentModes(settings, version)) {
        if (mode) modes.push_back(*mode);
      }
      return modes;
    };
    Modes later = excluded;
    std::replace(later.begin(), later.end(), 0, 10);
    EXPECT_EQ(left(1443.0), excluded) << on;
    EXPECT_EQ(left(1620.0), excluded) << on;
    EXPECT_EQ(left(1620.01), later) << on;
    EXPECT_EQ(left(1740.0), later) << on;
    EXPECT_EQ(hasOneTab(settings), isOne) << on;
  }
}

}  // namespace
}  // namespace velvault12
