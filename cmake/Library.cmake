# The edge to the host, and velvault12.so: the library as the phone's loader injects it. What it leaves undefined (the
# platform's C functions) is provided by whoever loads it.
file(GLOB HOST_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/host/*.cpp)
add_library(host STATIC ${HOST_SOURCES})

file(GLOB_RECURSE LIBRARY_SOURCES CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/startup/*.cpp ${PROJECT_SOURCE_DIR}/camera/*.cpp ${PROJECT_SOURCE_DIR}/photos/*.cpp
  ${PROJECT_SOURCE_DIR}/springboard/*.cpp ${PROJECT_SOURCE_DIR}/library_filter/*.cpp)
list(FILTER LIBRARY_SOURCES EXCLUDE REGEX "_rules\\.cpp$")
add_library(velvault12 SHARED ${LIBRARY_SOURCES})
target_link_libraries(velvault12 PRIVATE rules host)
set_target_properties(host velvault12 PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
set_target_properties(velvault12 PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})

if(IOS)
  include(${PROJECT_SOURCE_DIR}/packaging/iphone.cmake)
else()
  target_link_libraries(host PUBLIC ${BLOCKS_LIBRARY} ${OBJC_LIBRARY})
  # Nobody calls it by name.
  target_link_options(velvault12 PRIVATE -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/no_exports.map)
endif()
