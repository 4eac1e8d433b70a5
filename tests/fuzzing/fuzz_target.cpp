#include "tests/fuzzing/fuzz_target.hpp"

static std::unique_ptr<velvault12::FuzzTarget> target;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  // No test runs: what is not as expected ends the program, and with it the run.
  GTEST_FLAG_SET(throw_on_failure, true);
  target = velvault12::makeTarget();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const velvault12::AutoreleasePool pool;
  target->take({reinterpret_cast<const char*>(data), size});
  return 0;
}
