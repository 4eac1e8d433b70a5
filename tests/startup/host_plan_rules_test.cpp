#include "startup/host_plan_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

using enum HookGroup;

struct Case {
  const char* host;
  HostPlan enabled;
  HostPlan disabled;
};

TEST(HostPlan, GoesByTheWholeNameEnabledAndNot) {
  // Members in order: group, filterLibrary, makeStateFolder, observeAnswers, readCaptureAlbum.
  const Case cases[] = {
      {"com.apple.camera", {camera, true, false, false, true}, {none, false, false, false, true}},
      {"com.apple.mobileslideshow", {photos, true, false, true, false}, {none, false, false, true, false}},
      {"com.apple.springboard", {springBoard, true, true, false, false}, {none, false, true, false, false}},
      {"com.apple.store.jolly", {none, true, false, false, false}, {none, false, false, false, false}},
      {"com.apple.camera.extension", {none, true, false, false, false}, {none, false, false, false, false}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(planForHost(c.host, true), c.enabled) << c.host;
    EXPECT_EQ(planForHost(c.host, false), c.disabled) << c.host;
  }
}

}  // namespace
}  // namespace velvault12
