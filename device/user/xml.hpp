#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace device {

/// UTF-8 text as it may stand in the text or an attribute of an XML or HTML document. A character that XML
/// cannot hold becomes U+FFFD.
std::string xml(std::string_view text);

/// ` name="value"`, with the value escaped.
std::string attribute(std::string_view name, std::string_view value);
/// A length or a factor.
std::string attribute(std::string_view name, double value);

/// Separated by spaces, each as short as a picture on a screen allows.
std::string numbers(std::initializer_list<double> numbers);

}  // namespace device
