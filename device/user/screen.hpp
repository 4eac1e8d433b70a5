#pragma once

#include <string>
#include <string_view>
#include <vector>

@class UIAlertController, UIView;

namespace device {

// What is on the screen of this process's app, as a person sees it. Main thread only.

/// What a view says to a person, "" for most.
std::string textOf(UIView* view);

// On screen is what is neither hidden, transparent nor clipped away, and not all behind an opaque view;
// nothing while another app is in front.

/// The views on screen that a finger can reach, a parent before its children: what is presented keeps it from
/// what is behind.
std::vector<UIView*> reachableViews();

bool isOnScreen(std::string_view text);

/// The alert or action sheet in front, nil without one.
UIAlertController* alertInFront();

/// The views on screen as indented lines.
std::string screenText();

}  // namespace device
