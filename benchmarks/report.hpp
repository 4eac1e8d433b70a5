#pragma once

#include <string>

#include "benchmarks/bench.hpp"

namespace velvault12::benchmarks {

/// A table in Markdown: what each version of each case took, what the library took of that, and whether it is
/// what it should be at the most; then how it grows with the number of albums.
std::string report(const Figures& figures);

/// A drawing in SVG: the time of `collections` over the number of albums, a line a version, both on scales of
/// powers of ten.
std::string growthPlot(const Figures& figures);

}  // namespace velvault12::benchmarks
