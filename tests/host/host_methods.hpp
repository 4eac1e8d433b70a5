#pragma once

#include <iosfwd>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace velvault12 {

/// A method of a host that the library replaces, adds or sends.
struct HostMethod {
  /// The bundle identifier; empty for what every app has but the excepted one.
  std::string host;
  std::string className;
  std::string selector;
  std::string encoding;
  /// The features that a host without the method loses.
  std::set<std::string> lost;
  bool isClassMethod = false;
  bool isAdded = false;
  bool isOnlySent = false;
  /// Every version has it: the library sends it without asking.
  bool isPublic = false;
  bool isInNoVersion = false;
};
void PrintTo(const HostMethod& method, std::ostream* out);

/// Removes names of structures and places of arguments, and writes BOOL as an iPhone does.
std::string plainEncoding(const std::string& encoding);

/// Returns the host's rows of the one table of all such methods, in the order in which hooks are installed.
std::vector<HostMethod> hostMethods(std::string_view host);

}  // namespace velvault12
