#pragma once

#include <filesystem>

#include "device/demo/story.hpp"

namespace device {

/// Writes the story as one page, `index.html` in the folder, with its pictures next to it. Returns the page's
/// path. Throws std::runtime_error when a file cannot be written.
std::filesystem::path writePage(const std::filesystem::path& folder, const Story& story);

}  // namespace device
