#pragma once

namespace velvault12 {

/// Whether this process is the Photos app, whose lists are filtered by rules of their own. Any thread.
bool isPhotosApp();

}  // namespace velvault12
