#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace device {

/// A phone's screen.
struct Picture {
  /// Which app it shows; "" where there is only one phone.
  std::string caption;
  /// An SVG document.
  std::string svg;
  /// The views on the screen, as indented lines.
  std::string viewTree;
};

struct Step {
  int number;
  std::string text;
  /// What can be seen of it, or why it failed.
  std::string result;
  bool passed;
  /// Afterwards; none where there is nothing to see.
  std::vector<Picture> pictures;
};

struct Chapter {
  std::string title;
  std::vector<Step> steps;
};

/// Performs a story step by step, prints it, and keeps it for the page.
class Story {
 public:
  /// Looks at the phone when a step is over.
  using Look = std::function<std::vector<Picture>()>;
  explicit Story(Look look) : look_(std::move(look)) {}

  /// Begins the chapter of all steps that follow.
  void chapter(std::string_view title);

  /// Performs one step, which returns its result. It fails by throwing a std::exception.
  void step(std::string_view text, const std::function<std::string()>& perform);

  const std::vector<Chapter>& chapters() const { return chapters_; }
  bool passed() const { return passed_ == steps_; }
  /// "57 of 58 steps passed"
  std::string summary() const;

 private:
  Look look_;
  std::vector<Chapter> chapters_;
  int steps_ = 0;
  int passed_ = 0;
};

/// Throws std::runtime_error with the expectation unless it holds.
void expect(bool holds, std::string_view expectation);

}  // namespace device
