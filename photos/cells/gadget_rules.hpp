#pragma once

#include <cstdint>
#include <optional>

#include "startup/settings_rules.hpp"

namespace velvault12 {

/// Goes through the parts of the Albums tab, from top to bottom, and tells which of them are shown.
class GadgetWalk {
 public:
  struct Gadget {
    /// Of a strip of albums: which albums these are.
    std::optional<std::uint64_t> albumListType;
    std::uint64_t type = 0;
  };

  explicit GadgetWalk(const Settings& settings) : settings_(settings) {}
  /// Each part is asked about once, in their order.
  bool shows(const Gadget& next);

 private:
  bool showsStrip(std::uint64_t albumListType) const;
  bool showsList();

  const Settings& settings_;
  bool firstListIsGone_ = false;
};

}  // namespace velvault12
