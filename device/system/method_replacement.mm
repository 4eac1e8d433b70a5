#include "device/system/method_replacement.hpp"

#import <Foundation/Foundation.h>
#include <dlfcn.h>
#include <objc/runtime.h>

// The runtime's own, exported but in no header: rebuilds what subclasses in use inherited.
extern "C" void __objc_update_dispatch_table_for_class(Class targetClass);

namespace device {
namespace {

// clang sets this bit in metaclasses; the runtime takes it for "still being made" and aborts.
constexpr unsigned long kUnderConstruction = 0x10;

void clearConstructionMark(Class metaclass) {
  struct ClassHead {
    Class isa;
    Class superclass;
    const char* name;
    long version;
    unsigned long info;
  };
  reinterpret_cast<ClassHead*>(metaclass)->info &= ~kUnderConstruction;
}

}  // namespace

bool addMethod(Class targetClass, SEL selector, IMP implementation, const char* types) {
  static const auto add = reinterpret_cast<decltype(&class_addMethod)>(::dlsym(RTLD_NEXT, "class_addMethod"));
  return add(targetClass, selector, implementation, types);
}

IMP replaceMethod(Class targetClass, SEL selector, IMP replacement) {
  const Method method = targetClass ? class_getInstanceMethod(targetClass, selector) : nullptr;
  if (!method) return nullptr;
  const IMP replaced = method_getImplementation(method);
  if (class_isMetaClass(targetClass)) clearConstructionMark(targetClass);
  // This runtime's class_replaceMethod would reach for the superclass's method where the class has none.
  if (!addMethod(targetClass, selector, replacement, method_getTypeEncoding(method))) {
    method_setImplementation(method, replacement);
  }
  __objc_update_dispatch_table_for_class(targetClass);
  return replaced;
}

}  // namespace device
