#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>

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

/// A phone as it leaves the factory: nothing is injected into its apps.
class PlainPhone : public PhoneTest {
 protected:
  PlainPhone() { remove("/Library/MobileSubstrate"); }

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
};

/// This process is an app whose screen is empty.
class EmptyScreen : public PlainPhone {
 protected:
  EmptyScreen() { phone_.launchHere(device::kSpringBoard); }

  static UIView window() { return UIApplication::sharedApplication().keyWindow(); }
  static UIViewController root() { return ask<"rootViewController", UIViewController>(window()); }
  static UIView screen() { return ask<"view", UIView>(root()); }

  template <class View = UIView>
  static View add(CGRect frame, std::string_view text = "", UIView parent = screen()) {
    const View made = makeObject<View, "initWithFrame:">(frame).autorelease();
    if (!text.empty()) ask<"setAccessibilityLabel:">(made, NSString::from(text));
    parent.addSubview(made);
    return made;
  }
};

}  // namespace velvault12
