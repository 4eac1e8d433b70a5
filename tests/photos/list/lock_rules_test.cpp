#include "photos/list/lock_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(LockedTitles, MatchToTheLetterAndGoAllAtOnce) {
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

TEST(LongPress, LocksFreelyAndUnlocksOnlyWithAPass) {
  EXPECT_EQ(longPressOutcome(false, false), LongPressOutcome::lock);
  EXPECT_EQ(longPressOutcome(false, true), LongPressOutcome::lock);
  EXPECT_EQ(longPressOutcome(true, false), LongPressOutcome::askOwner);
  EXPECT_EQ(longPressOutcome(true, true), LongPressOutcome::removeLock);
}

TEST(Password, IsComparedWithAllThatIsStored) {
  EXPECT_EQ(passwordOutcome("open\n", "open"), PasswordOutcome::isWrong);
}

TEST(ReturnToMain, AlwaysOrAfterALockedAlbum) {
  for (const bool opened : {false, true}) {
    EXPECT_FALSE(returnsToMainView(false, false, opened));
    EXPECT_EQ(returnsToMainView(false, true, opened), opened);
    EXPECT_TRUE(returnsToMainView(true, false, opened));
    EXPECT_TRUE(returnsToMainView(true, true, opened));
  }
}

}  // namespace
}  // namespace velvault12
