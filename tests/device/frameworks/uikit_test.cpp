// UIKit as an app's own code uses it. This process is an app whose screen is empty.

#include <gtest/gtest.h>

#include <memory>
#include <set>

#include "host/class_pair.hpp"
#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {

bool operator==(CGPoint a, CGPoint b) { return a.x == b.x && a.y == b.y; }
bool operator==(CGRect a, CGRect b) {
  return a.origin == b.origin && a.size.width == b.size.width && a.size.height == b.size.height;
}

namespace {

using Items = std::set<NSInteger>;
using Style = UIAlertAction::Style;
using Kind = UIAlertController::Style;

/// What the test's own classes were told, and what they are to answer.
struct Witnessed {
  std::vector<std::string> calls;
  bool allows = true;
  NSInteger items = 30;
  bool hasCells = true;
} witnessed;

void note(std::string_view what) { witnessed.calls.emplace_back(what); }
std::vector<std::string> noted() { return std::exchange(witnessed.calls, {}); }
std::string titleOf(Object object) { return ask<"title", NSString>(object).utf8(); }

template <Name What>
void told(Object) {
  note(What.text);
}
template <Name What>
void appearance(Object self, bool) {
  note(titleOf(self) + " " + What.text);
}
bool allows(Object, Object) { return witnessed.allows; }
void acted(Object, Object sender) {
  const auto recognizer = sender.as<UIGestureRecognizer>();
  note(recognizer ? "state " + std::to_string(static_cast<int>(recognizer.state())) : "touched");
}
NSInteger itemCount(Object, Object, NSInteger) { return witnessed.items; }
UIView cellFor(Object, UICollectionView view, NSIndexPath path) {
  if (!witnessed.hasCells) return UIView();
  const auto cell =
      ask<"dequeueReusableCellWithReuseIdentifier:forIndexPath:", UIView>(view, NSString::from("cell"), path);
  const std::string text = "Item " + std::to_string(ask<"item", NSInteger>(path));
  ask<"setAccessibilityLabel:">(cell, NSString::from(text));
  return cell;
}
bool shouldSelect(Object, Object, NSIndexPath) { return witnessed.allows; }
void didSelect(Object, Object, NSIndexPath path) {
  note("selected " + std::to_string(ask<"item", NSInteger>(path)));
}

using TestController = HostClass<"TestController", UIViewController>;
using LayoutController = HostClass<"LayoutController", UIViewController>;
using TestView = HostClass<"TestView", UIView>;
using Tap = HostClass<"UITapGestureRecognizer", UIGestureRecognizer>;
/// A target, a recognizer's delegate, a collection view's data source and delegate.
using Witness = HostClass<"Witness">;

void registerTestClasses() {
  ClassPair(classNamed<"UIViewController">(), "TestController")
      .method<told<"loaded">>(selector<"viewDidLoad">(), "v@:")
      .method<appearance<"will appear">>(selector<"viewWillAppear:">(), "v@:C")
      .method<appearance<"did appear">>(selector<"viewDidAppear:">(), "v@:C")
      .method<appearance<"will disappear">>(selector<"viewWillDisappear:">(), "v@:C")
      .method<appearance<"did disappear">>(selector<"viewDidDisappear:">(), "v@:C")
      .registered();
  ClassPair(classNamed<"UIViewController">(), "LayoutController")
      .method<told<"will lay out">>(selector<"viewWillLayoutSubviews">(), "v@:")
      .method<told<"did lay out">>(selector<"viewDidLayoutSubviews">(), "v@:")
      .registered();
  ClassPair(classNamed<"UIView">(), "TestView")
      .method<told<"lay out">>(selector<"layoutSubviews">(), "v@:")
      .method<allows>(selector<"gestureRecognizerShouldBegin:">(), "C@:@")
      .registered();
  ClassPair(classNamed<"UICollectionViewCell">(), "TestCell")
      .method<told<"reused">>(selector<"prepareForReuse">(), "v@:")
      .registered();
  ClassPair(classNamed<"NSObject">(), "Witness")
      .method<acted>(selector<"acted:">(), "v@:@")
      .method<allows>(selector<"gestureRecognizerShouldBegin:">(), "C@:@")
      .method<itemCount>(selector<"collectionView:numberOfItemsInSection:">(), "q@:@q")
      .method<cellFor>(selector<"collectionView:cellForItemAtIndexPath:">(), "@@:@@")
      .method<shouldSelect>(selector<"collectionView:shouldSelectItemAtIndexPath:">(), "C@:@@")
      .method<didSelect>(selector<"collectionView:didSelectItemAtIndexPath:">(), "v@:@@")
      .registered();
}

class UIKit : public PlainPhone {
 protected:
  UIKit() {
    phone_.launchHere(device::kSpringBoard);
    registerTestClasses();
    witness_ = makeObject<Witness>();
  }

  static UIView window() { return UIApplication::sharedApplication().keyWindow(); }
  static UIViewController root() { return ask<"rootViewController", UIViewController>(window()); }
  static void setRoot(UIViewController controller) { ask<"setRootViewController:">(window(), controller); }
  static UIView screen() { return ask<"view", UIView>(root()); }

  template <class View = UIView>
  static View add(CGRect frame, UIView parent = screen()) {
    const Ref<View> made = makeObject<View>();
    made->setFrame(frame);
    parent.addSubview(made.get());
    return made.get();
  }
  template <class View = UIView>
  static View addNamed(std::string_view text, CGRect frame, UIView parent = screen()) {
    const View made = add<View>(frame, parent);
    ask<"setAccessibilityLabel:">(made, NSString::from(text));
    return made;
  }
  UIView addButton(std::string_view title, CGRect frame, UIView parent = screen()) const {
    constexpr NSUInteger kTouchUpInside = 1 << 6;
    const auto button = addNamed<HostClass<"UIButton", UIView>>(title, frame, parent);
    ask<"addTarget:action:forControlEvents:">(button, witness(), selector<"acted:">(), kTouchUpInside);
    return button;
  }
  template <class Recognizer = UILongPressGestureRecognizer>
  Ref<Recognizer> addRecognizer(UIView view) const {
    const auto allocated = Object(sendToClass<"alloc", id()>(Recognizer::hostClass()));
    const auto made = Ref<Recognizer>::adopt(
        ask<"initWithTarget:action:", Recognizer>(allocated, witness(), selector<"acted:">()));
    view.addGestureRecognizer(made.get());
    return made;
  }
  Object witness() const { return witness_.get(); }

  static Ref<TestController> controller(std::string_view title) {
    auto made = makeObject<TestController>();
    ask<"setTitle:">(made.get(), NSString::from(title));
    return made;
  }
  static Ref<UINavigationController> navigation(UIViewController first) {
    auto made = makeObject<UINavigationController>();
    push(made.get(), first);
    return made;
  }
  static void push(UINavigationController stack, UIViewController controller) {
    ask<"pushViewController:animated:">(stack, controller, true);
  }
  static UIViewController presentedBy(UIViewController controller) {
    return ask<"presentedViewController", UIViewController>(controller);
  }
  static UIAlertController alert(std::string_view title, Kind kind = Kind::alert) {
    return UIAlertController::make(title, "", kind);
  }
  static void addAction(UIAlertController alert, std::string_view title, Style style = Style::standard,
                        Block<void(UIAlertAction)> handler = {}) {
    alert.addAction(UIAlertAction::make(NSString::from(title), style, handler));
  }

  const device::User me_ = device::User::here();

 private:
  Ref<Witness> witness_;
};

// Views.

TEST_F(UIKit, TheFrameFollowsFromCentreBoundsAndTransform) {
  const UIView view = add({{10, 20}, {30, 40}});
  EXPECT_EQ((ask<"center", CGPoint>(view)), (CGPoint{25, 40}));
  EXPECT_EQ(view.bounds(), (CGRect{{0, 0}, {30, 40}}));
  ask<"setCenter:">(view, CGPoint{100, 100});
  EXPECT_EQ(view.frame(), (CGRect{{85, 80}, {30, 40}}));
  ask<"setBounds:">(view, CGRect{{7, 7}, {50, 60}});
  EXPECT_EQ(view.frame(), (CGRect{{75, 70}, {50, 60}})) << "it grows around its centre";
  ask<"setTransform:">(view, CGAffineTransform{0, 1, -1, 0, 0, 0});
  EXPECT_EQ(view.frame(), (CGRect{{70, 75}, {60, 50}})) << "turned by a quarter";
  EXPECT_EQ(view.bounds(), (CGRect{{7, 7}, {50, 60}}));
}

TEST_F(UIKit, PointsAreConvertedThroughScrolledAncestors) {
  const UIView outer = add({{100, 200}, {50, 50}});
  const UIView inner = add({{5, 6}, {10, 10}}, outer);
  const UIView other = add({{1, 2}, {10, 10}});
  const auto to = [&](UIView view) {
    return ask<"convertPoint:toView:", CGPoint>(inner, CGPoint{1, 1}, view);
  };
  EXPECT_EQ(to(UIView()), (CGPoint{106, 207}));
  EXPECT_EQ(to(other), (CGPoint{105, 205}));
  ask<"setBounds:">(outer, CGRect{{0, 30}, {50, 50}});
  EXPECT_EQ(to(UIView()), (CGPoint{106, 177}));
  EXPECT_EQ(to(outer), (CGPoint{6, 7}));
  for (const UIView view : {UIView(), outer, other}) {
    EXPECT_EQ((ask<"convertPoint:fromView:", CGPoint>(inner, to(view), view)), (CGPoint{1, 1}));
  }
}

TEST_F(UIKit, TheTreeKeepsItsOrderAndItsReferences) {
  const UIView parent = add({});
  const UIView a = add({}, parent), b = add({}, parent), c = add({}, parent);
  a.setTag(5), b.setTag(6), c.setTag(7);
  const auto order = [&] {
    std::string tags;
    const auto subviews = ask<"subviews", NSArray>(parent);
    for (NSUInteger i = 0; i < subviews.count(); ++i) {
      tags += std::to_string(ask<"tag", NSInteger>(subviews.objectAtIndex(i)));
    }
    return tags;
  };
  EXPECT_EQ(order(), "567");
  parent.addSubview(a);
  EXPECT_EQ(order(), "675") << "added again, it comes to the front";
  ask<"bringSubviewToFront:">(parent, b);
  ask<"bringSubviewToFront:">(parent, screen());
  ask<"insertSubview:atIndex:">(parent, a, NSInteger{0});
  parent.addSubview(UIView());
  EXPECT_EQ(order(), "576");
  EXPECT_TRUE(raises([&] { parent.addSubview(parent); }));

  b.addSubview(c);
  EXPECT_EQ(order(), "56") << "a view has one parent";
  EXPECT_EQ(parent.viewWithTag(7), c) << "a view within a view";
  EXPECT_EQ(c.viewWithTag(7), c);
  EXPECT_FALSE(a.viewWithTag(7));
  b.setTag(5);
  EXPECT_EQ(parent.viewWithTag(5), a) << "the first of two";

  const Ref<UIView> kept = makeObject<UIView>();
  const NSUInteger owned = references(kept.get());
  {
    const AutoreleasePool pool;
    parent.addSubview(kept.get());
    b.addSubview(kept.get());
    kept->removeFromSuperview();
    kept->removeFromSuperview();
    makeObject<UIView>()->addSubview(kept.get());
  }
  EXPECT_EQ(references(kept.get()), owned);
  EXPECT_FALSE((ask<"superview", UIView>(kept.get()))) << "its parent is gone";
}

TEST_F(UIKit, AViewIsLaidOutOnceATurnAndItsControllerIsToldAround) {
  const auto laidOut = makeObject<LayoutController>();
  const auto view = makeObject<TestView>();
  ask<"setView:">(laidOut.get(), view.get());
  screen().addSubview(view.get());
  me_.screen();
  noted();
  for (int i = 0; i < 3; ++i) ask<"setNeedsLayout">(view.get());
  EXPECT_EQ(noted(), Titles());
  me_.screen();
  EXPECT_EQ(noted(), (Titles{"will lay out", "lay out", "did lay out"}));
  view->setFrame({{0, 0}, {10, 10}});
  ask<"layoutIfNeeded">(view.get());
  EXPECT_EQ(noted().size(), 3u) << "a new size asks for a layout";
  view->setFrame({{5, 5}, {10, 10}});
  me_.screen();
  EXPECT_EQ(noted(), Titles()) << "a new place does not";
}

// What a person sees and touches.

TEST_F(UIKit, WhatIsNotOnScreenIsNeitherSeenNorTouched) {
  constexpr CGRect kScreen{{0, 0}, {375, 812}}, kOutside{{0, 300}, {50, 20}};
  constexpr bool kSeen = true, kTouched = true;
  struct Case {
    const char* name;
    bool seen, touched;
    std::function<void(UIView parent, UIView button)> change;
  };
  const Case cases[] = {
      {"plain", kSeen, kTouched, [](auto, auto) {}},
      {"half transparent", kSeen, kTouched, [](auto, auto button) { button.setAlpha(0.5); }},
      {"transparent", !kSeen, !kTouched, [](auto, auto button) { button.setAlpha(0); }},
      {"hidden", !kSeen, !kTouched, [](auto, auto button) { ask<"setHidden:">(button, true); }},
      {"in a transparent parent", !kSeen, !kTouched, [](auto parent, auto) { parent.setAlpha(0); }},
      {"in a hidden parent", !kSeen, !kTouched, [](auto parent, auto) { ask<"setHidden:">(parent, true); }},
      {"outside its parent", kSeen, !kTouched, [=](auto, auto button) { button.setFrame(kOutside); }},
      {"clipped", !kSeen, !kTouched,
       [=](auto parent, auto button) {
         button.setFrame(kOutside);
         ask<"setClipsToBounds:">(parent, true);
       }},
      {"off the screen", !kSeen, !kTouched,
       [](auto parent, auto) {
         parent.setFrame({{0, 900}, {9, 9}});
       }},
      {"without a size", !kSeen, !kTouched, [](auto, auto button) { button.setFrame({}); }},
      {"covered", !kSeen, !kTouched,
       [=](auto, auto) { add(kScreen).setBackgroundColor(UIColor::whiteColor()); }},
      {"under glass", kSeen, !kTouched,
       [=](auto, auto) { add(kScreen).setBackgroundColor(UIColor::white(1, 0.5)); }},
      {"under what takes no touches", kSeen, kTouched,
       [=](auto, auto) { add(kScreen).setUserInteractionEnabled(false); }},
      {"taking no touches", kSeen, !kTouched,
       [](auto, auto button) { button.setUserInteractionEnabled(false); }},
      {"in a parent that takes none", kSeen, !kTouched,
       [](auto parent, auto) { parent.setUserInteractionEnabled(false); }},
      {"disabled", kSeen, !kTouched, [](auto, auto button) { ask<"setEnabled:">(button, false); }},
      {"removed", !kSeen, !kTouched, [](auto parent, auto) { parent.removeFromSuperview(); }},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const UIView layer = add(kScreen);
    const UIView parent = add({{10, 100}, {200, 200}}, layer);
    each.change(parent, addButton("Press", {{10, 10}, {50, 20}}, parent));
    EXPECT_EQ(me_.sees("Press"), each.seen);
    EXPECT_EQ(me_.screen().find("\"Press\"") != std::string::npos, each.seen);
    EXPECT_EQ(refusal([&] { me_.tap("Press"); }).empty(), each.seen);
    EXPECT_EQ(noted(), each.touched ? Titles{"touched"} : Titles{});
    const auto all = ask<"subviews", NSArray>(screen());
    for (NSUInteger i = 0; i < all.count(); ++i) ask<"removeFromSuperview">(all.objectAtIndex(i));
  }
}

TEST_F(UIKit, ARecognizerTellsItsTargetOfEachState) {
  const UIView view = addNamed("Here", {{20, 100}, {100, 40}});
  const auto press = addRecognizer(view);
  me_.longPress("Here");
  EXPECT_EQ(noted(), (Titles{"state 1", "state 3"})) << "began and ended";
  EXPECT_EQ(press->state(), UIGestureRecognizer::State::possible);
  me_.tap("Here");
  EXPECT_EQ(noted(), Titles()) << "too short";

  const auto tap = addRecognizer<Tap>(view);
  me_.tap("Here");
  EXPECT_EQ(noted(), Titles{"state 3"});
  EXPECT_EQ(tap->state(), UIGestureRecognizer::State::possible);
  ask<"setNumberOfTapsRequired:">(tap.get(), NSUInteger{2});
  me_.tap("Here");
  EXPECT_EQ(noted(), Titles()) << "one tap of two";
}

TEST_F(UIKit, ALongPressGoesToTheNearestWhoTakesIt) {
  const UIView outer = add({{20, 100}, {200, 200}});
  const UIView inner = addNamed<TestView>("Inner", {{10, 10}, {50, 50}}, outer);
  const auto pressed = [&] {
    me_.longPress("Inner");
    Titles calls = noted();
    std::erase(calls, "lay out");
    return calls.size();
  };
  const auto outerPress = addRecognizer(outer);
  EXPECT_EQ(pressed(), 2u) << "an ancestor's";
  ask<"setEnabled:">(outerPress.get(), false);
  EXPECT_EQ(pressed(), 0u);
  const auto innerPress = addRecognizer(inner);
  EXPECT_EQ(pressed(), 2u);
  ask<"setEnabled:">(outerPress.get(), true);
  EXPECT_EQ(pressed(), 2u) << "one of the two";
  outer.send<"removeGestureRecognizer:", void(UIGestureRecognizer)>(outerPress.get());
  witnessed.allows = false;
  EXPECT_EQ(pressed(), 0u) << "its view refuses";

  const auto delegated = addRecognizer(addNamed("Other", {{20, 400}, {50, 50}}));
  ask<"setDelegate:">(delegated.get(), witness());
  me_.longPress("Other");
  EXPECT_EQ(noted(), Titles()) << "its delegate refuses";
  witnessed.allows = true;
  me_.longPress("Other");
  EXPECT_EQ(noted().size(), 2u);
}

TEST_F(UIKit, RecognizersAndControlsRetainNobody) {
  const NSUInteger owned = references(witness());
  const auto view = makeObject<UIView>();
  const auto press = addRecognizer(view.get());
  ask<"setDelegate:">(press.get(), witness());
  addButton("Press", {});
  EXPECT_EQ(references(witness()), owned);

  const NSUInteger held = references(press.get());
  {
    const AutoreleasePool pool;
    const auto other = makeObject<UIView>();
    other->addGestureRecognizer(press.get());
    EXPECT_EQ(view->gestureRecognizers().count(), 0u) << "a recognizer has one view";
    EXPECT_EQ(press->view(), other.get());
  }
  EXPECT_FALSE(press->view());
  EXPECT_EQ(references(press.get()), held - 1);
}

TEST_F(UIKit, AnAnimationRunsAtItsTimeAndEndsOnce) {
  const auto animate = [](double delay, const std::string& name) {
    auto changes = block<void()>([name] { note(name); });
    auto end =
        block<void(bool)>([name](bool finished) { note(name + (finished ? " ended" : " broke off")); });
    UIView::animate(0.001, delay, changes, end);
  };
  animate(0, "now");
  EXPECT_EQ(noted(), Titles{"now"});
  animate(0.02, "later");
  EXPECT_EQ(noted(), Titles()) << "neither the later one nor any end";
  EXPECT_TRUE(soon([] { return witnessed.calls.size() == 3; }));
  EXPECT_EQ(noted(), (Titles{"now ended", "later", "later ended"}));
  animate(0, "last");
  EXPECT_TRUE(soon([] { return witnessed.calls.size() == 2; }));
  EXPECT_EQ(noted(), (Titles{"last", "last ended"})) << "no end comes twice";
}

// View controllers.

TEST_F(UIKit, PushedAndPoppedControllersAreToldInOrder) {
  const auto a = controller("A"), b = controller("B"), c = controller("C");
  const auto stack = navigation(a.get());
  EXPECT_EQ(noted(), Titles()) << "nothing is loaded before it is shown";
  setRoot(stack.get());
  EXPECT_EQ(noted(), (Titles{"loaded", "A will appear", "A did appear"}));
  const Titles fromAToB{"A will disappear", "B will appear", "A did disappear", "B did appear"};
  push(stack.get(), b.get());
  Titles calls = noted();
  EXPECT_EQ(std::erase(calls, "loaded"), 1u);
  EXPECT_EQ(calls, fromAToB);
  push(stack.get(), c.get());
  EXPECT_TRUE(raises([&] { push(stack.get(), b.get()); }));
  EXPECT_EQ((ask<"navigationController", UIViewController>(c.get())), stack.get());

  noted();
  stack->popToRoot(true);
  EXPECT_EQ(noted(), (Titles{"C will disappear", "A will appear", "C did disappear", "A did appear"}));
  EXPECT_FALSE((ask<"navigationController", UIViewController>(b.get())));
  const auto pop = [&] { return ask<"popViewControllerAnimated:", UIViewController>(stack.get(), true); };
  EXPECT_FALSE(pop()) << "the first one stays";
  push(stack.get(), b.get());
  EXPECT_EQ(noted(), fromAToB) << "loaded once";
  EXPECT_EQ(pop(), b.get());
}

TEST_F(UIKit, ATabThatIsChosenTakesTheScreen) {
  const auto a = controller("A"), b = controller("B"), c = controller("C");
  const auto first = navigation(a.get());
  ask<"setTabBarItem:">(first.get(), ask<"tabBarItem", Object>(a.get()));
  const auto both = makeObject<NSMutableArray>();
  both->addObject(first.get());
  both->addObject(c.get());
  const auto tabs = makeObject<HostClass<"UITabBarController", UIViewController>>();
  ask<"setViewControllers:">(tabs.get(), NSArray(both.get()));
  setRoot(tabs.get());
  push(first.get(), b.get());
  noted();
  me_.tap("C");
  EXPECT_EQ(noted(),
            (Titles{"B will disappear", "loaded", "C will appear", "B did disappear", "C did appear"}));
  me_.tap("A");
  EXPECT_EQ(noted(), (Titles{"C will disappear", "B will appear", "C did disappear", "B did appear"}))
      << "a tab keeps its place";
  me_.tap("A");
  EXPECT_EQ(noted(), (Titles{"B will disappear", "A will appear", "B did disappear", "A did appear"}))
      << "a second touch leads to its first screen";
}

TEST_F(UIKit, AChildAppearsWithItsParentAndPresentsThroughIt) {
  const auto parent = controller("Parent"), child = controller("Child"), sheet = controller("Sheet");
  ask<"addChildViewController:">(parent.get(), UIViewController(child.get()));
  setRoot(parent.get());
  EXPECT_EQ(noted(), (Titles{"loaded", "Parent will appear", "loaded", "Child will appear",
                             "Parent did appear", "Child did appear"}));
  screen().addSubview(ask<"view", UIView>(child.get()));
  auto completion = block<void()>([] { note("completed"); });
  ask<"presentViewController:animated:completion:">(child.get(), UIViewController(sheet.get()), true,
                                                    Block<void()>(completion));
  EXPECT_EQ(noted(), (Titles{"loaded", "Sheet will appear", "Sheet did appear"}));
  EXPECT_EQ(presentedBy(parent.get()), sheet.get());
  EXPECT_TRUE(soon([] { return !witnessed.calls.empty(); }));
  EXPECT_EQ(noted(), Titles{"completed"});
  EXPECT_TRUE(raises([&] { parent->present(sheet.get(), true); })) << "it is presented already";
  EXPECT_TRUE(raises([&] { sheet->present(child.get(), true); })) << "it has its place already";
  EXPECT_TRUE(raises([&] { parent->present(UIViewController(), true); }));

  const auto above = controller("Above");
  sheet->present(above.get(), true);
  noted();
  ask<"dismissViewControllerAnimated:completion:">(parent.get(), true, Block<void()>(completion));
  EXPECT_TRUE(soon([] { return witnessed.calls.size() >= 5; }));
  EXPECT_EQ(noted(), (Titles{"Above will disappear", "Above did disappear", "Sheet will disappear",
                             "Sheet did disappear", "completed"}));
  EXPECT_FALSE(presentedBy(parent.get()));
  sheet->present(above.get(), true);
  EXPECT_FALSE(presentedBy(sheet.get())) << "who is off the screen cannot present";
}

// Alerts.

int aliveAlertObjects() {
  return GSDebugAllocationCount(UIAlertController::hostClass()) +
         GSDebugAllocationCount(UIAlertAction::hostClass());
}

TEST_F(UIKit, AnAlertReadsAsItWasMade) {
  const auto made = UIAlertController::make("Title", "Message", Kind::alert);
  EXPECT_FALSE((ask<"textFields", NSArray>(made)));
  EXPECT_FALSE((ask<"popoverPresentationController", Object>(made))) << "no pad";
  addAction(made, "Never", Style::cancel);
  addAction(made, "Always", Style::destructive);
  addAction(made, "Once");
  EXPECT_TRUE(raises([&] { addAction(made, "Not now", Style::cancel); }));
  auto configure = block<void(UITextField)>([](UITextField field) {
    field.setPlaceholder(NSString::from("Secret"));
    field.setSecureTextEntry(true);
  });
  made.addTextField(configure);
  root().present(made, true);
  const device::AlertText text = me_.alert();
  EXPECT_EQ(text.title, "Title");
  EXPECT_EQ(text.message, "Message");
  EXPECT_EQ(text.fields, Titles{"Secret (secure)"});
  EXPECT_EQ(text.buttons, (Titles{"Never", "Always", "Once"}));
  for (const std::string_view typed : {"first", "second"}) me_.type(typed);
  EXPECT_EQ(made.firstTextField().text().utf8(), "second") << "typing replaces";
  EXPECT_FALSE(me_.sees("second")) << "a secure field hides it";
  EXPECT_TRUE(raises([&] { alert("Sheet", Kind::actionSheet).addTextField(configure); }));
}

TEST_F(UIKit, AButtonDismissesItsAlertAndThenRunsItsHandlerOnce) {
  GSDebugAllocationActive(1);
  addButton("Behind", {{20, 100}, {100, 40}});
  const auto captured = std::make_shared<int>(0);
  {
    const AutoreleasePool pool;
    auto handler = block<void(UIAlertAction)>([captured](UIAlertAction action) {
      ++*captured;
      note(titleOf(action) + (presentedBy(root()) ? " under the alert" : ""));
      const auto next = alert("Next");
      addAction(next, "Close", Style::cancel);
      root().present(next, true);
    });
    const auto first = alert("Title");
    addAction(first, "OK", Style::standard, handler);
    addAction(first, "Cancel", Style::cancel);
    root().present(first, true);
  }
  EXPECT_TRUE(me_.sees("Behind"));
  EXPECT_NE(refusal([&] { me_.tap("Behind"); }), "") << "an alert keeps fingers from what is behind";
  me_.tap("OK");
  EXPECT_EQ(noted(), Titles{"OK"});
  EXPECT_EQ(me_.alert().title, "Next") << "its handler may present the next one";
  me_.tap("Close");
  EXPECT_FALSE(me_.hasAlert());
  EXPECT_EQ(*captured, 1);
  EXPECT_EQ(captured.use_count(), 1) << "the handler has gone with its alert";
  EXPECT_EQ(aliveAlertObjects(), 0);
  me_.tap("Behind");
  EXPECT_EQ(noted(), Titles{"touched"});
}

TEST_F(UIKit, AnAlertThatCannotBePresentedIsGone) {
  GSDebugAllocationActive(1);
  const auto captured = std::make_shared<int>(0);
  const auto present = [&](UIViewController by, std::string_view title) {
    const AutoreleasePool pool;
    auto handler = block<void(UIAlertAction)>([captured](UIAlertAction) {});
    const auto made = alert(title);
    addAction(made, "OK", Style::standard, handler);
    by.present(made, true);
  };
  present(controller("Off the screen").get(), "From nowhere");
  EXPECT_FALSE(me_.hasAlert());
  EXPECT_EQ(aliveAlertObjects(), 0);
  present(root(), "First");
  present(root(), "Second");
  EXPECT_EQ(me_.alert().title, "First");
  EXPECT_EQ(captured.use_count(), 2) << "the first one's";
  me_.tap("OK");
  EXPECT_FALSE(me_.hasAlert()) << "nothing was waiting behind it";
  EXPECT_EQ(aliveAlertObjects(), 0);
  EXPECT_EQ(captured.use_count(), 1);
}

// Collection views.

class Collection : public UIKit {
 protected:
  Collection() {
    const auto layout = makeObject<HostClass<"UICollectionViewFlowLayout">>();
    ask<"setItemSize:">(layout.get(), CGSize{100, 100});
    ask<"_setSpacing:">(layout.get(), 0.0);
    const auto allocated = Object(sendToClass<"alloc", id()>(UICollectionView::hostClass()));
    view_ = Ref<UICollectionView>::adopt(ask<"initWithFrame:collectionViewLayout:", UICollectionView>(
        allocated, CGRect{{0, 100}, {100, 250}}, Object(layout.get())));
    ask<"registerClass:forCellWithReuseIdentifier:">(view_.get(), classNamed<"TestCell">(),
                                                     NSString::from("cell"));
    ask<"setDataSource:">(view_.get(), witness());
    ask<"setDelegate:">(view_.get(), witness());
    screen().addSubview(view_.get());
    me_.screen();
  }

  UIView cell(NSInteger item) const {
    return ask<"cellForItemAtIndexPath:", UIView>(view_.get(), pathTo(item));
  }
  /// The items that have cells.
  Items visible() const {
    Items items;
    const auto paths = ask<"indexPathsForVisibleItems", NSArray>(view_.get());
    for (NSUInteger i = 0; i < paths.count(); ++i)
      items.insert(ask<"item", NSInteger>(paths.objectAtIndex(i)));
    return items;
  }
  void scrollTo(double y) const {
    ask<"setContentOffset:">(view_.get(), CGPoint{0, y});
    me_.screen();
  }

  Ref<UICollectionView> view_;
};

TEST_F(Collection, OnlyWhatIsInSightHasCellsWhichAreUsedAgain) {
  EXPECT_EQ(visible(), (Items{0, 1, 2}));
  EXPECT_EQ((ask<"item", NSInteger>(ask<"indexPathForCell:", NSIndexPath>(view_.get(), cell(1)))), 1);
  EXPECT_FALSE(cell(3));
  scrollTo(1000);
  EXPECT_EQ(visible(), (Items{10, 11, 12}));
  EXPECT_FALSE(cell(0)) << "scrolled away";
  EXPECT_GE(noted().size(), 2u) << "a cell is made ready to be used again";
  std::set<id> cells;
  for (double y = 0; y < 2700; y += 90) {
    scrollTo(y);
    for (const NSInteger item : visible()) cells.insert(cell(item).get());
  }
  EXPECT_LE(cells.size(), 6u);
  scrollTo(1e6);
  EXPECT_EQ(visible(), (Items{27, 28, 29})) << "it does not scroll past its end";
}

TEST_F(Collection, ReloadingAsksForEverythingAnew) {
  const auto count = [&] { return ask<"numberOfItemsInSection:", NSInteger>(view_.get(), NSInteger{0}); };
  scrollTo(2000);
  witnessed.items = 2;
  EXPECT_EQ(count(), 30) << "not asked again before";
  ask<"reloadData">(view_.get());
  me_.screen();
  EXPECT_EQ(count(), 2);
  EXPECT_EQ(visible(), (Items{0, 1}));
  EXPECT_TRUE(me_.sees("Item 1"));
}

TEST_F(Collection, ATouchedCellIsSelectedWhereTheDelegateAllowsIt) {
  me_.tap("Item 1");
  EXPECT_EQ(noted(), Titles{"selected 1"});
  me_.tap("Item 25");
  EXPECT_EQ(noted().back(), "selected 25") << "scrolled into sight";
  witnessed.allows = false;
  me_.tap("Item 25");
  EXPECT_EQ(noted(), Titles());
}

TEST_F(Collection, ADataSourceMustMakeCells) {
  witnessed.hasCells = false;
  ask<"reloadData">(view_.get());
  EXPECT_TRUE(raises([&] { ask<"layoutIfNeeded">(view_.get()); })) << "no cell";
  EXPECT_TRUE(raises([&] {
    ask<"dequeueReusableCellWithReuseIdentifier:forIndexPath:", UIView>(view_.get(), NSString::from("other"),
                                                                        pathTo(0));
  })) << "nothing is registered under that name";
}

}  // namespace
}  // namespace velvault12
