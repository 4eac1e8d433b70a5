#include "photos/cells/gadget_rules.hpp"

#include <gtest/gtest.h>

#include <string>

namespace velvault12 {
namespace {

/// The parts of a tab, one letter each: strips of the user's own albums, of shared ones, of people and
/// places, a list, what is neither, and what is a strip of people and a list at once.
constexpr std::string_view kParts = "ospl-b";

GadgetWalk::Gadget gadgetFor(char part) {
  switch (part) {
    case 'o':
      return {1, 1};
    case 's':
      return {2, 1};
    case 'p':
      return {3, 1};
    case 'l':
      return {std::nullopt, 10};
    case 'b':
      return {3, 10};
    default:
      return {std::nullopt, 3};
  }
}

/// The strips of shared albums, and of people and places, each go by their own switch. If the media types are
/// shown, all lists are. If not, the first list is left out, and the others are there as the other albums
/// are.
std::string expected(const std::string& parts, const Settings& settings) {
  const auto isList = [](char part) { return part == 'l' || part == 'b'; };
  const std::size_t firstList = parts.find_first_of("lb");
  std::string shown;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const char part = parts[i];
    if (part == 's' && !settings.showSharedAlbums) continue;
    if ((part == 'p' || part == 'b') && !settings.showPeopleAnd) continue;
    if (isList(part) && !settings.showMediaTypes && (i == firstList || !settings.showOtherAlbums)) continue;
    shown += part;
  }
  return shown;
}

TEST(Gadgets, AreLeftOutByTheirKindAndPlaceInEverySequenceOfFour) {
  std::vector<std::string> sequences{""};
  for (std::size_t i = 0; sequences[i].size() < 4; ++i) {
    for (const char part : kParts) sequences.push_back(sequences[i] + part);
  }
  ASSERT_EQ(sequences.size(), 1u + 6 + 36 + 216 + 1296);
  for (unsigned switches = 0; switches < 16; ++switches) {
    const Settings settings{.showSharedAlbums = (switches & 1) != 0,
                            .showPeopleAnd = (switches & 2) != 0,
                            .showMediaTypes = (switches & 4) != 0,
                            .showOtherAlbums = (switches & 8) != 0};
    for (const std::string& parts : sequences) {
      GadgetWalk walk(settings);
      std::string shown;
      for (const char part : parts) {
        if (walk.shows(gadgetFor(part))) shown += part;
      }
      EXPECT_EQ(shown, expected(parts, settings)) << parts << " with switches " << switches;
    }
  }
}

}  // namespace
}  // namespace velvault12
