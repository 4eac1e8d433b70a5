#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/uikit.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {

/// A class of the host as the receiver of messages.
template <Name ClassName>
Object hostType() {
  return Object(reinterpret_cast<id>(classNamed<ClassName>()));
}

/// A message whose type is that of its arguments: the host's types, spelled out where they are not the
/// view's.
template <Name Selector, class Result = void, class... Arguments>
Result ask(Object receiver, Arguments... arguments) {
  return receiver.send<Selector, Result(Arguments...)>(arguments...);
}

/// A phone as it leaves the factory: nothing is injected into its apps. The test's own process may become one
/// of them, once: ctest runs each case in a process of its own.
class PlainPhone : public ::testing::Test {
 protected:
  using Titles = std::vector<std::string>;

  /// Whether the step ends with an Objective-C exception.
  template <class Step>
  static bool raises(Step step) {
    try {
      step();
    } catch (const std::exception&) {
      throw;
    } catch (...) {
      return true;
    }
    return false;
  }
  /// Why the user could not do it, "" when it went well.
  template <class Step>
  static std::string refusal(Step step) {
    try {
      step();
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "";
  }
  static bool soon(const std::function<bool()>& condition) {
    return device::runUntil(condition, device::kPatience);
  }
  static NSUInteger references(Object object) { return object.send<"retainCount", NSUInteger()>(); }
  static NSIndexPath pathTo(NSInteger item) {
    return ask<"indexPathForItem:inSection:", NSIndexPath>(hostType<"NSIndexPath">(), item, NSInteger{0});
  }

 private:
  TemporaryFolder folder_;

 protected:
  device::Device phone_{folder_.path() / "phone"};
  AutoreleasePool pool_;
};

}  // namespace velvault12
