#pragma once

#include "benchmarks/bench.hpp"

namespace velvault12::benchmarks {

/// Loading the library into each kind of host, beside one that does nothing but install the same rows.
Figures measureLoading();

}  // namespace velvault12::benchmarks
