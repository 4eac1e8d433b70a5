#pragma once

#include <string>

#include "benchmarks/bench.hpp"

namespace velvault12::benchmarks {

/// Loading the library into each kind of host, beside one that does nothing but install the same rows.
Figures measureLoading();

/// What loading either of them adds to a process of each kind, as a table in Markdown: on the heap, in pages
/// of its own file that it has written to, and as address space.
std::string memoryReport();

}  // namespace velvault12::benchmarks
