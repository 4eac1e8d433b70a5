#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace device {

/// A phone's screen as an SVG document, and what it shows; no words where there is only one phone.
struct Picture {
  std::string caption;
  std::string svg;
};

/// What was told, and how it went.
struct Step {
  std::string text;
  /// What the device answered, or what was expected in vain.
  std::string answer;
  bool wentAsTold;
  /// Afterwards; none where there is nothing to see.
  std::vector<Picture> pictures;
};

struct Chapter {
  std::string title;
  std::vector<Step> steps;
};

/// Tells a story step by step, and whether the device did what it tells.
class Story {
 public:
  /// Looks at the phone when a step is over.
  using Look = std::function<std::vector<Picture>()>;
  explicit Story(Look look) : look_(std::move(look)) {}

  /// Heads what follows.
  void chapter(std::string_view title);

  /// Tells one step, does it, and tells what the device answered. What `step` answers is that answer; when it
  /// throws, the step did not go as told.
  void step(std::string_view text, const std::function<std::string()>& step);

  const std::vector<Chapter>& chapters() const { return chapters_; }
  int steps() const;
  /// How many steps did not go as told.
  int failures() const;

 private:
  Look look_;
  std::vector<Chapter> chapters_;
};

/// For a step's answer: throws std::runtime_error with what was expected unless it holds.
void expect(bool holds, std::string_view expectation);

}  // namespace device
