#pragma once

#import <Foundation/Foundation.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace device {

/// What a property list of any form (binary, XML, or the old text) holds, autoreleased. Nil when it is
/// damaged in any way: bytes of strangers are safe to hand over.
id propertyListIn(std::string_view bytes);

/// The same for bytes or a file of this machine (not of the phone), nil too when it holds another kind.
id propertyListIn(std::string_view bytes, Class kind);
id propertyListInFile(const std::filesystem::path& file, Class kind);

/// None when something in it has no place in a property list.
std::optional<std::string> xmlPropertyListOf(id value);

/// The string's characters; "" for nil.
std::string utf8(NSString* string);
/// Nil when the bytes are not UTF-8. Autoreleased.
NSString* stringOf(std::string_view bytes);

}  // namespace device
