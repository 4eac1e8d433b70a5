#pragma once

namespace device {

/// Makes Foundation's file methods, and what the main bundle says of itself, those of this process's phone.
void leadFoundationToDisk();

}  // namespace device
