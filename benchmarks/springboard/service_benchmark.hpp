#pragma once

#include "benchmarks/bench.hpp"

namespace velvault12::benchmarks {

/// One "savearray" message, from its sending to the file's being replaced, and opening a locked album, from
/// the tap to the album on screen: between real processes. The host alone takes the message and does nothing
/// with it, and opens the album at once.
Figures measureService();

/// How long "savearray" messages wait to be served while many processes send them at once. Throws when one is
/// lost or out of order.
Figures measureLoad();

}  // namespace velvault12::benchmarks
