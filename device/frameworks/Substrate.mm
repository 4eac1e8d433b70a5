#include "device/frameworks/Substrate.hpp"

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include <cctype>
#include <string_view>
#include <utility>

#include "device/frameworks/installed_hooks.hpp"
#include "device/system/loader.hpp"
#include "device/system/method_replacement.hpp"

namespace device {
namespace {

std::vector<InstalledHook>& hooks() {
  static std::vector<InstalledHook> installed;
  return installed;
}

/// Without the places of arguments, and with BOOL as an iPhone has it. Names of structures stay.
std::string plainEncoding(std::string_view types) {
  std::string plain;
  int depth = 0;
  bool isName = false;
  for (const char c : types) {
    if (c == '{' || c == '[') ++depth;
    if (c == '}' || c == ']') --depth;
    if (c == '{') isName = true;
    if (c == '=' || c == '}') isName = false;
    if (depth == 0 && std::isdigit(c)) continue;
    plain += c == 'C' && !isName ? 'B' : c;
  }
  return plain;
}

void record(Class type, SEL selector, std::string encoding, InstalledHook::Kind kind) {
  const bool isClassMethod = class_isMetaClass(type);
  hooks().push_back({class_getName(type), sel_getName(selector), std::move(encoding), kind, isClassMethod});
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
  const char* const types = method_getTypeEncoding(class_getInstanceMethod(targetClass, selector));
  device::record(targetClass, selector, device::plainEncoding(types), device::InstalledHook::Kind::replaced);
}

/// Stands in front of the runtime's own. The frameworks call it too, but not while a library is being loaded.
BOOL class_addMethod(Class targetClass, SEL selector, IMP implementation, const char* types) {
  const bool isAdded = device::addMethod(targetClass, selector, implementation, types);
  if (isAdded && device::isLoadingLibrary()) {
    device::record(targetClass, selector, types, device::InstalledHook::Kind::added);
  }
  return isAdded;
}
