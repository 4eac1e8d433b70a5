#include "photos/list/tab_rules.hpp"

namespace velvault12 {

namespace {

/// From iOS 13 on the first tab is another one, with a number of its own.
constexpr double kLastVersionWithMoments = 1620.0;
constexpr int kMoments = 0;
constexpr int kPhotos = 10;
constexpr int kMemories = 11;
constexpr int kShared = 12;
constexpr int kAlbums = 13;

}  // namespace

std::vector<int> excludedContentModes(const Settings& settings, double systemVersion) {
  std::vector<int> modes;
  if (!settings.showTabMoments) modes.push_back(systemVersion > kLastVersionWithMoments ? kPhotos : kMoments);
  if (!settings.showTabMemories) modes.push_back(kMemories);
  if (!settings.showTabShared) modes.push_back(kShared);
  const bool isAnyLeft = modes.size() < 3;
  if (!settings.showTabAlbums && isAnyLeft) modes.push_back(kAlbums);
  return modes;
}

bool hasOneTab(const Settings& settings) {
  return settings.showTabMoments + settings.showTabMemories + settings.showTabShared +
             settings.showTabAlbums ==
         1;
}

}  // namespace velvault12
