#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// Which tabs the app has, and whether its tab bar is seen: a bar with a single tab is of no use.

/// `excludedContentModes`: the switches alone say what is left out, whatever the app itself leaves out.
NSArray excludedTabs(PUTabbedLibraryViewController tabs, Replaced<NSArray()> host);

/// `layoutSubviews` of the bar, which hides one with a single item, and its `hidden`.
void layOutTabBar(UITabBar bar, Replaced<void()> host);
bool isTabBarHidden(UITabBar bar, Replaced<bool()> host);

/// Whether exactly one tab is switched on, while the library is.
bool isOneTabChosen();

// What the list of albums wishes then: to be without the bar.
bool listAlwaysHidesTabBar(PUAlbumListViewController list, Replaced<bool()> host);
bool listWantsTabBar(PUAlbumListViewController list, Replaced<bool()> host);

}  // namespace velvault12
