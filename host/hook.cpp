#include "host/hook.hpp"

extern "C" void MSHookMessageEx(velvault12::Class type, velvault12::SEL selector,
                                velvault12::IMP implementation, velvault12::IMP* replaced);

namespace velvault12 {

void installHooks(std::span<const HookRow> rows) {
  for (const HookRow& row : rows) row.install(row);
}

namespace hook_details {

void replaceMethod(const HookRow& row, MethodOf owner, IMP implementation, IMP* replaced) {
  Class type = objc_getClass(row.className);
  if (type != nullptr && owner == MethodOf::type) type = object_getClass(reinterpret_cast<id>(type));
  const SEL selector = sel_registerName(row.selector);
  // Asked here as well, since the hooking function writes a warning to the log for each method it misses.
  objc_method* const method = type == nullptr ? nullptr : class_getInstanceMethod(type, selector);
  if (method == nullptr) return;
  const char* const encoding = method_getTypeEncoding(method);
  if (encoding != nullptr && !areCalledAlike(encoding, row.encoding)) return;
  MSHookMessageEx(type, selector, implementation, replaced);
}

void addMethod(const HookRow& row, IMP implementation) {
  const Class type = objc_getClass(row.className);
  if (type == nullptr) return;
  class_addMethod(type, sel_registerName(row.selector), implementation, row.encoding);
}

}  // namespace hook_details

}  // namespace velvault12
