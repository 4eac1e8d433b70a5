#include "host/encoding.hpp"

#include <string_view>

namespace velvault12 {

namespace {

constexpr std::string_view kOpening = "{[(<";
constexpr std::string_view kClosing = "}])>";
constexpr std::string_view kQualifiersAndPlaces = "rnNoORVA+-0123456789";

bool isOneOf(std::string_view letters, char letter) {
  return letter != '\0' && letters.find(letter) != std::string_view::npos;
}

/// Past one type, with all that is in its brackets.
const char* pastType(const char* at) {
  int depth = 0;
  do {
    if (isOneOf(kOpening, *at)) ++depth;
    if (isOneOf(kClosing, *at)) --depth;
    if (*at != '\0') ++at;
  } while (depth > 0 && *at != '\0');
  return at;
}

const char* pastQuotes(const char* at) {
  do {
    ++at;
  } while (*at != '"' && *at != '\0');
  return *at == '\0' ? at : at + 1;
}

/// How the next part of an encoding is passed, and moves past it; a zero at the end. A structure is its
/// brackets and what is between them.
char nextPart(const char*& at) {
  while (isOneOf(kQualifiersAndPlaces, *at)) ++at;
  const char first = *at;
  if (first == '\0') return first;
  switch (first) {
    case '{':
      while (*at != '=' && *at != '}' && *at != '\0') ++at;
      if (*at == '=') ++at;
      return first;
    case '^':
      while (*at == '^') ++at;
      at = pastType(at);
      return '@';
    case '@':
      ++at;
      // A block's own type, or the name of the class, may stand behind it.
      if (*at == '?') ++at;
      if (*at == '<') at = pastType(at);
      if (*at == '"') at = pastQuotes(at);
      return '@';
    case '#':
    case ':':
    case '*':
      ++at;
      return '@';
    case '}':
    case 'd':
    case 'f':
    case 'v':
      ++at;
      return first;
    default:
      at = pastType(at);
      return 'q';
  }
}

}  // namespace

bool areCalledAlike(const char* encoding, const char* other) {
  for (;;) {
    const char part = nextPart(encoding);
    if (part != nextPart(other)) return false;
    if (part == '\0') return true;
  }
}

}  // namespace velvault12
