#include "tests/fuzzing/fuzz_target.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

namespace velvault12 {
namespace {

std::unique_ptr<FuzzTarget> target;

}  // namespace
}  // namespace velvault12

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  // No test runs: what is not as expected ends the program, and with it the run.
  GTEST_FLAG_SET(throw_on_failure, true);
  velvault12::target = velvault12::makeTarget();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const velvault12::AutoreleasePool pool;
  velvault12::target->take({reinterpret_cast<const char*>(data), size});
  return 0;
}
