#pragma once

#import <objc/objc.h>

#include <string>
#include <vector>

extern "C" {
/// Replaces the method in the class alone, its subclasses inheriting it; one that the class only inherits is
/// added to it. Writes the replaced implementation. A nil class or an unknown selector is told on the log,
/// with nothing done and nothing written.
void MSHookMessageEx(Class targetClass, SEL selector, IMP replacement, IMP* replaced);
}

namespace device {

struct InstalledHook {
  std::string className;
  std::string selector;
  bool isClassMethod;
  bool operator==(const InstalledHook&) const = default;
};

/// What has been hooked in this process, in that order.
const std::vector<InstalledHook>& installedHooks();

}  // namespace device
