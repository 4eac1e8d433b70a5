#include "benchmarks/versions.hpp"

#include <dlfcn.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace velvault12 {

namespace benchmarks {

namespace {

std::vector<MethodChange>& changesMade() {
  static std::vector<MethodChange> changes;
  return changes;
}

void setMethod(Class type, SEL selector, IMP implementation, IMP* replaced) {
  using Function = void(Class, SEL, IMP, IMP*);
  static const auto set = reinterpret_cast<Function*>(dlsym(RTLD_NEXT, "MSHookMessageEx"));
  set(type, selector, implementation, replaced);
}

}  // namespace

void Versions::define(Version version, const std::function<void()>& install) {
  use(Version::host);
  changesMade().clear();
  install();
  if (changesMade().empty()) throw std::runtime_error("a version that changes nothing");
  changes_[version] = std::exchange(changesMade(), {});
  inUse_ = version;
  use(Version::host);
}

void Versions::use(Version version) {
  if (version == inUse_) return;
  // The other way round, since a method may have been replaced twice.
  const std::vector<MethodChange>& before = changes_[inUse_];
  std::for_each(before.rbegin(), before.rend(), [](const MethodChange& change) {
    setMethod(change.type, change.selector, change.host, nullptr);
  });
  for (const MethodChange& change : changes_[version])
    setMethod(change.type, change.selector, change.replacement, nullptr);
  inUse_ = version;
}

}  // namespace benchmarks

/// Stands in front of the device's, to know what was replaced.
extern "C" void MSHookMessageEx(Class type, SEL selector, IMP implementation, IMP* replaced) {
  IMP host = nullptr;
  benchmarks::setMethod(type, selector, implementation, &host);
  if (host == nullptr) return;
  if (replaced != nullptr) *replaced = host;
  benchmarks::changesMade().push_back({type, selector, host, implementation});
}

}  // namespace velvault12
