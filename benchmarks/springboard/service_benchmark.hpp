#pragma once

#include <chrono>
#include <cstdint>

#include "benchmarks/bench.hpp"

namespace velvault12::benchmarks {

/// Now, by a clock that all processes share.
inline std::int64_t nanoseconds() { return std::chrono::steady_clock::now().time_since_epoch().count(); }

/// One "savearray" message, from its sending to the file's being replaced, and opening a locked album, from
/// the tap to the album on screen: between real processes. The host alone takes the message and does nothing
/// with it, and opens the album at once.
Figures measureService();

/// How long "savearray" messages wait to be served while many processes send them at once. Throws when one is
/// lost or out of order.
Figures measureLoad();

}  // namespace velvault12::benchmarks
