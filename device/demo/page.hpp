#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "device/demo/story.hpp"

namespace device {

/// The told story as one page, `index.html` in the folder, and its pictures beside it. Answers the page's
/// path. Throws std::runtime_error when a file cannot be written.
std::filesystem::path writePage(const std::filesystem::path& folder, std::string_view title,
                                const std::vector<Chapter>& chapters);

}  // namespace device
