#include "library_filter/smart_album_rules.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace velvault12 {
namespace {

// Each kind of smart album, the switch that shows it in Photos, the one in other apps, and the titles that
// hide it there; a dash for none.
constexpr const char* kKinds = R"(
200        People            People         -
201        Panoramas         Panoramas      Panoramas
202        Videos            Videos         Videos
203        Favourites        Favourites     Favorites|Favourites
204        Timelapse         Timelapse      Timelapse
205        Hidden            Hidden         -
206        -                 -              -
207        Bursts            Bursts         Bursts
208        Slowmo            Slowmo         Slo-mo
209        -                 -              -
210        Selfies           Selfies        Selfies
211        Screenshots       Screenshots    Screenshots
212        Portrait          Portrait       Portrait
213        Live              Live           Live_Photos
214        Animated          -              -
215        Exposure          Animated       Animated
216        -                 -              -
1000000201 -                 -              -
1000000203 Places            Places         Places
1000000204 -                 -              -
1000000205 -                 -              -
1000000207 Recordings        Recordings     Screen_Recordings
1000000208 RAW               RAW            RAW
1000000209 -                 -              -
0          -                 -              -
-200       -                 -              -
9223372036854775807 -        -              -
)";

const std::map<std::string, bool Settings::*> kSwitches = {
    {"People", &Settings::showPeople},
    {"Panoramas", &Settings::showPanoramas},
    {"Videos", &Settings::showVideos},
    {"Favourites", &Settings::showFavourites},
    {"Timelapse", &Settings::showTimelapse},
    {"Hidden", &Settings::showHidden},
    {"Bursts", &Settings::showBursts},
    {"Slowmo", &Settings::showSlowmo},
    {"Selfies", &Settings::showSelfies},
    {"Screenshots", &Settings::showScreenshots},
    {"Portrait", &Settings::showPortrait},
    {"Live", &Settings::showLive},
    {"Animated", &Settings::showAnimated},
    {"Exposure", &Settings::showExposure},
    {"Places", &Settings::showPlaces},
    {"Recordings", &Settings::showRecordings},
    {"RAW", &Settings::showRAW},
    {"other", &Settings::showImports},
};

using Titles = std::set<std::string, std::less<>>;

struct Kind {
  std::int64_t subtype;
  std::string inPhotos, inOtherApps;
  Titles lockedNames;
};

std::vector<Kind> kinds() {
  std::vector<Kind> all;
  std::istringstream table(kKinds);
  for (Kind kind; table >> kind.subtype >> kind.inPhotos >> kind.inOtherApps; all.push_back(kind)) {
    std::string names, name;
    table >> names;
    std::ranges::replace(names, '_', ' ');
    kind.lockedNames.clear();
    for (std::istringstream each(names); std::getline(each, name, '|');) {
      if (name != "-") kind.lockedNames.insert(name);
    }
  }
  return all;
}

TEST(SmartAlbums, AreShownByTheirSwitchAndInOtherAppsUnlessTheirNameIsLocked) {
  Titles names{"Long Exposure", "videos", "VIDEOS", "Time-lapse", "People", "Hidden", "", "Live  Photos"};
  for (const Kind& kind : kinds()) names.insert(kind.lockedNames.begin(), kind.lockedNames.end());
  // Each switch alone, off and on.
  for (const auto& [turned, member] : kSwitches) {
    for (const bool others : {true, false}) {
      Settings settings;
      for (const auto& [name, each] : kSwitches) settings.*each = others;
      settings.*member = !others;
      const auto isOn = [&, turned = &turned](const std::string& name) {
        return name == "-" || (name == *turned) != others;
      };
      for (const Kind& kind : kinds()) {
        for (const std::string& locked : names) {
          Titles titles{locked};
          EXPECT_EQ(isSmartAlbumShown(kSmartAlbumsInPhotos, kind.subtype, settings, titles),
                    isOn(kind.inPhotos))
              << kind.subtype << turned;
          EXPECT_EQ(isSmartAlbumShown(kSmartAlbumsInOtherApps, kind.subtype, settings, titles),
                    isOn(kind.inOtherApps) && !kind.lockedNames.contains(locked))
              << kind.subtype << turned << locked;
        }
      }
    }
  }
}

}  // namespace
}  // namespace velvault12
