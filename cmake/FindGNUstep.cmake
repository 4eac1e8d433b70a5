# What the library and the simulated device need on Linux: clang, GNUstep Base, the blocks runtime, SQLite.
# Sets GNUstep_FOUND, or GNUstep_MISSING to what was not found; defines the target GNUstep::Base.

set(GNUstep_FOUND FALSE)
set(GNUstep_MISSING "")

find_path(GNUSTEP_INCLUDE Foundation/Foundation.h PATH_SUFFIXES GNUstep)
find_library(GNUSTEP_BASE_LIBRARY gnustep-base)
find_library(BLOCKS_LIBRARY BlocksRuntime)
find_library(SQLITE_LIBRARY sqlite3)
# Only GCC ships the headers of its own Objective-C runtime.
file(GLOB GCC_INCLUDE_FOLDERS /usr/lib/gcc/*/*/include)
list(REVERSE GCC_INCLUDE_FOLDERS)
find_path(GCC_OBJC_INCLUDE objc/runtime.h PATHS ${GCC_INCLUDE_FOLDERS} NO_DEFAULT_PATH)
file(GLOB OBJC_LIBRARIES /usr/lib/gcc/*/*/libobjc.so)
list(REVERSE OBJC_LIBRARIES)
if(OBJC_LIBRARIES)
  list(GET OBJC_LIBRARIES 0 OBJC_LIBRARY)
endif()

foreach(part GNUSTEP_INCLUDE GNUSTEP_BASE_LIBRARY BLOCKS_LIBRARY SQLITE_LIBRARY GCC_OBJC_INCLUDE OBJC_LIBRARY)
  if(NOT ${part})
    list(APPEND GNUstep_MISSING "${part} not found")
  endif()
endforeach()
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  list(APPEND GNUstep_MISSING "the compiler is not clang")
endif()
if(GNUstep_MISSING)
  list(JOIN GNUstep_MISSING ", " GNUstep_MISSING)
  return()
endif()
set(GNUstep_FOUND TRUE)

set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_COMPILER ${CMAKE_CXX_COMPILER})
enable_language(OBJCXX)
# CMake knows no run path for this language on Linux.
set(CMAKE_EXECUTABLE_RUNTIME_OBJCXX_FLAG ${CMAKE_EXECUTABLE_RUNTIME_CXX_FLAG})
set(CMAKE_EXECUTABLE_RUNTIME_OBJCXX_FLAG_SEP ${CMAKE_EXECUTABLE_RUNTIME_CXX_FLAG_SEP})

add_library(GNUstep::Base INTERFACE IMPORTED)
target_include_directories(GNUstep::Base INTERFACE ${PROJECT_SOURCE_DIR}/device/blocks_shim)
target_include_directories(GNUstep::Base SYSTEM INTERFACE ${GNUSTEP_INCLUDE})
target_compile_options(GNUstep::Base INTERFACE
  $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-runtime=gcc>
  $<$<COMPILE_LANGUAGE:OBJCXX>:-fblocks>
  $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-exceptions>
  $<$<COMPILE_LANGUAGE:OBJCXX>:-fconstant-string-class=NSConstantString>
  $<$<COMPILE_LANGUAGE:OBJCXX>:SHELL:-idirafter ${GCC_OBJC_INCLUDE}>)
target_compile_definitions(GNUstep::Base INTERFACE
  GNUSTEP GNUSTEP_BASE_LIBRARY=1 GNU_RUNTIME=1 _NATIVE_OBJC_EXCEPTIONS)
# The blocks runtime first: GNUstep has a _Block_copy of its own that does not copy.
target_link_libraries(GNUstep::Base INTERFACE ${BLOCKS_LIBRARY} ${GNUSTEP_BASE_LIBRARY} ${OBJC_LIBRARY} pthread)
