#include "host/reference.hpp"

namespace velvault12::reference_details {

void retain(id object) { Object(object).send<"retain", Object()>(); }

void release(id object) { Object(object).send<"release", void()>(); }

void autorelease(id object) { Object(object).send<"autorelease", Object()>(); }

}  // namespace velvault12::reference_details
