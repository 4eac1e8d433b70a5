#include "photos/list/tabs.hpp"

#include <optional>
#include <utility>

#include "host/system_version.hpp"
#include "photos/list/tab_rules.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

bool hasOneItem(UITabBar bar) { return isEnabled() && bar.items().count() == 1; }

}  // namespace

bool isOneTabChosen() {
  const auto chosen = settings();
  return chosen->enabled && hasOneTab(*chosen);
}

NSArray excludedTabs(PUTabbedLibraryViewController, Replaced<NSArray()> host) {
  const auto chosen = settings();
  if (!chosen->enabled) return host();
  auto excluded = makeObject<NSMutableArray>();
  for (const std::optional<int> mode : excludedContentModes(*chosen, coreFoundationVersion())) {
    if (mode) excluded->addObject(NSNumber::from(*mode));
  }
  return std::move(excluded).autorelease();
}

void layOutTabBar(UITabBar bar, Replaced<void()> host) {
  host();
  if (hasOneItem(bar)) bar.setHidden(true);
}

bool isTabBarHidden(UITabBar bar, Replaced<bool()> host) { return hasOneItem(bar) || host(); }

bool listAlwaysHidesTabBar(PUAlbumListViewController, Replaced<bool()> host) {
  return isOneTabChosen() || host();
}

bool listWantsTabBar(PUAlbumListViewController, Replaced<bool()> host) { return !isOneTabChosen() && host(); }

}  // namespace velvault12
