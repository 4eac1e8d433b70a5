#pragma once

#include <string>
#include <vector>

namespace device {

/// A method of the process's classes that a library has replaced.
struct InstalledHook {
  std::string className;
  std::string selector;
  bool isClassMethod;
  bool operator==(const InstalledHook&) const = default;
};

/// What has been replaced in this process, in that order.
const std::vector<InstalledHook>& installedHooks();

}  // namespace device
