// The settings in force, which every thread may ask for.

#include "startup/settings.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

using SettingsInForce = PhoneTest;

TEST_F(SettingsInForce, AreOfOneStateForEveryThreadWhileTheyAreReadAnew) {
  become(device::kGallery);
  // Each state has flags of its own for each of two albums.
  const auto readState = [&](int state) {
    const bool isOn = state % 2 == 0;
    phone_.writePreferences(
        {{"startAtBottom", isOn}, {"showHidden", isOn}, {"albumName" + std::to_string(state), isOn}});
    loadSettings();
  };
  readState(0);
  std::atomic<bool> isOver = false;
  const auto ask = [&] {
    while (!isOver) {
      const auto chosen = settings();
      ASSERT_EQ(chosen->startAtBottom, chosen->showHidden);
      ASSERT_EQ(chosen->albumFlag("0"), true);
    }
  };
  std::vector<std::jthread> threads;
  for (int i = 0; i < 4; ++i) threads.emplace_back(ask);
  for (int state = 1; state < 200; ++state) readState(state);
  isOver = true;
}

}  // namespace
}  // namespace velvault12
