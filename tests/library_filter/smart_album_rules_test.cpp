#include "library_filter/smart_album_rules.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace velvault12 {
namespace {

using Titles = std::set<std::string, std::less<>>;

struct Kind {
  std::int64_t subtype;
  bool Settings::*shows;
  Titles lockedNames;
};
// clang-format off
#define KIND(subtype, name, ...) {subtype, &Settings::show##name, {__VA_ARGS__}}
/// As they are in Photos, with the names that hide them in other apps.
const Kind kKinds[] = {
  KIND(200, People), KIND(201, Panoramas, "Panoramas"), KIND(202, Videos, "Videos"),
  KIND(203, Favourites, "Favorites", "Favourites"), KIND(204, Timelapse, "Timelapse"), KIND(205, Hidden),
  KIND(207, Bursts, "Bursts"), KIND(208, Slowmo, "Slo-mo"), KIND(210, Selfies, "Selfies"),
  KIND(211, Screenshots, "Screenshots"), KIND(212, Portrait, "Portrait"), KIND(213, Live, "Live Photos"),
  KIND(214, Animated), KIND(215, Exposure, "Animated"), KIND(1000000203, Places, "Places"),
  KIND(1000000207, Recordings, "Screen Recordings"), KIND(1000000208, RAW, "RAW")};
// clang-format on

bool inPhotos(std::int64_t subtype, const Settings& settings, Titles titles = {}) {
  return isSmartAlbumShown(kSmartAlbumsInPhotos, subtype, settings, titles);
}
bool inOtherApps(std::int64_t subtype, const Settings& settings, Titles titles = {}) {
  return isSmartAlbumShown(kSmartAlbumsInOtherApps, subtype, settings, titles);
}

TEST(SmartAlbums, FollowTheirSwitchAndTheirLockedNames) {
  Titles all{"Long Exposure", "videos", "Time-lapse", "People", "Hidden", "", "Live  Photos"};
  for (const Kind& kind : kKinds) all.insert(kind.lockedNames.begin(), kind.lockedNames.end());
  const Settings everything{.showHidden = true};
  for (const Kind& turned : kKinds) {
    Settings settings = everything;
    settings.*turned.shows = false;
    for (const auto& [subtype, shows, names] : kKinds) {
      SCOPED_TRACE(testing::Message() << subtype << " without " << turned.subtype);
      EXPECT_EQ(inPhotos(subtype, settings, all), settings.*shows);
      // The switch of the animated ones counts for the long exposures there.
      EXPECT_EQ(inOtherApps(subtype, settings),
                subtype == 214 || (subtype == 215 ? settings.showAnimated : settings.*shows));
    }
    for (const std::string& locked : all) {
      EXPECT_EQ(inOtherApps(turned.subtype, everything, {locked}), !turned.lockedNames.contains(locked))
          << turned.subtype << locked;
    }
    for (const std::int64_t other : {0L, 206L, 209L, 216L, 1000000201L, 1000000204L, 1000000205L})
      EXPECT_TRUE(inPhotos(other, settings) && inOtherApps(other, settings)) << other;
  }
}

}  // namespace
}  // namespace velvault12
