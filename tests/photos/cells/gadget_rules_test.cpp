#include "photos/cells/gadget_rules.hpp"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace velvault12 {
namespace {

/// Strips of the user's own albums, of shared ones, of people and places, a list, what is neither, and what
/// is a strip of people and a list at once.
const std::map<char, GadgetWalk::Gadget> kGadgets{
    {'o', {1, 1}}, {'s', {2, 1}}, {'p', {3, 1}}, {'l', {std::nullopt, 10}}, {'-', {std::nullopt, 3}},
    {'b', {3, 10}}};

/// What is left of these without S(hared albums), P(eople), M(edia types), O(ther albums).
std::string shown(const std::string& gadgets, const std::string& off) {
  const auto isOn = [&](char name) { return off.find(name) == std::string::npos; };
  const Settings settings{.showSharedAlbums = isOn('S'),
                          .showPeopleAnd = isOn('P'),
                          .showMediaTypes = isOn('M'),
                          .showOtherAlbums = isOn('O')};
  GadgetWalk walk(settings);
  std::string left;
  for (const char each : gadgets)
    if (walk.shows(kGadgets.at(each))) left += each;
  return left;
}

TEST(Gadgets, FollowTheSwitchesByKindAndPlace) {
  EXPECT_EQ(shown("ospl-blo", ""), "ospl-blo");
  EXPECT_EQ(shown("ospls", "S"), "opl");
  EXPECT_EQ(shown("opblpb", "P"), "ol");
  EXPECT_EQ(shown("lol-l", "M"), "ol-l") << "only the first list is that of the media types";
  EXPECT_EQ(shown("lol", "O"), "lol");
  EXPECT_EQ(shown("lol-l", "MO"), "o-");
  EXPECT_EQ(shown("bll", "PM"), "ll");
  EXPECT_EQ(shown("spol-", "SPMO"), "o-");
}

}  // namespace
}  // namespace velvault12
