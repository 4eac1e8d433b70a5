#include "device/user/screen.hpp"

#include <algorithm>
#include <cstdio>

#import "device/frameworks/UIKit/UIKit.h"
#include "device/frameworks/owner.hpp"

namespace device {
namespace {

/// A view, and the part of the screen that it fills.
struct Sight {
  UIView* view;
  CGRect place;
  /// Its own and that of all around it.
  CGFloat alpha;
  int depth;
};

bool isOpaque(const Sight& sight) {
  CGFloat alpha = 0;
  [[sight.view backgroundColor] getRed:nullptr green:nullptr blue:nullptr alpha:&alpha];
  return sight.alpha * alpha == 1;
}

/// What is around the views to be collected: where its own origin is, the part of the screen that is left to
/// them, and the alpha.
struct Surroundings {
  CGPoint origin;
  CGRect clip;
  CGFloat alpha = 1;
  int depth = 0;
};

/// In the order in which they are painted.
void collect(UIView* view, Surroundings around, std::vector<Sight>& sights) {
  const UIViewLook look = [view _shownLook];
  around.alpha *= look.alpha;
  if ([view isHidden] || around.alpha < kTransparent) return;
  CGRect frame = look.frame();
  frame.origin = {frame.origin.x + around.origin.x, frame.origin.y + around.origin.y};
  const CGRect place = CGRectIntersection(frame, around.clip);
  if (!CGRectIsEmpty(place)) sights.push_back({view, place, around.alpha, around.depth});
  if ([view clipsToBounds]) around.clip = place;
  ++around.depth;
  around.origin = {frame.origin.x - look.bounds.origin.x, frame.origin.y - look.bounds.origin.y};
  for (UIView* subview in [view subviews]) collect(subview, around, sights);
}

/// Whether a view painted later hides all of one. Its own subviews belong to what is seen of it.
bool isCovered(const std::vector<Sight>& sights, std::size_t index) {
  const Sight& covered = sights[index];
  std::size_t next = index + 1;
  while (next < sights.size() && sights[next].depth > covered.depth) ++next;
  return std::any_of(
      sights.begin() + static_cast<std::ptrdiff_t>(next), sights.end(),
      [&](const Sight& later) { return isOpaque(later) && CGRectContainsRect(later.place, covered.place); });
}

/// Backmost first, a parent before its children.
std::vector<Sight> sightsOnScreen() {
  std::vector<Sight> all;
  for (UIWindow* window in windowsOnScreen()) {
    collect(window, {.origin = CGPointZero, .clip = [[UIScreen mainScreen] bounds]}, all);
  }
  std::vector<Sight> seen;
  for (std::size_t index = 0; index < all.size(); ++index) {
    if (!isCovered(all, index)) seen.push_back(all[index]);
  }
  return seen;
}

/// What comes into sight may not have reached it yet.
bool isMoving(UIView* view) {
  if ([view isHidden]) return false;
  if ([view _isMoving]) return true;
  for (UIView* subview in [view subviews]) {
    if (isMoving(subview)) return true;
  }
  return false;
}

UIViewController* presentedInFront(UIWindow* window) {
  UIViewController* front = nil;
  UIViewController* next = [[window rootViewController] presentedViewController];
  for (; next && next != front; next = [next presentedViewController]) front = next;
  return front;
}

std::string lineOf(const Sight& sight) {
  const CGRect frame = [sight.view _shownLook].frame();
  char place[128];
  std::snprintf(place, sizeof place, " (%g %g %g %g)\n", frame.origin.x, frame.origin.y, frame.size.width,
                frame.size.height);
  std::string line(static_cast<std::size_t>(2 * sight.depth), ' ');
  line += textOf(NSStringFromClass([sight.view class]));
  if (const std::string text = textOf(sight.view); !text.empty()) line += " \"" + text + "\"";
  return line + place;
}

bool isWithin(UIView* view, UIView* ancestor) {
  while (view && view != ancestor) view = [view superview];
  return view != nil;
}

}  // namespace

NSArray* windowsOnScreen() {
  UIApplication* application = [UIApplication sharedApplication];
  return [application _isInBackground] ? [NSArray array] : [application windows];
}

bool isScreenMoving() {
  for (UIWindow* window in windowsOnScreen()) {
    if (isMoving(window)) return true;
  }
  return false;
}

std::string textOf(NSString* text) {
  const auto utf8 = [](NSString* part) -> std::string {
    NSData* bytes = [part dataUsingEncoding:NSUTF8StringEncoding];
    return bytes ? std::string(static_cast<const char*>([bytes bytes]), [bytes length]) : "\uFFFD";
  };
  if ([text canBeConvertedToEncoding:NSUTF8StringEncoding]) return utf8(text);
  std::string characters;
  for (NSRange next{}; NSMaxRange(next) < [text length];) {
    next = [text rangeOfComposedCharacterSequenceAtIndex:NSMaxRange(next)];
    characters += utf8([text substringWithRange:next]);
  }
  return characters;
}

std::string textOf(UIView* view) { return textOf([view accessibilityLabel]); }

std::vector<UIView*> reachableViews() {
  const std::vector<Sight> sights = sightsOnScreen();
  std::vector<UIView*> views;
  for (UIWindow* window in [windowsOnScreen() reverseObjectEnumerator]) {
    UIViewController* presented = presentedInFront(window);
    UIView* root = presented ? [presented view] : window;
    for (const Sight& sight : sights) {
      if (isWithin(sight.view, root)) views.push_back(sight.view);
    }
  }
  return views;
}

bool isOnScreen(std::string_view text) {
  return std::ranges::any_of(sightsOnScreen(),
                             [&](const Sight& sight) { return textOf(sight.view) == text; });
}

UIAlertController* alertInFront() {
  for (UIWindow* window in [windowsOnScreen() reverseObjectEnumerator]) {
    UIViewController* front = presentedInFront(window);
    if ([front isKindOfClass:[UIAlertController class]]) return static_cast<UIAlertController*>(front);
  }
  return nil;
}

std::string screenText() {
  std::string text;
  for (const Sight& sight : sightsOnScreen()) text += lineOf(sight);
  if (const std::string reason = pendingOwnerRequest(); !reason.empty()) {
    text += "Asked for the owner: \"" + reason + "\"\n";
  }
  return text.empty() ? "(nothing)\n" : text;
}

}  // namespace device
