#include "device/frameworks/Substrate.hpp"

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include "device/frameworks/installed_hooks.hpp"
#include "device/system/method_replacement.hpp"

namespace device {
namespace {

std::vector<InstalledHook>& hooks() {
  static std::vector<InstalledHook> installed;
  return installed;
}

}  // namespace

const std::vector<InstalledHook>& installedHooks() { return hooks(); }

}  // namespace device

void MSHookMessageEx(Class targetClass, SEL selector, IMP replacement, IMP* replaced) {
  const IMP implementation = device::replaceMethod(targetClass, selector, replacement);
  if (!implementation) {
    NSLog(@"MS:Warning: message not found [%s %s]", targetClass ? class_getName(targetClass) : "nil",
          sel_getName(selector));
    return;
  }
  if (replaced) *replaced = implementation;
  const bool isClassMethod = class_isMetaClass(targetClass);
  device::hooks().push_back({class_getName(targetClass), sel_getName(selector), isClassMethod});
}
