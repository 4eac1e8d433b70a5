#pragma once

namespace velvault12 {

extern "C" const double kCFCoreFoundationVersionNumber;

/// CoreFoundation's own version, which grows with the system's: 1443.00 is iOS 11.0, 1665.15 is iOS 13.0.
inline double coreFoundationVersion() { return kCFCoreFoundationVersionNumber; }

}  // namespace velvault12
