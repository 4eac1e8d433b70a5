#pragma once

#include <functional>
#include <map>
#include <vector>

#include "host/runtime.hpp"

namespace velvault12::benchmarks {

/// What runs where the library hooks: the host's own methods; the least that the behaviour itself demands;
/// the library; what one would write without a thought for its cost.
enum class Version { host, floor, library, straightforward };
inline constexpr const char* kVersionNames[] = {"host", "floor", "library", "straightforward"};

/// One method, as some version has it.
struct MethodChange {
  Class type;
  SEL selector;
  IMP host;
  IMP replacement;
};

/// The versions of this process's hooked methods, of which one is in use: at first the host's. What a library
/// adds to the host's classes is there in all of them, as nobody calls it in the others.
class Versions {
 public:
  /// Takes what `install` replaces for that version; the host's methods are in use afterwards. Throws when it
  /// replaces nothing.
  void define(Version version, const std::function<void()>& install);
  void use(Version version);

 private:
  std::map<Version, std::vector<MethodChange>> changes_;
  Version inUse_ = Version::host;
};

}  // namespace velvault12::benchmarks
