#pragma once

#include <cstddef>

#include "host/hook.hpp"
#include "host/runtime.hpp"

namespace velvault12 {

/// A host class made while the process runs: declare its variables, add its methods, then register it. Empty
/// when the superclass is null or the name is taken; then every step does nothing.
class ClassPair {
 public:
  ClassPair(Class superclass, const char* name)
      : type_(superclass == nullptr ? nullptr : objc_allocateClassPair(superclass, name, 0)) {}

  /// An instance variable that holds one object, not retained by the runtime.
  ClassPair& variable(const char* name) {
    constexpr std::uint8_t kPointerAlignment = 3;
    if (type_ != nullptr) class_addIvar(type_, name, sizeof(void*), kPointerAlignment, "@");
    return *this;
  }

  /// A method of that type encoding, as `add` does for a class of the host.
  template <auto Function>
  ClassPair& method(SEL selector, const char* encoding) {
    if (type_ != nullptr) {
      const auto call = &hook_details::Addition<Function>::call;
      class_addMethod(type_, selector, reinterpret_cast<IMP>(call), encoding);
    }
    return *this;
  }

  /// Makes the class known to the runtime; answers it, or null.
  Class registered() {
    if (type_ != nullptr) objc_registerClassPair(type_);
    return type_;
  }

 private:
  Class type_;
};

}  // namespace velvault12
