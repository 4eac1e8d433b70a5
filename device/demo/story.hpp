#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace device {

/// Tells a story step by step, and whether the device did what it tells.
class Story {
 public:
  /// Heads what follows.
  void chapter(std::string_view title);

  /// Tells one step, does it, and tells what the device answered. What `step` answers is that answer; when it
  /// throws, the step did not go as told.
  void step(std::string_view text, const std::function<std::string()>& step);

  /// How many steps did not go as told.
  int failures() const { return failures_; }
  int steps() const { return steps_; }

 private:
  int steps_ = 0;
  int failures_ = 0;
};

/// For a step's answer: throws std::runtime_error with what was expected unless it holds.
void expect(bool holds, std::string_view expectation);

}  // namespace device
