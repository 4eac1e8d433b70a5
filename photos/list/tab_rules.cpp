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

std::optional<int> unless(bool isShown, int mode) { return isShown ? std::nullopt : std::optional(mode); }

}  // namespace

std::array<std::optional<int>, 4> excludedContentModes(const Settings& settings, double systemVersion) {
  const bool isAnyLeft = settings.showTabMoments || settings.showTabMemories || settings.showTabShared;
  return {unless(settings.showTabMoments, systemVersion > kLastVersionWithMoments ? kPhotos : kMoments),
          unless(settings.showTabMemories, kMemories), unless(settings.showTabShared, kShared),
          unless(settings.showTabAlbums || !isAnyLeft, kAlbums)};
}

bool hasOneTab(const Settings& settings) {
  return settings.showTabMoments + settings.showTabMemories + settings.showTabShared +
             settings.showTabAlbums ==
         1;
}

}  // namespace velvault12
