// The settings in force, which every thread may ask for.

#include "startup/settings.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <thread>

#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

class CurrentSettings : public PhoneTest {};

TEST_F(CurrentSettings, AreConsistentOnEveryThreadDuringReloads) {
  become(device::kGallery);
  // Each state has a flag of its own for another album.
  const auto readState = [&](int state) {
    const bool isOn = state % 2 == 0;
    phone_.writePreferences(
        {{"startAtBottom", isOn}, {"showHidden", isOn}, {"albumName" + std::to_string(state), isOn}});
    loadSettings();
  };
  readState(0);
  constexpr int kThreads = 4;
  std::latch asked(kThreads);
  std::atomic<bool> isOver = false;
  const auto ask = [&] {
    asked.count_down();
    while (!isOver) {
      const auto current = settings();
      ASSERT_EQ(current->startAtBottom, current->showHidden);
      ASSERT_EQ(current->albumFlag("0"), true);
    }
  };
  std::jthread threads[kThreads];
  for (std::jthread& each : threads) each = std::jthread(ask);
  asked.wait();
  for (int state = 1; state < 200; ++state) readState(state);
  isOver = true;
}

}  // namespace
}  // namespace velvault12
