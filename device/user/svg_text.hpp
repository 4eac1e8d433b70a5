#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#import "device/frameworks/UIKit/UIColor.h"

namespace device {

/// As it may stand in an XML document's text or attribute. What is no Unicode, or may not stand there, is
/// replaced.
std::string xml(NSString* text);

/// Separated by blanks.
std::string numbers(std::initializer_list<CGFloat> numbers);

/// ` name="value"`
std::string attribute(std::string_view name, std::string_view value);
std::string attribute(std::string_view name, CGFloat value);

/// The attributes that fill a shape with it.
std::string fill(UIColor* color);

}  // namespace device
