#pragma once

#include <string>
#include <vector>

namespace velvault12::benchmarks {

/// What the library without content does to one method.
struct EmptyRow {
  std::string className;
  std::string selector;
  std::string encoding;
  bool isClassMethod = false;
  bool isAdded = false;
};

/// The rows that it installs when it is loaded, set beforehand.
extern std::vector<EmptyRow> emptyRows;

}  // namespace velvault12::benchmarks
