# arm64 iPhones with iOS 11 or later. CMAKE_OSX_SYSROOT may be given: Xcode's iPhoneOS SDK, on a Mac. Otherwise the headers
# are what ios_headers/fetch made, in a folder that CMake takes for such an SDK by its name.

set(CMAKE_SYSTEM_NAME iOS)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET arm64-apple-ios11.0)
set(CMAKE_OSX_ARCHITECTURES arm64)
if(NOT CMAKE_OSX_SYSROOT)
  set(CMAKE_OSX_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../build/iPhoneOS.sdk)
endif()
if(NOT EXISTS ${CMAKE_OSX_SYSROOT})
  message(FATAL_ERROR "No headers in ${CMAKE_OSX_SYSROOT}. To have them: ./dev package.")
endif()

# Not the C++ headers that may be installed beside a compiler.
if(EXISTS ${CMAKE_OSX_SYSROOT}/usr/include/c++/v1)
  set(CMAKE_CXX_FLAGS_INIT "-stdlib++-isystem \"${CMAKE_OSX_SYSROOT}/usr/include/c++/v1\"")
else()
  set(CMAKE_CXX_FLAGS_INIT -stdlib=libc++)
endif()
# Instructions that stand in many functions are kept once: the library is mapped into every app.
string(APPEND CMAKE_CXX_FLAGS_INIT " -moutline")
if(NOT CMAKE_HOST_APPLE)
  set(CMAKE_SHARED_LINKER_FLAGS_INIT "-fuse-ld=lld -Wl,-fatal_warnings")
endif()
