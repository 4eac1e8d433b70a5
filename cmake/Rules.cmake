# The rules: what decides, in plain C++. They build with any C++20 compiler and nothing but its standard library.
file(GLOB_RECURSE RULE_SOURCES CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/startup/*_rules.cpp ${PROJECT_SOURCE_DIR}/camera/*_rules.cpp
  ${PROJECT_SOURCE_DIR}/photos/*_rules.cpp ${PROJECT_SOURCE_DIR}/springboard/*_rules.cpp
  ${PROJECT_SOURCE_DIR}/library_filter/*_rules.cpp)
add_library(rules STATIC ${RULE_SOURCES})
set_target_properties(rules PROPERTIES CXX_VISIBILITY_PRESET hidden)
