#include "device/demo/story.hpp"

#include <cstdio>
#include <stdexcept>
#include <utility>

namespace device {
namespace {

void print(std::string_view lead, std::string_view text) {
  std::printf("%.*s%.*s\n", static_cast<int>(lead.size()), lead.data(), static_cast<int>(text.size()),
              text.data());
  std::fflush(stdout);
}

}  // namespace

void Story::chapter(std::string_view title) {
  print("\n", title);
  chapters_.push_back({std::string(title), {}});
}

void Story::step(std::string_view text, const std::function<std::string()>& perform) {
  print("  ", text);
  Step step{.number = ++steps_, .text = std::string(text), .result = {}, .passed = true, .pictures = {}};
  try {
    step.result = perform();
  } catch (const std::exception& error) {
    step.result = error.what();
    step.passed = false;
  }
  step.pictures = look_();
  print(step.passed ? "      => " : "      Failed: ", step.result);
  passed_ += step.passed ? 1 : 0;
  chapters_.back().steps.push_back(std::move(step));
}

std::string Story::summary() const {
  return std::to_string(passed_) + " of " + std::to_string(steps_) + " steps passed";
}

void expect(bool holds, std::string_view expectation) {
  if (!holds) throw std::runtime_error("expected: " + std::string(expectation));
}

}  // namespace device
