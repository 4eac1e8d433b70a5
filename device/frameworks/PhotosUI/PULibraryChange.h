#pragma once

#import "device/frameworks/Photos/Photos.h"

/// Has the library perform the change block, and `done` follow on the main thread, however it went. The
/// objects, which should be all that either block uses, live until then.
void PUChangeLibrary(NSArray* objects, void (^changes)(void), void (^done)(void));
