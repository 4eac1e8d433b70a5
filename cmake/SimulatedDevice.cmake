# Sets SIMULATED_DEVICE where clang and the libraries that the simulated device is made of are there.

find_package(GNUstep)
find_package(SQLiteCpp)
find_package(nlohmann_json)

set(SIMULATED_DEVICE OFF)
if(GNUstep_FOUND AND SQLiteCpp_FOUND AND nlohmann_json_FOUND AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  set(SIMULATED_DEVICE ON)
  set(CMAKE_OBJCXX_STANDARD 20)
  set(CMAKE_OBJCXX_COMPILER ${CMAKE_CXX_COMPILER})
  enable_language(OBJCXX)
  # CMake knows no run path for this language on Linux.
  set(CMAKE_EXECUTABLE_RUNTIME_OBJCXX_FLAG ${CMAKE_EXECUTABLE_RUNTIME_CXX_FLAG})
  set(CMAKE_EXECUTABLE_RUNTIME_OBJCXX_FLAG_SEP ${CMAKE_EXECUTABLE_RUNTIME_CXX_FLAG_SEP})
else()
  message(STATUS "Left out: the simulated device with its tests and benchmarks. To have them: ./dev build, or install what "
    "is missing above and configure with -DCMAKE_CXX_COMPILER=clang++.")
endif()
