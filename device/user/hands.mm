#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <stdexcept>
#include <tuple>
#include <type_traits>

#import "device/frameworks/UIKit/UIKit.h"
#include "device/frameworks/owner.hpp"
#include "device/system/run_loop.hpp"
#include "device/user/picture.hpp"
#include "device/user/screen.hpp"
#include "device/user/user_json.hpp"

namespace device {
namespace {

using nlohmann::json;
using std::chrono::milliseconds;

/// How long a step waits for the screen to come to rest.
constexpr milliseconds kRest{100};
/// How long one who takes a picture waits for what moves.
constexpr milliseconds kLongestAnimation{1000};

[[noreturn]] void fail(const std::string& what) {
  throw std::runtime_error(what + "; on screen:\n" + screenText());
}

std::string inQuotes(std::string_view text) { return "\"" + std::string(text) + "\""; }

UIApplication* application() {
  UIApplication* shared = [UIApplication sharedApplication];
  if (!shared) throw std::runtime_error("no app runs in this process");
  return shared;
}

/// Lets everything happen that is due by now, and the screen be laid out after it.
void settle() {
  for (int round = 0; round < 2; ++round) {
    [application() _scheduleLayout];
    runUntil([] { return ![application() _isLayoutScheduled]; }, kRest);
  }
}

// Finding what a finger is to touch.

CGPoint middleOnScreen(UIView* view) {
  const CGPoint inWindow = [view convertPoint:CGRectGetCenter([view bounds]) toView:nil];
  const CGPoint origin = [[view window] frame].origin;
  return {inWindow.x + origin.x, inWindow.y + origin.y};
}

/// Whether no scroll view around it has scrolled its middle out of sight.
bool isScrolledIntoSight(UIView* view) {
  for (UIView* ancestor = [view superview]; ancestor; ancestor = [ancestor superview]) {
    if (![ancestor isKindOfClass:[UIScrollView class]]) continue;
    const CGPoint middle = [view convertPoint:CGRectGetCenter([view bounds]) toView:ancestor];
    if (![ancestor pointInside:middle withEvent:nil]) return false;
  }
  return true;
}

bool isWithin(UIView* view, Class kind) {
  for (; view; view = [view superview]) {
    if ([view isKindOfClass:kind]) return true;
  }
  return false;
}

/// What a person means first by a text that is on screen more than once.
int rank(UIView* view) {
  if (isWithin(view, [UICollectionViewCell class])) return 0;
  if (isWithin(view, [UITabBar class])) return 1;
  return isWithin(view, [UIButton class]) ? 2 : 3;
}

UIView* reachable(std::string_view text) {
  std::vector<UIView*> views = reachableViews();
  std::erase_if(views, [&](UIView* view) { return textOf(view) != text || !isScrolledIntoSight(view); });
  const auto meant = std::ranges::min_element(views, {}, rank);
  return meant == views.end() ? nil : *meant;
}

/// Scrolls through a view's content, half a page at a time, until the text is in sight.
UIView* scrolledTo(UIScrollView* scrollView, std::string_view text) {
  const CGSize page = [scrollView bounds].size;
  const CGPoint end = [scrollView _endOffset];
  const CGPoint start = [scrollView contentOffset];
  if (end.x == 0 && end.y == 0) return nil;
  const CGSize step = {page.width / 2, page.height / 2};
  const int rows = 1 + static_cast<int>(std::ceil(end.y / step.height));
  const int columns = 1 + static_cast<int>(std::ceil(end.x / step.width));
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      [scrollView
          _dragToContentOffset:{std::min(column * step.width, end.x), std::min(row * step.height, end.y)}];
      [scrollView layoutIfNeeded];
      if (UIView* found = reachable(text)) return found;
    }
  }
  [scrollView _dragToContentOffset:start];
  [scrollView layoutIfNeeded];
  return nil;
}

UIView* find(std::string_view text) {
  settle();
  if (UIView* found = reachable(text)) return found;
  // From the inside out: what is within another one leaves the screen when that is scrolled.
  const std::vector<UIView*> views = reachableViews();
  for (auto each = views.rbegin(); each != views.rend(); ++each) {
    UIView* view = *each;
    if (![view isKindOfClass:[UIScrollView class]]) continue;
    if (UIView* found = scrolledTo(static_cast<UIScrollView*>(view), text)) return found;
  }
  fail("nothing to touch reads " + inQuotes(text));
}

/// What a finger put on the middle of the view touches, which may be something that covers it.
UIView* touchedAt(UIView* view) {
  const CGPoint point = middleOnScreen(view);
  for (UIWindow* window in [[application() windows] reverseObjectEnumerator]) {
    const CGPoint origin = [window frame].origin;
    if (UIView* hit = [window hitTest:{point.x - origin.x, point.y - origin.y} withEvent:nil]) return hit;
  }
  return nil;
}

// Fingers.

bool isReadyFor(UIGestureRecognizer* recognizer, Class kind) {
  return [recognizer isKindOfClass:kind] && [recognizer isEnabled] && [recognizer _shouldBegin];
}

bool isSingleTap(UIGestureRecognizer* recognizer) {
  return isReadyFor(recognizer, [UITapGestureRecognizer class]) &&
         [static_cast<UITapGestureRecognizer*>(recognizer) numberOfTapsRequired] == 1;
}

bool recognizesTap(UIView* view) {
  for (UIGestureRecognizer* recognizer in [view gestureRecognizers]) {
    if (!isSingleTap(recognizer)) continue;
    [recognizer _enterState:UIGestureRecognizerStateEnded];
    [recognizer _enterState:UIGestureRecognizerStatePossible];
    return true;
  }
  return false;
}

bool recognizesLongPress(UIView* view) {
  for (UIGestureRecognizer* recognizer in [view gestureRecognizers]) {
    if (!isReadyFor(recognizer, [UILongPressGestureRecognizer class])) continue;
    // What it brings about may let go of it.
    [[recognizer retain] autorelease];
    [recognizer _enterState:UIGestureRecognizerStateBegan];
    settle();
    [recognizer _enterState:UIGestureRecognizerStateEnded];
    [recognizer _enterState:UIGestureRecognizerStatePossible];
    return true;
  }
  return false;
}

/// What a control or a cell does when the finger leaves it.
bool takesTouch(UIView* view) {
  if ([view isKindOfClass:[UIControl class]]) {
    UIControl* control = static_cast<UIControl*>(view);
    if ([control isEnabled]) [control sendActionsForControlEvents:UIControlEventTouchUpInside];
    return true;
  }
  UIView* parent = [view superview];
  if (![view isKindOfClass:[UICollectionViewCell class]] ||
      ![parent isKindOfClass:[UICollectionView class]]) {
    return false;
  }
  [static_cast<UICollectionView*>(parent) _touchCell:static_cast<UICollectionViewCell*>(view)];
  return true;
}

/// The touched view and its ancestors, nearest first; kept alive, since what a touch does may remove them.
NSArray* chainOf(UIView* touched) {
  NSMutableArray* chain = [NSMutableArray array];
  for (; touched; touched = [touched superview]) [chain addObject:touched];
  return chain;
}

/// Whether one of the views takes what the finger does; the nearest one has it for itself.
bool isTaken(NSArray* chain, bool (*takes)(UIView* view)) {
  for (UIView* view in chain) {
    if (takes(view)) return true;
  }
  return false;
}

void touch(UIView* target) {
  isTaken(chainOf(touchedAt(target)), [](UIView* view) { return recognizesTap(view) || takesTouch(view); });
  settle();
}

/// A long press that nobody recognizes is a slow touch.
void hold(UIView* target) {
  NSArray* chain = chainOf(touchedAt(target));
  if (!isTaken(chain, recognizesLongPress)) isTaken(chain, takesTouch);
  settle();
}

bool zoomsIn(UIView* view) {
  if (![view isKindOfClass:[UIScrollView class]]) return false;
  UIScrollView* scrollView = static_cast<UIScrollView*>(view);
  if (![scrollView _zooms]) return false;
  [scrollView setZoomScale:[scrollView maximumZoomScale]];
  return true;
}

// The commands.

void tap(const std::string& text) { touch(find(text)); }

void scrollTo(const std::string& text) { find(text); }

void longPress(const std::string& text) { hold(find(text)); }

void zoomIn(const std::string& text) {
  UIView* target = find(text);
  if (!isTaken(chainOf(touchedAt(target)), zoomsIn)) fail("nothing zooms around " + inQuotes(text));
  settle();
}

void type(const std::string& text) {
  settle();
  for (UIView* view : reachableViews()) {
    if (![view isKindOfClass:[UITextField class]] || ![view isUserInteractionEnabled]) continue;
    UITextField* field = static_cast<UITextField*>(view);
    [field setText:[NSString stringWithUTF8String:text.c_str()]];
    [field sendActionsForControlEvents:UIControlEventEditingChanged];
    settle();
    return;
  }
  fail("no text field to type into");
}

void back() {
  settle();
  for (UIView* view : reachableViews()) {
    if ([[view accessibilityIdentifier] isEqualToString:@"BackButton"]) {
      touch(view);
      return;
    }
  }
  fail("no back button");
}

void leaveApp() {
  [application() _enterBackground];
  settle();
}

void returnToApp() {
  [application() _enterForeground];
  settle();
}

std::string fieldText(UITextField* field) {
  return textOf([field placeholder]) + ([field isSecureTextEntry] ? " (secure)" : "");
}

AlertText alert() {
  settle();
  UIAlertController* front = alertInFront();
  if (!front) fail("no alert");
  AlertText text{
      .title = textOf([front title]), .message = textOf([front message]), .fields = {}, .buttons = {}};
  for (UITextField* field in [front textFields]) text.fields.push_back(fieldText(field));
  for (UIAlertAction* action in [front actions]) text.buttons.push_back(textOf([action title]));
  return text;
}

bool hasAlert() {
  settle();
  return alertInFront() != nil;
}

bool sees(const std::string& text) {
  settle();
  return isOnScreen(text);
}

void waitToSee(const std::string& text, int patience) {
  if (!runUntil([&] { return isOnScreen(text); }, milliseconds(patience))) {
    fail("waited in vain to see " + inQuotes(text));
  }
}

void waitUntilGone(const std::string& text, int patience) {
  if (!runUntil([&] { return !isOnScreen(text); }, milliseconds(patience))) {
    fail("waited in vain for the end of " + inQuotes(text));
  }
}

void tapToSee(const std::string& text, const std::string& notice, int patience) {
  tap(text);
  waitToSee(notice, patience);
}

std::string screen() {
  settle();
  return screenText();
}

std::string picture(const std::string& ownerRequest) {
  settle();
  runUntil([] { return !isScreenMoving(); }, kLongestAnimation);
  return screenPicture(ownerRequest);
}

std::vector<int> feltFeedback() {
  std::vector<int> codes;
  for (NSNumber* code in [[[UIDevice currentDevice] _tapticEngine] _feltFeedback]) {
    codes.push_back([code intValue]);
  }
  return codes;
}

void waitForOwnerRequest(int patience) {
  if (!runUntil([] { return !pendingOwnerRequest().empty(); }, milliseconds(patience))) {
    fail("waited in vain for a request for the owner");
  }
}

void answerOwnerRequest(OwnerAnswer answer) {
  if (pendingOwnerRequest().empty()) fail("nobody asks for the owner");
  answerPendingOwnerRequest(answer);
}

using Command = std::function<json(const json& command)>;

/// The command that calls a function with its arguments, which must be of the function's own types.
template <class Result, class... Arguments>
Command calling(Result (*function)(Arguments...)) {
  return [function](const json& command) -> json {
    const auto call = command.get<std::tuple<std::string, std::decay_t<Arguments>...>>();
    if (command != json(call)) throw std::runtime_error("no such step");
    return std::apply(
        [&](const std::string&, const auto&... arguments) -> json {
          if constexpr (std::is_void_v<Result>) {
            function(arguments...);
            return nullptr;
          } else {
            return function(arguments...);
          }
        },
        call);
  };
}

const std::map<std::string, Command> kCommands = {
    {"tap", calling(tap)},
    {"longPress", calling(longPress)},
    {"scrollTo", calling(scrollTo)},
    {"zoomIn", calling(zoomIn)},
    {"type", calling(type)},
    {"back", calling(back)},
    {"leaveApp", calling(leaveApp)},
    {"returnToApp", calling(returnToApp)},
    {"alert", calling(alert)},
    {"hasAlert", calling(hasAlert)},
    {"sees", calling(sees)},
    {"waitToSee", calling(waitToSee)},
    {"waitUntilGone", calling(waitUntilGone)},
    {"tapToSee", calling(tapToSee)},
    {"screen", calling(screen)},
    {"picture", calling(picture)},
    {"feltFeedback", calling(feltFeedback)},
    {"ownerRequest", calling(pendingOwnerRequest)},
    {"waitForOwnerRequest", calling(waitForOwnerRequest)},
    {"answerOwnerRequest", calling(answerOwnerRequest)},
    {"setPasscode", calling(setPasscode)},
};

}  // namespace

json performHere(const json& command) {
  application();
  @autoreleasepool {
    const auto known = kCommands.find(command.at(0).get<std::string>());
    if (known == kCommands.end()) throw std::runtime_error("no such step");
    return known->second(command);
  }
}

}  // namespace device
