#include "springboard/authentication_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(Authentication, NamesTheAlbumOrSaysThatThereIsNone) {
  EXPECT_EQ(authenticationReason(""), " needs to be unlocked.");
  EXPECT_EQ(authenticationReason(std::nullopt), "(null) needs to be unlocked.");
}

}  // namespace
}  // namespace velvault12
