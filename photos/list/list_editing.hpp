#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

/// Whether the album list was last told to edit; its tiles have buttons as long as it is. Known before the
/// host is told, which may lay tiles out within the call. Main thread only.
bool isListEditing();

void listSetEditing(PUAlbumListViewController list, Replaced<void(bool, bool)> host, bool editing,
                    bool animated);

/// Gives the list's bar its own buttons, and takes away those whose time is over: while the list is edited,
/// one that opens the sheet for whole albums, and while photos are being picked, one that brings them back to
/// the camera roll.
void updateBarButtons(PUAlbumListViewController list);

}  // namespace velvault12
