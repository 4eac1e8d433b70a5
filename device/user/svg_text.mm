#include "device/user/svg_text.hpp"

#include <charconv>
#include <cmath>

namespace device {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

bool mayStandInXml(char32_t letter) {
  if (letter < ' ') return letter == '\t' || letter == '\n' || letter == '\r';
  return !isHighSurrogate(letter) && !isLowSurrogate(letter) && letter != 0xFFFE && letter != 0xFFFF;
}

void append(std::string& text, char32_t letter) {
  switch (letter) {
    case '&':
      text += "&amp;";
      return;
    case '<':
      text += "&lt;";
      return;
    case '>':
      text += "&gt;";
      return;
    case '"':
      text += "&quot;";
      return;
    default:
      break;
  }
  const int following = letter < 0x80 ? 0 : letter < 0x800 ? 1 : letter < 0x10000 ? 2 : 3;
  constexpr unsigned char kFirstByte[] = {0, 0xC0, 0xE0, 0xF0};
  text += static_cast<char>(kFirstByte[following] | letter >> (6 * following));
  for (int byte = following - 1; byte >= 0; --byte) {
    text += static_cast<char>(0x80 | (letter >> (6 * byte) & 0x3F));
  }
}

std::string shortest(CGFloat number) {
  char digits[32];
  // Less is too small to be seen, even in a factor of the whole screen.
  constexpr CGFloat kParts = 10'000;
  const auto end = std::to_chars(digits, std::end(digits), std::round(number * kParts) / kParts);
  return {digits, end.ptr};
}

}  // namespace

std::string xml(NSString* text) {
  std::string escaped;
  const NSUInteger length = [text length];
  for (NSUInteger index = 0; index < length; ++index) {
    char32_t letter = [text characterAtIndex:index];
    const char32_t next = index + 1 < length ? [text characterAtIndex:index + 1] : 0;
    if (isHighSurrogate(letter) && isLowSurrogate(next)) {
      letter = 0x10000 + ((letter - 0xD800) << 10) + (next - 0xDC00);
      ++index;
    }
    append(escaped, mayStandInXml(letter) ? letter : kReplacement);
  }
  return escaped;
}

std::string numbers(std::initializer_list<CGFloat> numbers) {
  std::string all;
  for (const CGFloat number : numbers) all += (all.empty() ? "" : " ") + shortest(number);
  return all;
}

std::string attribute(std::string_view name, std::string_view value) {
  return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

std::string attribute(std::string_view name, CGFloat value) { return attribute(name, shortest(value)); }

std::string fill(UIColor* color) {
  CGFloat red = 0, green = 0, blue = 0, alpha = 0;
  [color getRed:&red green:&green blue:&blue alpha:&alpha];
  const auto byte = [](CGFloat part) { return shortest(std::round(255 * part)); };
  const std::string rgb = "rgb(" + byte(red) + "," + byte(green) + "," + byte(blue) + ")";
  return attribute("fill", rgb) + (alpha < 1 ? attribute("fill-opacity", alpha) : "");
}

}  // namespace device
