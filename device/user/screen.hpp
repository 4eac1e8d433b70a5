#pragma once

#include <string>
#include <string_view>
#include <vector>

@class UIAlertController, UIView;

namespace device {

// What is on the screen of this process's app, as a person sees it. Main thread only.

/// What a view says to a person, "" for most.
std::string textOf(UIView* view);

/// All views that are neither hidden nor transparent, a parent before its children. Nothing while another app
/// is in front.
std::vector<UIView*> visibleViews();

/// Of these, those that a finger can reach: what is presented keeps it from what is behind.
std::vector<UIView*> reachableViews();

bool isOnScreen(std::string_view text);

/// The alert or action sheet in front, nil without one.
UIAlertController* alertInFront();

/// The visible views as indented lines.
std::string screenText();

}  // namespace device
