# Finds GNUstep Base, GCC's Objective-C runtime, which it is built on, and the blocks runtime.
#
# Sets GNUstep_FOUND, and defines
#   GNUstep::Runtime  the two runtimes
#   GNUstep::Base     GNUstep Base with them, and the flags that clang compiles Objective-C++ for it with

include(FindPackageHandleStandardArgs)

find_path(GNUstep_INCLUDE_DIR Foundation/Foundation.h PATH_SUFFIXES GNUstep)
find_library(GNUstep_LIBRARY gnustep-base)
find_library(GNUstep_BLOCKS_LIBRARY BlocksRuntime)
# GCC keeps its runtime, and the only headers of it, in a folder a version, the newest first.
file(GLOB GCC_FOLDERS /usr/lib/gcc/*/*)
list(SORT GCC_FOLDERS COMPARE NATURAL ORDER DESCENDING)
find_path(GNUstep_OBJC_INCLUDE_DIR objc/runtime.h PATHS ${GCC_FOLDERS} PATH_SUFFIXES include NO_DEFAULT_PATH)
find_library(GNUstep_OBJC_LIBRARY objc PATHS ${GCC_FOLDERS} NO_DEFAULT_PATH)
mark_as_advanced(GNUstep_INCLUDE_DIR GNUstep_LIBRARY GNUstep_BLOCKS_LIBRARY GNUstep_OBJC_INCLUDE_DIR
  GNUstep_OBJC_LIBRARY)

find_package_handle_standard_args(GNUstep REQUIRED_VARS GNUstep_LIBRARY GNUstep_INCLUDE_DIR GNUstep_BLOCKS_LIBRARY
  GNUstep_OBJC_LIBRARY GNUstep_OBJC_INCLUDE_DIR)

if(GNUstep_FOUND AND NOT TARGET GNUstep::Base)
  add_library(GNUstep::Runtime INTERFACE IMPORTED)
  target_link_libraries(GNUstep::Runtime INTERFACE ${GNUstep_BLOCKS_LIBRARY} ${GNUstep_OBJC_LIBRARY})

  add_library(GNUstep::Base INTERFACE IMPORTED)
  target_include_directories(GNUstep::Base SYSTEM INTERFACE ${GNUstep_INCLUDE_DIR})
  target_compile_options(GNUstep::Base INTERFACE
    $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-runtime=gcc>
    $<$<COMPILE_LANGUAGE:OBJCXX>:-fblocks>
    $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-exceptions>
    $<$<COMPILE_LANGUAGE:OBJCXX>:-fconstant-string-class=NSConstantString>
    $<$<COMPILE_LANGUAGE:OBJCXX>:SHELL:-idirafter ${GNUstep_OBJC_INCLUDE_DIR}>)
  target_compile_definitions(GNUstep::Base INTERFACE
    GNUSTEP GNUSTEP_BASE_LIBRARY=1 GNU_RUNTIME=1 _NATIVE_OBJC_EXCEPTIONS)
  # The blocks runtime first: GNUstep has a _Block_copy of its own that does not copy.
  target_link_libraries(GNUstep::Base INTERFACE
    ${GNUstep_BLOCKS_LIBRARY} ${GNUstep_LIBRARY} ${GNUstep_OBJC_LIBRARY} pthread)
endif()
