# arm64 iPhones with iOS 11 or later. The headers are those of CMAKE_OSX_SYSROOT where that is given (Xcode's iPhoneOS SDK,
# on a Mac), otherwise what ios_headers/fetch made. What is linked is in stubs/ either way.

set(CMAKE_SYSTEM_NAME iOS)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET arm64-apple-ios11.0)
set(CMAKE_OSX_ARCHITECTURES arm64)
if(NOT CMAKE_OSX_SYSROOT)
  set(CMAKE_OSX_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../build/iPhoneOS.sdk)
endif()

set(CMAKE_CXX_FLAGS_INIT -stdlib=libc++)
# Not the C++ headers that may be installed beside a compiler.
if(EXISTS ${CMAKE_OSX_SYSROOT}/usr/include/c++/v1)
  string(APPEND CMAKE_CXX_FLAGS_INIT " -stdlib++-isystem ${CMAKE_OSX_SYSROOT}/usr/include/c++/v1")
endif()
if(NOT CMAKE_HOST_APPLE)
  set(CMAKE_SHARED_LINKER_FLAGS_INIT "-fuse-ld=lld -Wl,-fatal_warnings")
endif()
