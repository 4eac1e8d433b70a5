#include "device/user/xml.hpp"

#include <charconv>
#include <cmath>
#include <iterator>

namespace device {
namespace {

constexpr std::string_view kReplacement = "\uFFFD";

/// Nothing for a character that needs no escape.
std::string_view escapeOf(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\t':
    case '\n':
    case '\r':
      return {};
    default:
      return static_cast<unsigned char>(character) < ' ' ? kReplacement : std::string_view();
  }
}

}  // namespace

std::string xml(std::string_view text) {
  std::string escaped;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (const std::string_view next = text.substr(at, 3); next == "\uFFFE" || next == "\uFFFF") {
      escaped += kReplacement;
      at += 2;
    } else if (const std::string_view escape = escapeOf(text[at]); !escape.empty()) {
      escaped += escape;
    } else {
      escaped += text[at];
    }
  }
  return escaped;
}

std::string attribute(std::string_view name, std::string_view value) {
  return " " + std::string(name) + "=\"" + xml(value) + "\"";
}

std::string attribute(std::string_view name, double value) { return attribute(name, numbers({value})); }

std::string numbers(std::initializer_list<double> numbers) {
  // Less cannot be seen, even in a factor of the whole screen.
  constexpr double kParts = 10'000;
  std::string all;
  for (const double number : numbers) {
    char digits[32];
    const auto end = std::to_chars(digits, std::end(digits), std::round(number * kParts) / kParts);
    all.append(all.empty() ? "" : " ").append(digits, end.ptr);
  }
  return all;
}

}  // namespace device
