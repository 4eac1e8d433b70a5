#pragma once

#import <Foundation/Foundation.h>

#include <string_view>

namespace device {

inline constexpr std::string_view kBinaryMagic = "bplist00";

/// What a binary property list holds, autoreleased; nil when it is damaged in any way.
id binaryPropertyListIn(std::string_view bytes);

}  // namespace device
