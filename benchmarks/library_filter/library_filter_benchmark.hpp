#pragma once

#include "benchmarks/bench.hpp"

namespace velvault12::benchmarks {

/// `collections` in an app that reads photos, of a library of that many albums, a tenth of them in folders.
Figures measureListedCollections(int albums);

/// What such an app asks of one album: its assets, its key assets, their estimated count.
Figures measureAssetFetch();

/// The two hottest of these hooks as one would write them without a thought for their cost, installed.
void installStraightforwardHooks();

}  // namespace velvault12::benchmarks
