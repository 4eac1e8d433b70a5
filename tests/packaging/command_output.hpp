#pragma once

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

/// What a shell command prints to its standard output, a line each. Throws when the command fails.
inline std::vector<std::string> linesOf(const std::string& command) {
  const auto close = [](FILE* pipe) { return pclose(pipe); };
  std::unique_ptr<FILE, decltype(close)> pipe(popen(command.c_str(), "r"), close);
  if (!pipe) throw std::runtime_error("no shell for: " + command);
  std::vector<std::string> lines(1);
  for (int character = std::fgetc(pipe.get()); character != EOF; character = std::fgetc(pipe.get())) {
    if (character == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += static_cast<char>(character);
    }
  }
  if (lines.back().empty()) lines.pop_back();
  if (pclose(pipe.release()) != 0) throw std::runtime_error("failed: " + command);
  return lines;
}

/// A path as one word of a shell command.
inline std::string quoted(const std::string& path) { return "'" + path + "'"; }
