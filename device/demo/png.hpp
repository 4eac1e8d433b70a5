#pragma once

#include <filesystem>
#include <string>

namespace device {

/// The SVG document as a PNG file, twice as large as its points. Throws std::runtime_error when the program
/// that converts it, rsvg-convert, is missing or fails.
void writePng(const std::string& svg, const std::filesystem::path& png);

}  // namespace device
