#include "host/runtime.hpp"

namespace velvault12 {

bool Object::isKindOf(Class type) const {
  return type != nullptr && send<"isKindOfClass:", bool(Class)>(type);
}

bool Object::respondsTo(SEL selector) const { return send<"respondsToSelector:", bool(SEL)>(selector); }

}  // namespace velvault12
