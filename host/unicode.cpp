#include "host/unicode.hpp"

#include <cstddef>

namespace velvault12 {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool isLeadSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool isTrailSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void appendUtf8(std::string& bytes, char32_t point) {
  const auto continuation = [&bytes](char32_t bits) { bytes += static_cast<char>(0x80 | (bits & 0x3F)); };
  if (point < 0x80) {
    bytes += static_cast<char>(point);
  } else if (point < 0x800) {
    bytes += static_cast<char>(0xC0 | (point >> 6));
    continuation(point);
  } else if (point < 0x10000) {
    bytes += static_cast<char>(0xE0 | (point >> 12));
    continuation(point >> 6);
    continuation(point);
  } else {
    bytes += static_cast<char>(0xF0 | (point >> 18));
    continuation(point >> 12);
    continuation(point >> 6);
    continuation(point);
  }
}

void appendUtf16(std::u16string& units, char32_t point) {
  if (point < 0x10000) {
    units += static_cast<char16_t>(point);
    return;
  }
  point -= 0x10000;
  units += static_cast<char16_t>(0xD800 | (point >> 10));
  units += static_cast<char16_t>(0xDC00 | (point & 0x3FF));
}

struct Decoded {
  char32_t point;
  std::size_t length;
};

/// The code point at the front of the bytes, which are not empty.
Decoded decodeFirst(std::string_view bytes) {
  const auto first = static_cast<unsigned char>(bytes.front());
  if (first < 0x80) return {first, 1};
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 0;
  if (length == 0 || first >= 0xF8 || bytes.size() < length) return {kReplacement, 1};
  char32_t point = first & (0x7F >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(bytes[i]);
    if ((next & 0xC0) != 0x80) return {kReplacement, 1};
    point = (point << 6) | (next & 0x3F);
  }
  constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (point < kSmallest[length] || point > 0x10FFFF) return {kReplacement, 1};
  return {point, length};
}

}  // namespace

std::string utf8FromUtf16(std::u16string_view units) {
  std::string bytes;
  bytes.reserve(units.size());
  for (std::size_t i = 0; i < units.size(); ++i) {
    char32_t point = units[i];
    if (isLeadSurrogate(point) && i + 1 < units.size() && isTrailSurrogate(units[i + 1])) {
      ++i;
      point = 0x10000 + ((point - 0xD800) << 10) + (units[i] - 0xDC00);
    }
    appendUtf8(bytes, point);
  }
  return bytes;
}

std::u16string utf16FromUtf8(std::string_view bytes) {
  std::u16string units;
  units.reserve(bytes.size());
  while (!bytes.empty()) {
    const Decoded decoded = decodeFirst(bytes);
    appendUtf16(units, decoded.point);
    bytes.remove_prefix(decoded.length);
  }
  return units;
}

}  // namespace velvault12
