#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "device/frameworks/installed_hooks.hpp"
#include "host/photos.hpp"

namespace velvault12 {

/// How one hook is called once, through the host's own method, and all that comes of it taken back.
struct Driver {
  std::string_view className;
  std::string_view selector;
  std::function<void()> call;
  /// Tells the drivers of one hook apart.
  std::string_view way{};
};

/// The drivers of one app's hooks. A hook whose method takes nothing but numbers needs none of its own.
struct Drivers {
  std::vector<Driver> all;
  /// Whom a hook without a driver is called for, by class. A class that is missing here gets a new object for
  /// each call, so that whoever keeps one too long is seen.
  std::map<std::string_view, std::function<Object()>> receivers;
};

/// To be called in the app before it is driven: lets no call wait for a timer, and the phone forget what was
/// felt. Answers what the library has installed by then.
std::vector<device::InstalledHook> letTimePass();

/// Waits until the main queue, the timers and the photo library have nothing left to do.
void rest();

/// Waits for it; throws when it does not come.
void await(const std::function<bool()>& condition);

// The alert in front, which is used without a finger on the screen.
bool hasAlert();
void typeIn(std::string_view text);
void press(std::string_view button);

/// How often each hook is called, and for how long at the most.
struct Effort {
  int calls;
  double mostSeconds;
};

/// Tells by how much the heap grows with calls of each of the hooks. False when a call leaves something, and
/// where a hook has no driver, or a driver no hook.
bool measure(Effort effort, const std::vector<device::InstalledHook>& hooks, const Drivers& drivers);

/// The hooks that every app has. For a library with "Open", "Locked", which is locked, and "Empty".
void addLibraryFilter(Drivers& drivers);

// One kind of host each: this process becomes that app.
bool cameraKeepsNothing(Effort effort);
bool photosKeepsNothing(Effort effort);
bool photosAloneKeepsNothing(Effort effort);
bool springBoardKeepsNothing(Effort effort);
bool galleryKeepsNothing(Effort effort);

}  // namespace velvault12
