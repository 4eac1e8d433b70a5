#include "device/demo/story.hpp"

#include <cstdio>
#include <stdexcept>

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
}

void Story::step(std::string_view text, const std::function<std::string()>& step) {
  ++steps_;
  print("  ", text);
  try {
    print("      => ", step());
  } catch (const std::exception& error) {
    ++failures_;
    print("  NOT SO ", error.what());
  }
}

void expect(bool holds, std::string_view expectation) {
  if (!holds) throw std::runtime_error("expected: " + std::string(expectation));
}

}  // namespace device
