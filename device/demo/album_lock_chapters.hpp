#pragma once

#include "device/demo/phone.hpp"
#include "device/demo/story.hpp"

namespace device {

/// How an album is locked, opened by its owner or with the password, and made free again. Begins and ends
/// with the list of all albums in front, none of them locked.
void tellAlbumLock(Story& story, Phone& phone);

}  // namespace device
