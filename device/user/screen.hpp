#pragma once

#include <string>
#include <string_view>
#include <vector>

@class NSArray, NSString, UIAlertController, UIView;

namespace device {

/// Whose alpha is less cannot be seen.
inline constexpr double kTransparent = 0.01;

// What is on the screen of this process's app, as a person sees it. Main thread only.

/// As UTF-8; "" for nil. Half of a character that takes two units becomes U+FFFD.
std::string textOf(NSString* text);
/// What a view says to a person, "" for most.
std::string textOf(UIView* view);

// On screen is what is neither hidden, transparent nor clipped away, and not all behind an opaque view;
// nothing while another app is in front. What an animation moves is where it is shown at this moment.

/// Backmost first.
NSArray* windowsOnScreen();

/// The views on screen that a finger can reach, a parent before its children: what is presented keeps it from
/// what is behind.
std::vector<UIView*> reachableViews();

bool isOnScreen(std::string_view text);

/// Whether an animation runs that can be seen, or is about to be.
bool isScreenMoving();

/// The alert or action sheet in front, nil without one.
UIAlertController* alertInFront();

/// The views on screen as indented lines.
std::string screenText();

}  // namespace device
