#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace velvault12 {

/// A method of the host that a version of it may lack, and what is lost without it: the parts of the story,
/// with commas between. An empty one is a host that lacks nothing.
struct MissingMethod {
  std::string_view className;
  /// A class's own method begins with a plus.
  std::string_view selector;
  std::string_view lost;
};

/// Takes the method away from the library, before that is loaded: it can neither replace it nor send it, and
/// sending it without having asked is a failure of the test. The host keeps it: another version does without,
/// but this one was not written to. One that every version has is sent all the same.
void hideFromLibrary(const MissingMethod& method);
/// Whether the library has come to ask for it.
bool wasMissed();

/// Whether every version of the host has it, of all that the library sends.
bool isPublic(std::string_view selector);

/// An app whose host lacks one method. Its story is told in parts, none of which needs the one before.
template <class App>
class Without : public App, public ::testing::WithParamInterface<MissingMethod> {
 protected:
  struct Part {
    std::string_view name;
    std::function<bool()> works;
  };

  Without() { hideFromLibrary(GetParam()); }

  /// Plays each part, and compares what is lost with what may be.
  void play(std::span<const Part> story) {
    const std::string lost = ", " + std::string(GetParam().lost) + ",";
    for (const Part& part : story) {
      isLost_ = lost.find(", " + std::string(part.name) + ",") != std::string::npos;
      std::string why;
      bool works = false;
      try {
        works = part.works();
      } catch (const std::runtime_error& error) {
        why = error.what();
      }
      EXPECT_EQ(works, !isLost_) << part.name << ": " << why;
    }
    if (!GetParam().className.empty()) EXPECT_TRUE(wasMissed()) << "nobody has asked for it";
  }
  /// Whether the part that is being played is to fail.
  bool isLost() const { return isLost_; }
  /// Waits until it holds, where it is to come at all.
  bool comesTrue(const std::function<bool()>& condition) const {
    if (!isLost_) return App::soon(condition);
    App::settle();
    return condition();
  }

 private:
  bool isLost_ = false;
};

}  // namespace velvault12
