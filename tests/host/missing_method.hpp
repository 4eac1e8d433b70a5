#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/reference.hpp"
#include "tests/host/host_methods.hpp"
#include "tests/hurried_timers.hpp"

namespace velvault12 {

/// Hides the method from the library, before that is loaded: it can neither replace nor send it, and sending
/// it without having asked for it fails the test. The host keeps it.
void hideFromLibrary(const HostMethod& method);
/// Whether the library has asked for the hidden method.
bool wasAskedFor();

/// What the library holds: references to objects, and blocks of memory. An initializer of the host that
/// returns nil counts as kept, since its object is gone without the library.
struct Holdings {
  std::int64_t references = 0;
  std::int64_t blocks = 0;
  bool isMoreThan(const Holdings& other) const {
    return references > other.references || blocks > other.blocks;
  }
};
Holdings holdings();

/// The host's methods that a version may lack, and at first none, for a host that lacks nothing.
std::vector<std::optional<HostMethod>> missingMethodsOf(std::string_view host);
std::string nameOf(const ::testing::TestParamInfo<std::optional<HostMethod>>& info);

/// An app whose host lacks one method. Its features can be tried in any order, and again.
template <class App>
class MissingMethodTest : public App, public ::testing::WithParamInterface<std::optional<HostMethod>> {
 protected:
  struct Feature {
    std::string name;
    std::function<bool()> works;
  };

  MissingMethodTest() {
    if (this->GetParam()) hideFromLibrary(*this->GetParam());
  }

  /// Expects exactly those features to fail that need the method. Where nothing is missing, expects the
  /// library to hold no more with each time that a feature is used, once `reset` has brought the app where it
  /// was.
  void run(
      std::span<const Feature> features, const std::function<void()>& reset = [] {}) {
    for (const Feature& feature : features) tryOut(feature);
    if (this->GetParam()) {
      EXPECT_TRUE(wasAskedFor());
      return;
    }
    // By now, what the library keeps for good has come.
    for (const Feature& feature : features) {
      // A leak grows with each call. What the host keeps for a while, such as a used tile with the library's
      // views in it, comes and goes.
      constexpr int kMostGrowths = 3;
      Holdings before = holdingsAfter(feature, reset);
      Holdings after = holdingsAfter(feature, reset);
      for (int growths = 1; after.isMoreThan(before) && growths <= kMostGrowths; ++growths)
        before = std::exchange(after, holdingsAfter(feature, reset));
      EXPECT_FALSE(after.isMoreThan(before))
          << feature.name << " leaves " << after.references - before.references << " references and "
          << after.blocks - before.blocks << " blocks";
    }
  }
  /// Whether the feature that is being tried is to fail.
  bool isLost() const { return isLost_; }
  /// Waits until the condition holds, where it is to hold at all.
  bool comesTrue(const std::function<bool()>& condition) const {
    if (!isLost_) return App::soon(condition);
    App::settle();
    return condition();
  }

 private:
  void tryOut(const Feature& feature) {
    const AutoreleasePool turn;
    isLost_ = this->GetParam() && this->GetParam()->lost.contains(feature.name);
    std::string why;
    bool works = false;
    try {
      works = feature.works();
    } catch (const std::runtime_error& error) {
      why = error.what();
    }
    EXPECT_EQ(works, !isLost_) << feature.name << ": " << why;
  }

  Holdings holdingsAfter(const Feature& feature, const std::function<void()>& reset) {
    tryOut(feature);
    const AutoreleasePool turn;
    reset();
    App::settleLibrary();
    App::settle();
    EXPECT_TRUE(App::soon(HurriedTimers::haveFired));
    return holdings();
  }

  HurriedTimers timers_;
  bool isLost_ = false;
};

}  // namespace velvault12
