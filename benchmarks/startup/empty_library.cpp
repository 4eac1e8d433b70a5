// A library without content: loaded, it replaces and adds the methods that it is told by one that does
// nothing.

#include "benchmarks/startup/empty_library.hpp"

#include "host/runtime.hpp"

extern "C" void MSHookMessageEx(velvault12::Class type, velvault12::SEL selector,
                                velvault12::IMP implementation, velvault12::IMP* replaced);

namespace velvault12::benchmarks {

namespace {

void doNothing() {}

[[gnu::constructor]] void installRows() {
  for (const EmptyRow& row : emptyRows) {
    const Class type = objc_getClass(row.className.c_str());
    const SEL selector = sel_registerName(row.selector.c_str());
    if (row.isAdded) {
      class_addMethod(type, selector, doNothing, row.encoding.c_str());
    } else {
      static IMP replaced = nullptr;
      MSHookMessageEx(row.isClassMethod ? object_getClass(reinterpret_cast<id>(type)) : type, selector,
                      doNothing, &replaced);
    }
  }
}

}  // namespace

}  // namespace velvault12::benchmarks
