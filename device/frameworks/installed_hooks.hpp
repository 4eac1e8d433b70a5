#pragma once

#include <string>
#include <vector>

namespace device {

/// What a library has done to a method of the process's classes.
struct InstalledHook {
  /// Added ones are those that came with the library, as it was loaded.
  enum class Kind { replaced, added };

  std::string className;
  std::string selector;
  /// The types of what was replaced, as an iPhone's headers give them; for what was added, those that the
  /// library gave.
  std::string encoding;
  Kind kind;
  bool isClassMethod;
  bool operator==(const InstalledHook&) const = default;
};

/// What has been replaced and added in this process, in that order.
const std::vector<InstalledHook>& installedHooks();

}  // namespace device
