#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "benchmarks/versions.hpp"

namespace velvault12::benchmarks {

/// What one version of a case took: the quickest of its repetitions, since whatever else runs on the machine
/// only ever adds to them.
struct Figure {
  std::string name;
  Version version;
  double seconds;
};
using Figures = std::vector<Figure>;

/// Measures the cases of one process with Google Benchmark, the repetitions of all versions of all that was
/// added in random order, so that what slows the machine down for a while slows all of them.
class Bench {
 public:
  explicit Bench(Versions& versions) : versions_(versions) {}

  /// The processor's time of one call, in an autorelease pool. `calls` at a time, for what takes no more than
  /// emptying the pool does.
  void add(std::string_view name, std::initializer_list<Version> versions,
           const std::function<void(Version)>& call, int calls = 1);
  /// What the call itself says that it took, in seconds of a clock on the wall; made `calls` times a
  /// repetition.
  void addTimed(std::string_view name, std::initializer_list<Version> versions, int calls,
                const std::function<double(Version)>& call);

  /// Measures all that was added, and what the command line's filter lets through of it.
  Figures figures();

 private:
  struct Entry {
    std::string name;
    Version version;
    int calls;
  };

  Versions& versions_;
  std::vector<Entry> entries_;
};

/// How long the call takes, in seconds.
double secondsOf(const std::function<void()>& call);

}  // namespace velvault12::benchmarks
