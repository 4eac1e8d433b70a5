#include "springboard/authentication_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(Authentication, AsksTheOwnerOnlyWhenTheUserChoseSo) {
  EXPECT_EQ(authenticationStep(0), AuthenticationStep::askOwner);
  EXPECT_EQ(authenticationStep(1), AuthenticationStep::answerNo);
  for (const int other : {2, 3, -1, 1 << 30})
    EXPECT_EQ(authenticationStep(other), AuthenticationStep::answerYes);
}

TEST(Authentication, NamesTheAlbumOrSaysThatThereIsNone) {
  EXPECT_EQ(authenticationReason("100 % \u2603"), "100 % \u2603 needs to be unlocked.");
  EXPECT_EQ(authenticationReason(""), " needs to be unlocked.");
  EXPECT_EQ(authenticationReason(std::nullopt), "(null) needs to be unlocked.");
}

}  // namespace
}  // namespace velvault12
