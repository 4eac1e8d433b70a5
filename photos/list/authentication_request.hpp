#pragma once

#include <string_view>

#include "host/photos_ui.hpp"
#include "photos/list/answer_rules.hpp"

namespace velvault12 {

// How the strip, the list and a tile have their owner authenticated. `method` is what waits for it, as a
// number since it comes back from another process: an `AuthenticationMethod`, or of a tile, one of its own.

/// `unlockAlbum:withAlbum:` asks SpringBoard to authenticate the owner. Nothing waits: the answer comes as a
/// notification, for the one that asked last of the kind that it names.
void unlockAlbum(Object requester, int method, NSString album);

/// Asks for the library's own password over the controller, and tells the requester that it may go on when it
/// is right. Where no password has been stored, any will do; a wrong one leads to that notice.
void askForPassword(UIViewController controller, Object requester, int method, std::string_view wrongNotice);

/// Asks the owner, for the hooks that hold an action back.
inline void askOwner(UIViewController controller, AuthenticationMethod method, NSString album) {
  unlockAlbum(controller, static_cast<int>(method), album);
}

/// `requestPassword:` of the strip and the list.
void requestPassword(UIViewController controller, int method);

// Goes on with what was held back, under a new unlock pass. A method that is none of the known ones leaves
// the pass for the next action. What was held back for an album that is no longer in its place is let go.
void stripUnlockAuthorised(PUHorizontalAlbumListGadget strip, int method);
void listUnlockAuthorised(PUAlbumListViewController list, int method);

}  // namespace velvault12
