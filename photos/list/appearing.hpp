#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// What the strip and the list do as they come on screen: they read the locked albums afresh, having an empty
// list saved where there is none, and are recorded as those that an answer can be for. Switched off, the
// library leaves the albums alone; the list is still recorded, since what was asked before may yet be
// answered. The list also keeps what the settings pane says of albums by their paths, for whatever comes to
// ask for it; nothing does now.

void stripWillAppear(PUHorizontalAlbumListGadget strip, Replaced<void(bool)> host, bool animated);
void listWillAppear(PUAlbumListViewController list, Replaced<void(bool)> host, bool animated);
void listDidLayoutSubviews(PUAlbumListViewController list, Replaced<void()> host);

/// `scrollViewWillBeginDragging:`: a list that is about to be scrolled shows its albums as they are now.
void listWillBeginDragging(PUAlbumListViewController list, Replaced<void(UIScrollView)> host,
                           UIScrollView view);

}  // namespace velvault12
