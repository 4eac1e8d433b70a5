#include "photos/list/lock_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(LockedTitles, MatchToTheLetter) {
  LockedTitles titles({"Pets", "Holidays", "Pets"});
  titles.add("Caf\u00e9");
  EXPECT_TRUE(titles.contains("Caf\u00e9"));
  EXPECT_FALSE(titles.contains("Cafe\u0301"));
  EXPECT_FALSE(titles.contains("pets"));
  EXPECT_FALSE(titles.contains("Pet"));
  titles.add("");
  EXPECT_FALSE(LockedTitles({""}).contains(""));
  titles.remove("Pets");
  EXPECT_EQ(titles.all(), (std::vector<std::string>{"Holidays", "Caf\u00e9"}));
}

TEST(LongPress, UnlocksOnlyWithAPass) {
  for (const bool hasPass : {false, true})
    EXPECT_EQ(longPressOutcome(false, hasPass), LongPressOutcome::lock);
  EXPECT_EQ(longPressOutcome(true, false), LongPressOutcome::askOwner);
  EXPECT_EQ(longPressOutcome(true, true), LongPressOutcome::removeLock);
}

TEST(ReturnToMain, AlwaysOrAfterALockedAlbum) {
  EXPECT_FALSE(returnsToMainView(false, false, true));
  EXPECT_FALSE(returnsToMainView(false, true, false));
  EXPECT_TRUE(returnsToMainView(false, true, true));
  EXPECT_TRUE(returnsToMainView(true, false, false));
}

}  // namespace
}  // namespace velvault12
