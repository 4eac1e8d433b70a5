#pragma once

#include <span>

#include "host/hook.hpp"
#include "startup/host_plan_rules.hpp"

namespace velvault12 {

/// Everything that the library does to a host, as rows in the order of their installation.
std::span<const HookRow> hooksOf(HookGroup group);

/// The rows of every host but the excepted one.
std::span<const HookRow> libraryFilterHooks();

}  // namespace velvault12
