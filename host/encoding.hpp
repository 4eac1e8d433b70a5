#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>

#include "host/core_graphics.hpp"
#include "host/runtime.hpp"

namespace velvault12 {

/// How the runtime writes a type of the host down; empty for one that no added method and no block has.
template <class T>
inline constexpr std::string_view kEncoding;
template <class T>
requires std::is_base_of_v<Object, T>
inline constexpr std::string_view kEncoding<T> = "@";
template <>
inline constexpr std::string_view kEncoding<void> = "v";
template <>
inline constexpr std::string_view kEncoding<int> = "i";
template <>
inline constexpr std::string_view kEncoding<bool> = "B";
template <>
inline constexpr std::string_view kEncoding<CGSize> = "{CGSize=dd}";

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
