#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "host/core_graphics.hpp"
#include "host/runtime.hpp"

namespace velvault12 {

/// How the runtime writes a type of the host down, an enumeration as the integer that it is; empty for one
/// that no method here and no block has.
template <class T>
inline constexpr std::string_view kEncoding;
template <class T>
requires std::is_base_of_v<Object, T>
inline constexpr std::string_view kEncoding<T> = "@";
template <class T>
requires std::is_enum_v<T>
inline constexpr std::string_view kEncoding<T> = kEncoding<std::underlying_type_t<T>>;
template <>
inline constexpr std::string_view kEncoding<void> = "v";
template <>
inline constexpr std::string_view kEncoding<int> = "i";
template <>
inline constexpr std::string_view kEncoding<bool> = "B";
template <>
inline constexpr std::string_view kEncoding<std::int64_t> = "q";
template <>
inline constexpr std::string_view kEncoding<std::uint64_t> = "Q";
template <>
inline constexpr std::string_view kEncoding<double> = "d";
template <>
inline constexpr std::string_view kEncoding<SEL> = ":";
template <>
inline constexpr std::string_view kEncoding<CGSize> = "{CGSize=dd}";
template <>
inline constexpr std::string_view kEncoding<CGRect> = "{CGRect={CGPoint=dd}{CGSize=dd}}";

/// Whether methods of these two encodings are called in the same way: as many arguments, each of them and the
/// result an object or another pointer, an integer, a number with a fraction, a structure of such. Classes,
/// names, sizes of integers and where arguments lie do not count.
bool areCalledAlike(const char* encoding, const char* other);

/// The encoding of a block's type, such as "v@?B@" with a zero at its end: result, the block itself,
/// parameters.
template <class Result, class... Parameters>
constexpr auto blockEncoding() {
  static_assert(!kEncoding<Result>.empty() && (!kEncoding<Parameters>.empty() && ...));
  constexpr std::string_view kBlock = "@?";
  constexpr std::size_t kSize =
      ((kEncoding<Result>.size() + kBlock.size()) + ... + kEncoding<Parameters>.size());
  std::array<char, kSize + 1> text{};
  std::size_t end = 0;
  for (const std::string_view part : {kEncoding<Result>, kBlock, kEncoding<Parameters>...}) {
    for (const char letter : part) text[end++] = letter;
  }
  return text;
}

}  // namespace velvault12
