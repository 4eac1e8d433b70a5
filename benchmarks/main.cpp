// Measures what the library costs its hosts. A process has its hooks installed once, and is one app of one
// phone: so each group of cases has a process of its own.

#include <benchmark/benchmark.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <exception>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "benchmarks/library_filter/library_filter_benchmark.hpp"
#include "benchmarks/photos/photos_benchmark.hpp"
#include "benchmarks/report.hpp"
#include "benchmarks/springboard/service_benchmark.hpp"
#include "benchmarks/startup/constructor_benchmark.hpp"

namespace velvault12::benchmarks {

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(Figure, name, version, seconds)

namespace {

struct Group {
  const char* name;
  std::function<Figures()> measure;
  /// The quickest of so many processes counts: where a process's memory happens to lie makes it faster or
  /// slower for all its life.
  int processes = 3;
};

const Group kGroups[] = {
    {"loading", measureLoading},
    {"lists of 10 albums", [] { return measureListedCollections(10); }},
    {"lists of 100 albums", [] { return measureListedCollections(100); }},
    {"lists of 1,000 albums", [] { return measureListedCollections(1'000); }},
    {"lists of 10,000 albums", [] { return measureListedCollections(10'000); }},
    {"fetches of an album", measureAssetFetch},
    {"tiles", measureTileLayout},
    {"selections", measureAlbumSelection},
    {"methods that are handed on", measurePassThrough},
    {"messages between processes", measureService},
    // A latency that is rarely exceeded is no longer that when the quickest of several is taken.
    {"message load", measureLoad, 1},
};

Figures measureInOwnProcess(const Group& group) {
  std::FILE* const told = std::tmpfile();
  const pid_t parent = getpid();
  const pid_t process = fork();
  if (process == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(1);
    try {
      std::fputs(nlohmann::json(group.measure()).dump().c_str(), told);
      _exit(std::fflush(told) == 0 ? 0 : 1);
    } catch (const std::exception& error) {
      std::cerr << group.name << ": " << error.what() << '\n';
      _exit(1);
    }
  }
  int status = 0;
  if (process < 0 || waitpid(process, &status, 0) != process || status != 0)
    throw std::runtime_error(std::string("not measured: ") + group.name);
  std::rewind(told);
  const auto figures = nlohmann::json::parse(told).get<Figures>();
  std::fclose(told);
  return figures;
}

/// Both are of the same cases.
void takeQuicker(const Figures& others, Figures& figures) {
  for (std::size_t i = 0; i < figures.size(); ++i)
    figures[i].seconds = std::min(figures[i].seconds, others.at(i).seconds);
}

}  // namespace

}  // namespace velvault12::benchmarks

int main(int argc, char** argv) {
  using namespace velvault12::benchmarks;
  // What the command line says comes last and so counts.
  std::vector<std::string> words{argv[0], "--benchmark_repetitions=9", "--benchmark_min_time=0.02",
                                 "--benchmark_enable_random_interleaving=true"};
  words.insert(words.end(), argv + 1, argv + argc);
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());

  // What is left is the name of a group, or a part of it.
  const std::string chosen = count > 1 ? arguments[1] : "";
  Figures all;
  try {
    for (const Group& group : kGroups) {
      if (std::string_view(group.name).find(chosen) == std::string_view::npos) continue;
      std::cerr << "Measuring " << group.name << '\n';
      Figures quickest = measureInOwnProcess(group);
      for (int i = 1; i < group.processes; ++i) takeQuicker(measureInOwnProcess(group), quickest);
      std::ranges::move(quickest, std::back_inserter(all));
    }
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  const bool isMemoryChosen = std::string_view("memory").find(chosen) != std::string_view::npos;
  if (all.empty() && !isMemoryChosen) {
    std::cerr << "No group is named so. There are:\n";
    for (const Group& group : kGroups) std::cerr << "  " << group.name << '\n';
    std::cerr << "  memory\n";
    return 2;
  }
  if (!all.empty()) std::cout << report(all);
  if (isMemoryChosen) std::cout << '\n' << memoryReport();
  // Of some groups alone there is no growth to draw.
  if (!chosen.empty()) return 0;
  if (!(std::ofstream(BENCH_PLOT) << growthPlot(all))) return 1;
  std::cerr << "Growth: " << BENCH_PLOT << '\n';
}
