#include "camera/capture_album_rules.hpp"

#include <algorithm>
#include <iterator>

namespace velvault12 {

namespace {

// What Unicode calls white space, in UTF-8; keyboards of several scripts have a space of their own.
constexpr std::string_view kWhiteSpace[] = {
    " ",      "\t",     "\n",     "\v",     "\f",     "\r",     "\u0085", "\u00a0", "\u1680",
    "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007", "\u2008",
    "\u2009", "\u200a", "\u2028", "\u2029", "\u202f", "\u205f", "\u3000"};

}  // namespace

std::string captureAlbumAtStart(const std::optional<std::string>& remembered, bool rememberDefault) {
  return remembered && rememberDefault ? *remembered : std::string(kCameraRoll);
}

bool isAlbumTitle(std::string_view typed) {
  while (!typed.empty()) {
    const auto space =
        std::find_if(std::begin(kWhiteSpace), std::end(kWhiteSpace),
                     [&](std::string_view each) { return typed.substr(0, each.size()) == each; });
    if (space == std::end(kWhiteSpace)) return true;
    typed.remove_prefix(space->size());
  }
  return false;
}

}  // namespace velvault12
