// Linked into every program of a sanitized build. The leak checker cannot tell the objects that Foundation
// keeps on purpose from leaks; the tests count the library's and the device's own objects instead. Foundation
// takes its own locks in both orders: of threads, races alone are told.

extern "C" {
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own name
const char* __asan_default_options() { return "detect_leaks=0"; }
// NOLINTNEXTLINE(bugprone-reserved-identifier): the same
const char* __ubsan_default_options() { return "print_stacktrace=1"; }
// NOLINTNEXTLINE(bugprone-reserved-identifier): the same
const char* __tsan_default_options() { return "detect_deadlocks=0"; }
}
