#include "startup/host_plan_rules.hpp"

namespace velvault12 {

namespace {

struct HostRow {
  std::string_view bundleIdentifier;
  HostPlan whenEnabled;
};

constexpr HostRow kHosts[] = {
    {"com.apple.camera", {.group = HookGroup::camera, .filterLibrary = true, .readCaptureAlbum = true}},
    {kPhotosIdentifier, {.group = HookGroup::photos, .filterLibrary = true, .observeAnswers = true}},
    {"com.apple.springboard",
     {.group = HookGroup::springBoard, .filterLibrary = true, .makeStateFolder = true}},
    // Shop demonstration phones keep their library as it is.
    {"com.apple.store.Jolly", {}},
};
constexpr HostPlan kAnyOtherHost{.filterLibrary = true};

HostPlan planWhenEnabled(std::string_view bundleIdentifier) {
  for (const HostRow& host : kHosts) {
    if (host.bundleIdentifier == bundleIdentifier) return host.whenEnabled;
  }
  return kAnyOtherHost;
}

}  // namespace

HostPlan planForHost(std::string_view bundleIdentifier, bool enabled) {
  HostPlan plan = planWhenEnabled(bundleIdentifier);
  if (!enabled) {
    plan.group = HookGroup::none;
    plan.filterLibrary = false;
  }
  return plan;
}

}  // namespace velvault12
