#include "tests/host/missing_method.hpp"

#include <dlfcn.h>

#include <atomic>

#include "host/runtime.hpp"

namespace velvault12 {

extern "C" Class class_getSuperclass(Class type);

namespace {

struct Hidden {
  Class owner = nullptr;
  SEL selector = nullptr;
  bool isSentAllTheSame = false;
};
Hidden hidden;
std::atomic<bool> missed = false;

bool isLibrary(const void* caller) {
  Dl_info place{};
  return dladdr(caller, &place) != 0 && std::string_view(place.dli_fname).ends_with("velvault12.dylib");
}

bool lacks(Class type, SEL selector) {
  if (selector != hidden.selector) return false;
  while (type != nullptr && type != hidden.owner) type = class_getSuperclass(type);
  missed = missed || type != nullptr;
  return type != nullptr;
}

bool isDenied(id receiver, SEL asked) {
  return !hidden.isSentAllTheSame && lacks(object_getClass(receiver), asked);
}

// What the library is answered in the place of the host's own.
ObjcBool responds(id self, SEL selector, SEL asked) {
  return !isDenied(self, asked) && Message<bool(SEL)>::send(self, selector, asked);
}
id methodSignature(id self, SEL selector, SEL asked) {
  return isDenied(self, asked) ? nullptr : Message<id(SEL)>::send(self, selector, asked);
}

template <class Function>
Function* hosts(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// Found before the runtime's own. The host's code runs through them as well, which is why they look at who
// calls only where it matters.

extern "C" IMP objc_msg_lookup(id receiver, SEL selector) {
  static const auto host = hosts<IMP(id, SEL)>("objc_msg_lookup");
  static const SEL kResponds = sel_registerName("respondsToSelector:");
  static const SEL kSignature = sel_registerName("methodSignatureForSelector:");
  const bool asks = selector == kResponds || selector == kSignature;
  if (receiver == nullptr || hidden.owner == nullptr || (!asks && selector != hidden.selector) ||
      !isLibrary(__builtin_return_address(0)))
    return host(receiver, selector);
  if (selector == kResponds) return reinterpret_cast<IMP>(responds);
  if (selector == kSignature) return reinterpret_cast<IMP>(methodSignature);
  if (isDenied(receiver, selector)) ADD_FAILURE() << Object(receiver).className() << " is sent what it lacks";
  return host(receiver, selector);
}

extern "C" objc_method* class_getInstanceMethod(Class type, SEL selector) {
  static const auto host = hosts<objc_method*(Class, SEL)>("class_getInstanceMethod");
  return isLibrary(__builtin_return_address(0)) && lacks(type, selector) ? nullptr : host(type, selector);
}

void hideFromLibrary(const MissingMethod& method) {
  if (method.className.empty()) return;
  const bool isOfClass = method.selector.starts_with('+');
  const std::string selector(method.selector.substr(isOfClass ? 1 : 0));
  hidden.selector = sel_registerName(selector.c_str());
  hidden.isSentAllTheSame = isPublic(selector);
  const Class type = objc_getClass(std::string(method.className).c_str());
  ASSERT_TRUE(type);
  hidden.owner = isOfClass ? object_getClass(reinterpret_cast<id>(type)) : type;
  ASSERT_TRUE(class_getInstanceMethod(hidden.owner, hidden.selector)) << "this host has no such method";
}

bool wasMissed() { return missed; }

}  // namespace velvault12
