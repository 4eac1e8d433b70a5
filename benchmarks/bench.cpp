#include "benchmarks/bench.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "host/reference.hpp"

namespace velvault12::benchmarks {

namespace {

/// Gathers what each repetition of each benchmark took, by the benchmark's name.
class Gatherer : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.iterations == 0) continue;
      const bool isTimed = run.run_name.time_type == "manual_time";
      const double seconds = isTimed ? run.real_accumulated_time : run.cpu_accumulated_time;
      all_[run.run_name.function_name].push_back(seconds / static_cast<double>(run.iterations));
    }
  }
  /// Nothing for a benchmark that was not run.
  std::optional<double> quickest(const std::string& name) const {
    const auto found = all_.find(name);
    if (found == all_.end()) return std::nullopt;
    return std::ranges::min(found->second);
  }

 private:
  std::map<std::string, std::vector<double>> all_;
};

std::string benchmarkName(std::string_view name, Version version) {
  return std::string(name) + "/" + kVersionNames[static_cast<std::size_t>(version)];
}

}  // namespace

void Bench::add(std::string_view name, std::initializer_list<Version> versions,
                const std::function<void(Version)>& call, int calls) {
  for (const Version version : versions) {
    const auto measure = [this, version, call, calls](benchmark::State& state) {
      versions_.use(version);
      for ([[maybe_unused]] auto turn : state) {
        const AutoreleasePool pool;
        for (int i = 0; i < calls; ++i) call(version);
      }
    };
    auto* const registered = benchmark::RegisterBenchmark(benchmarkName(name, version).c_str(), measure);
    // It takes seconds where the others take milliseconds, and nothing depends on its last digit.
    if (version == Version::straightforward) registered->Repetitions(1);
    entries_.push_back({std::string(name), version, calls});
  }
}

void Bench::addTimed(std::string_view name, std::initializer_list<Version> versions, int calls,
                     const std::function<double(Version)>& call) {
  for (const Version version : versions) {
    const auto measure = [this, version, call](benchmark::State& state) {
      versions_.use(version);
      for ([[maybe_unused]] auto turn : state) state.SetIterationTime(call(version));
    };
    benchmark::RegisterBenchmark(benchmarkName(name, version).c_str(), measure)
        ->UseManualTime()
        ->Iterations(calls);
    entries_.push_back({std::string(name), version, 1});
  }
}

Figures Bench::figures() {
  Gatherer gatherer;
  benchmark::RunSpecifiedBenchmarks(&gatherer);
  benchmark::ClearRegisteredBenchmarks();
  Figures figures;
  for (const auto& [name, version, calls] : entries_) {
    const std::optional<double> seconds = gatherer.quickest(benchmarkName(name, version));
    if (seconds) figures.push_back({name, version, *seconds / calls});
  }
  entries_.clear();
  return figures;
}

double secondsOf(const std::function<void()>& call) {
  const auto start = std::chrono::steady_clock::now();
  call();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace velvault12::benchmarks
