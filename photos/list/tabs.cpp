#include "photos/list/tabs.hpp"

#include "host/system_version.hpp"
#include "photos/list/tab_rules.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

bool hasOneItem(UITabBar bar) { return isEnabled() && bar.items().count() == 1; }

bool isWithoutBar() {
  const auto chosen = settings();
  return chosen->enabled && hasOneTab(*chosen);
}

}  // namespace

NSArray excludedTabs(PUTabbedLibraryViewController, Replaced<NSArray()> host) {
  const auto chosen = settings();
  if (!chosen->enabled) return host();
  auto excluded = makeObject<NSMutableArray>();
  for (const int mode : excludedContentModes(*chosen, coreFoundationVersion()))
    excluded->addObject(NSNumber::from(mode));
  return std::move(excluded).autorelease();
}

void layOutTabBar(UITabBar bar, Replaced<void()> host) {
  host();
  if (hasOneItem(bar)) bar.setHidden(true);
}

bool isTabBarHidden(UITabBar bar, Replaced<bool()> host) { return hasOneItem(bar) || host(); }

bool listAlwaysHidesTabBar(PUAlbumListViewController, Replaced<bool()> host) {
  return isWithoutBar() || host();
}

bool listWantsTabBar(PUAlbumListViewController, Replaced<bool()> host) { return !isWithoutBar() && host(); }

}  // namespace velvault12
