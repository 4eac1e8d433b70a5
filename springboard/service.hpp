#pragma once

#include "host/foundation.hpp"
#include "host/hook.hpp"
#include "host/springboard.hpp"

namespace velvault12 {

/// Serves the two messages of sandboxed apps from the moment that SpringBoard has launched.
void startService(SpringBoard springBoard, Replaced<void(UIApplication)> host, UIApplication application);

// The two services, called on SpringBoard's main thread. They answer nil: the messaging centre takes an
// object from whatever it calls, also where the sender waits for none. A request without what it needs
// changes nothing.

/// Writes an array to a path. Neither path nor sender is checked.
NSDictionary serveSaveArray(SpringBoard springBoard, NSString message, Object userInfo);

/// Authenticates the phone's owner, writes the answer file and posts its notification. An owner who fails or
/// cancels gets no answer at all, on purpose: the album just stays closed.
NSDictionary serveAuthenticate(SpringBoard springBoard, NSString message, Object userInfo);

}  // namespace velvault12
