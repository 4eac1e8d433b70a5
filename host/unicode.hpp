#pragma once

#include <string>
#include <string_view>

namespace velvault12 {

/// UTF-8 from the host's UTF-16 and back. Half a surrogate pair becomes three bytes and finds its way back,
/// so two different strings stay different. Bytes that are no UTF-8 become U+FFFD, one for each byte.
std::string utf8FromUtf16(std::u16string_view units);
std::u16string utf16FromUtf8(std::string_view bytes);

}  // namespace velvault12
