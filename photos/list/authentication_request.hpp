#pragma once

#include "host/photos_ui.hpp"
#include "photos/list/answer_rules.hpp"

namespace velvault12 {

// How the strip and the list have their owner authenticated. `method` is an `AuthenticationMethod`, as a
// number since it comes back from another process.

/// Asks SpringBoard to authenticate the owner. Nothing waits: the answer comes as a notification, and unless
/// it names another kind of object it is for the one that asked last.
void unlockAlbum(UIViewController controller, int method, NSString album);

/// The same, for the hooks that hold an action back.
inline void askOwner(UIViewController controller, AuthenticationMethod method, NSString album) {
  unlockAlbum(controller, static_cast<int>(method), album);
}

/// Asks for the library's own password, and goes on as after an authentication when it is right. Where no
/// password has been stored, any will do.
void requestPassword(UIViewController controller, int method);

// Goes on with what was held back, under a new unlock pass. A method that is none of the known ones leaves
// the pass for the next action.
void stripUnlockAuthorised(PUHorizontalAlbumListGadget strip, int method);
void listUnlockAuthorised(PUAlbumListViewController list, int method);

}  // namespace velvault12
