#pragma once

#include "host/camera_ui.hpp"
#include "host/hook.hpp"

namespace velvault12 {

// The album button on the camera's bar, its caption, and the dialogs behind it. Main thread.

/// Puts button and caption there at the first layout; at later ones only the caption's text follows the
/// chosen album. Both are taken away when the user has switched the picker off.
void bottomBarLayout(CAMBottomBar bar, Replaced<void()> host);
void metalViewLayout(CAMMetalView bar, Replaced<void()> host);

/// Shows the sheet of the user's albums, locked ones among them.
void chooseAlbum(CameraBar bar);

/// Asks for a title and chooses it. The album itself is made by the first capture that goes into it.
void createNewAlbum(CameraBar bar);

/// Turns the button as the phone is held, for a view of that size in points. No version of the host is known
/// to send it.
void adjustRotation(CameraBar bar, CGSize size);

}  // namespace velvault12
