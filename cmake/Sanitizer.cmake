# -DVELVAULT12_SANITIZER=address,undefined builds everything with these sanitizers. Programs link `sanitizer_defaults`.

set(VELVAULT12_SANITIZER "" CACHE STRING "Sanitizers to build with, separated by commas: address, undefined, thread")
add_library(sanitizer_defaults INTERFACE)
if(VELVAULT12_SANITIZER)
  # The runtime calls methods by types that differ in what their parameters are called, which only clang looks at.
  add_compile_options(-fsanitize=${VELVAULT12_SANITIZER} $<$<CXX_COMPILER_ID:Clang>:-fno-sanitize=function>
    -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VELVAULT12_SANITIZER})
  target_sources(sanitizer_defaults INTERFACE ${CMAKE_CURRENT_LIST_DIR}/sanitizer_defaults.cpp)
endif()
