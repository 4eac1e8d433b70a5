#include "device/user/screen.hpp"

#include <algorithm>
#include <cstdio>

#import "device/frameworks/UIKit/UIKit.h"
#include "device/frameworks/owner.hpp"

namespace device {
namespace {

constexpr CGFloat kTransparent = 0.01;

void collect(UIView* view, std::vector<UIView*>& views) {
  if ([view isHidden] || [view alpha] < kTransparent) return;
  views.push_back(view);
  for (UIView* subview in [view subviews]) collect(subview, views);
}

/// The windows on screen, frontmost first.
NSArray* windowsInFront() {
  UIApplication* application = [UIApplication sharedApplication];
  if (!application || [application _isInBackground]) return [NSArray array];
  return [[[application windows] reverseObjectEnumerator] allObjects];
}

UIViewController* presentedInFront(UIWindow* window) {
  UIViewController* front = nil;
  UIViewController* next = [[window rootViewController] presentedViewController];
  for (; next && next != front; next = [next presentedViewController]) front = next;
  return front;
}

std::string lineOf(UIView* view, int depth) {
  const CGRect frame = [view frame];
  char place[128];
  std::snprintf(place, sizeof place, " (%g %g %g %g)\n", frame.origin.x, frame.origin.y, frame.size.width,
                frame.size.height);
  std::string line(static_cast<std::size_t>(2 * depth), ' ');
  line += [NSStringFromClass([view class]) UTF8String];
  if (const std::string text = textOf(view); !text.empty()) line += " \"" + text + "\"";
  return line + place;
}

void print(UIView* view, int depth, std::string& text) {
  if ([view isHidden] || [view alpha] < kTransparent) return;
  text += lineOf(view, depth);
  for (UIView* subview in [view subviews]) print(subview, depth + 1, text);
}

}  // namespace

std::string textOf(UIView* view) {
  const char* text = [[view accessibilityLabel] UTF8String];
  return text ? text : "";
}

std::vector<UIView*> visibleViews() {
  std::vector<UIView*> views;
  for (UIWindow* window in windowsInFront()) collect(window, views);
  return views;
}

std::vector<UIView*> reachableViews() {
  std::vector<UIView*> views;
  for (UIWindow* window in windowsInFront()) {
    UIViewController* presented = presentedInFront(window);
    collect(presented ? [presented view] : window, views);
  }
  return views;
}

bool isOnScreen(std::string_view text) {
  const std::vector<UIView*> views = visibleViews();
  return std::ranges::any_of(views, [&](UIView* view) { return textOf(view) == text; });
}

UIAlertController* alertInFront() {
  for (UIWindow* window in windowsInFront()) {
    UIViewController* front = presentedInFront(window);
    if ([front isKindOfClass:[UIAlertController class]]) return static_cast<UIAlertController*>(front);
  }
  return nil;
}

std::string screenText() {
  std::string text;
  for (UIWindow* window in [windowsInFront() reverseObjectEnumerator]) print(window, 0, text);
  if (const std::string reason = pendingOwnerRequest(); !reason.empty()) {
    text += "Asked for the owner: \"" + reason + "\"\n";
  }
  return text.empty() ? "(nothing)\n" : text;
}

}  // namespace device
