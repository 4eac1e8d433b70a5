#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <stdexcept>

#import "device/frameworks/UIKit/UIKit.h"
#include "device/frameworks/owner.hpp"
#include "device/system/run_loop.hpp"
#include "device/user/alert_text.hpp"
#include "device/user/picture.hpp"
#include "device/user/screen.hpp"
#include "device/user/user.hpp"

namespace device {
namespace {

using std::chrono::milliseconds;

/// How long a step waits for the screen to come to rest.
constexpr milliseconds kRest{100};
/// How long one who takes a picture waits for what moves.
constexpr milliseconds kLongestAnimation{1000};

[[noreturn]] void fail(const std::string& what) {
  throw std::runtime_error(what + "; on screen:\n" + screenText());
}

std::string quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

std::string yesOrNo(bool holds) { return holds ? "yes" : "no"; }

std::string utf8(NSString* text) {
  const char* bytes = [text UTF8String];
  return bytes ? bytes : "";
}

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
  fail("nothing to touch reads " + quoted(text));
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

using Arguments = std::vector<std::string>;

std::string tap(const Arguments& arguments) {
  touch(find(arguments[0]));
  return {};
}

std::string scrollTo(const Arguments& arguments) {
  find(arguments[0]);
  return {};
}

std::string longPress(const Arguments& arguments) {
  hold(find(arguments[0]));
  return {};
}

std::string zoomIn(const Arguments& arguments) {
  UIView* target = find(arguments[0]);
  if (!isTaken(chainOf(touchedAt(target)), zoomsIn)) fail("nothing zooms around " + quoted(arguments[0]));
  settle();
  return {};
}

std::string type(const Arguments& arguments) {
  settle();
  for (UIView* view : reachableViews()) {
    if (![view isKindOfClass:[UITextField class]] || ![view isUserInteractionEnabled]) continue;
    UITextField* field = static_cast<UITextField*>(view);
    [field setText:[NSString stringWithUTF8String:arguments[0].c_str()]];
    [field sendActionsForControlEvents:UIControlEventEditingChanged];
    settle();
    return {};
  }
  fail("no text field to type into");
}

std::string back(const Arguments&) {
  settle();
  for (UIView* view : reachableViews()) {
    if (![[view accessibilityIdentifier] isEqualToString:@"BackButton"]) continue;
    touch(view);
    return {};
  }
  fail("no back button");
}

std::string leaveApp(const Arguments&) {
  [application() _enterBackground];
  settle();
  return {};
}

std::string returnToApp(const Arguments&) {
  [application() _enterForeground];
  settle();
  return {};
}

std::string fieldText(UITextField* field) {
  return utf8([field placeholder]) + ([field isSecureTextEntry] ? " (secure)" : "");
}

std::string alert(const Arguments&) {
  settle();
  UIAlertController* front = alertInFront();
  if (!front) fail("no alert");
  AlertText text{.title = utf8([front title]), .message = utf8([front message]), .fields = {}, .buttons = {}};
  for (UITextField* field in [front textFields]) text.fields.push_back(fieldText(field));
  for (UIAlertAction* action in [front actions]) text.buttons.push_back(utf8([action title]));
  return encode(text);
}

std::string hasAlert(const Arguments&) {
  settle();
  return yesOrNo(alertInFront() != nil);
}

std::string sees(const Arguments& arguments) {
  settle();
  return yesOrNo(isOnScreen(arguments[0]));
}

milliseconds patience(const std::string& text) {
  milliseconds::rep count = 0;
  std::from_chars(text.data(), text.data() + text.size(), count);
  return milliseconds(count);
}

std::string waitToSee(const Arguments& arguments) {
  if (runUntil([&] { return isOnScreen(arguments[0]); }, patience(arguments[1]))) return {};
  fail("waited in vain to see " + quoted(arguments[0]));
}

std::string waitUntilGone(const Arguments& arguments) {
  if (runUntil([&] { return !isOnScreen(arguments[0]); }, patience(arguments[1]))) return {};
  fail("waited in vain for the end of " + quoted(arguments[0]));
}

std::string screen(const Arguments&) {
  settle();
  return screenText();
}

std::string picture(const Arguments& arguments) {
  settle();
  runUntil([] { return !isScreenMoving(); }, kLongestAnimation);
  return screenPicture(arguments[0]);
}

std::string feltFeedback(const Arguments&) {
  std::string codes;
  for (NSNumber* code in [[[UIDevice currentDevice] _tapticEngine] _feltFeedback]) {
    codes += std::to_string([code integerValue]) + ' ';
  }
  return codes;
}

std::string ownerRequest(const Arguments&) { return pendingOwnerRequest(); }

std::string waitForOwnerRequest(const Arguments& arguments) {
  if (runUntil([] { return !pendingOwnerRequest().empty(); }, patience(arguments[0]))) return {};
  fail("waited in vain for a request for the owner");
}

std::string answerOwnerRequest(const Arguments& arguments) {
  if (pendingOwnerRequest().empty()) fail("nobody asks for the owner");
  answerPendingOwnerRequest(arguments[0] == "success"   ? OwnerAnswer::success
                            : arguments[0] == "failure" ? OwnerAnswer::failure
                                                        : OwnerAnswer::cancel);
  return {};
}

std::string setPasscode(const Arguments& arguments) {
  device::setPasscode(arguments[0] == "yes");
  return {};
}

struct Command {
  std::size_t argumentCount;
  std::string (*perform)(const Arguments& arguments);
};

const std::map<std::string_view, Command> kCommands = {
    {"tap", {1, tap}},
    {"longPress", {1, longPress}},
    {"scrollTo", {1, scrollTo}},
    {"zoomIn", {1, zoomIn}},
    {"type", {1, type}},
    {"back", {0, back}},
    {"leaveApp", {0, leaveApp}},
    {"returnToApp", {0, returnToApp}},
    {"alert", {0, alert}},
    {"hasAlert", {0, hasAlert}},
    {"sees", {1, sees}},
    {"waitToSee", {2, waitToSee}},
    {"waitUntilGone", {2, waitUntilGone}},
    {"screen", {0, screen}},
    {"picture", {1, picture}},
    {"feltFeedback", {0, feltFeedback}},
    {"ownerRequest", {0, ownerRequest}},
    {"waitForOwnerRequest", {1, waitForOwnerRequest}},
    {"answerOwnerRequest", {1, answerOwnerRequest}},
    {"setPasscode", {1, setPasscode}},
};

}  // namespace

std::string performHere(const std::vector<std::string>& command) {
  const auto known = command.empty() ? kCommands.end() : kCommands.find(command.front());
  if (known == kCommands.end() || known->second.argumentCount + 1 != command.size()) {
    throw std::runtime_error("no such step");
  }
  application();
  @autoreleasepool {
    return known->second.perform({command.begin() + 1, command.end()});
  }
}

}  // namespace device
