#include "device/demo/story.hpp"

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <utility>

namespace device {

namespace {

void print(std::string_view before, std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  std::string indented;
  for (const char letter : text) {
    indented += letter;
    if (letter == '\n') indented += "         ";
  }
  std::printf("%.*s%s\n", static_cast<int>(before.size()), before.data(), indented.c_str());
  std::fflush(stdout);
}

}  // namespace

void Story::chapter(std::string_view title) {
  std::printf("\n%.*s\n", static_cast<int>(title.size()), title.data());
  chapters_.push_back({std::string(title), {}});
}

void Story::step(std::string_view text, const std::function<std::string()>& step) {
  print("  ", text);
  Step told{.text = std::string(text), .answer = {}, .wentAsTold = true, .pictures = {}};
  try {
    told.answer = step();
  } catch (const std::exception& error) {
    told.answer = error.what();
    told.wentAsTold = false;
  }
  print(told.wentAsTold ? "      => " : "  NOT SO ", told.answer);
  told.pictures = look_();
  chapters_.back().steps.push_back(std::move(told));
}

int Story::steps() const {
  std::size_t count = 0;
  for (const Chapter& chapter : chapters_) count += chapter.steps.size();
  return static_cast<int>(count);
}

int Story::failures() const {
  std::ptrdiff_t count = 0;
  for (const Chapter& chapter : chapters_)
    count += std::ranges::count(chapter.steps, false, &Step::wentAsTold);
  return static_cast<int>(count);
}

void expect(bool holds, std::string_view expectation) {
  if (!holds) throw std::runtime_error("expected: " + std::string(expectation));
}

}  // namespace device
