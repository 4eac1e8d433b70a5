#pragma once

#include "host/block.hpp"
#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// How the grid of one album shows it, and what becomes of photos that are taken out of it.

/// The camera roll is one long row of photos, without headers in between.
bool shouldShowSectionHeaders(PUPhotosAlbumViewController view, Replaced<bool()> host);

/// Every album opens at its end, where its newest photos are unless its owner has put them in another order;
/// whatever the settings say.
bool initiallyScrolledToBottom(PUPhotosAlbumViewController view, Replaced<bool()> host);

/// Photos that this is the last album of are shown in the camera roll again before they leave it: moved out
/// of the camera roll, they would be out of reach.
void removeSelectedPhotos(PUPhotosAlbumViewController view, Replaced<void(Block<void()>)> host,
                          Block<void()> completion);

/// An album wants the tab bar while exactly one tab is switched on, though the list before it does not.
bool albumWantsTabBar(PUPhotosAlbumViewController view, Replaced<bool()> host);

}  // namespace velvault12
