#include "photos/list/tab_rules.hpp"

#include <gtest/gtest.h>

#include <string>

namespace velvault12 {
namespace {

/// With these on: M(oments), m(emories), s(hared), a(lbums).
Settings withTabs(const std::string& on) {
  const auto has = [&](char tab) { return on.find(tab) != std::string::npos; };
  return {.showTabMoments = has('M'),
          .showTabMemories = has('m'),
          .showTabShared = has('s'),
          .showTabAlbums = has('a')};
}

std::string excluded(const std::string& on, double version = 1620.0) {
  std::string modes;
  for (const auto mode : excludedContentModes(withTabs(on), version))
    if (mode) modes += std::to_string(*mode) + ' ';
  return modes;
}

TEST(Tabs, AreExcludedExceptTheLast) {
  EXPECT_EQ(excluded("Mmsa"), "");
  EXPECT_EQ(excluded("msa"), "0 ");
  EXPECT_EQ(excluded("Msa"), "11 ");
  EXPECT_EQ(excluded("Mma"), "12 ");
  EXPECT_EQ(excluded("Mms"), "13 ");
  EXPECT_EQ(excluded("M"), "11 12 13 ");
  EXPECT_EQ(excluded("m"), "0 12 13 ");
  EXPECT_EQ(excluded("s"), "0 11 13 ");
  for (const char* on : {"a", ""}) EXPECT_EQ(excluded(on), "0 11 12 ");
  EXPECT_EQ(excluded("", 1620.01), "10 11 12 ") << "from iOS 13 on";
  for (const char* on : {"M", "m", "s", "a"}) EXPECT_TRUE(hasOneTab(withTabs(on))) << on;
  for (const char* on : {"", "Mm", "sa", "Mmsa"}) EXPECT_FALSE(hasOneTab(withTabs(on))) << on;
}

}  // namespace
}  // namespace velvault12
