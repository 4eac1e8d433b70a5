// UIKit as an app's own code uses it.

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

#include "host/class_pair.hpp"
#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {

namespace {

using Style = UIAlertAction::Style;

/// What the test's own classes were told, and what they are to answer.
std::vector<std::string> witnessed;
bool isAllowed = true;

void note(std::string_view what) { witnessed.emplace_back(what); }
std::vector<std::string> noted() { return std::exchange(witnessed, {}); }
std::string titleOf(Object object) { return object.trySend<"title", NSString()>().utf8(); }

template <Name What, class... Arguments>
void told(Object self, Arguments...) {
  note(titleOf(self) + What.text);
}
bool allows(Object, Object) { return isAllowed; }
void acted(Object, Object sender) {
  const auto recognizer = sender.as<UIGestureRecognizer>();
  note(recognizer ? "state " + std::to_string(static_cast<int>(recognizer.state())) : "touched");
}
using TestController = HostClass<"TestController", UIViewController>;
using TestView = HostClass<"TestView", UIView>;

class UIKit : public EmptyScreen {
 protected:
  UIKit() {
    ClassPair(classNamed<"UIViewController">(), "TestController")
        .method<told<" loaded">>(selector<"viewDidLoad">(), "v@:")
        .method<told<" will appear", bool>>(selector<"viewWillAppear:">(), "v@:C")
        .method<told<" did appear", bool>>(selector<"viewDidAppear:">(), "v@:C")
        .method<told<" will disappear", bool>>(selector<"viewWillDisappear:">(), "v@:C")
        .method<told<" did disappear", bool>>(selector<"viewDidDisappear:">(), "v@:C")
        .registered();
    ClassPair(classNamed<"UIView">(), "TestView")
        .method<told<"lay out">>(selector<"layoutSubviews">(), "v@:")
        .method<allows>(selector<"gestureRecognizerShouldBegin:">(), "C@:@")
        .registered();
    ClassPair(classNamed<"NSObject">(), "Witness")
        .method<acted>(selector<"acted:">(), "v@:@")
        .method<allows>(selector<"gestureRecognizerShouldBegin:">(), "C@:@")
        .registered();
    witness_ = makeObject<HostClass<"Witness">>().autorelease();
  }

  static void setRoot(UIViewController controller) { ask<"setRootViewController:">(window(), controller); }
  UIView addButton(std::string_view title, CGRect frame, UIView parent = screen()) const {
    constexpr NSUInteger kTouchUpInside = 1 << 6;
    const auto button = add<HostClass<"UIButton", UIView>>(frame, title, parent);
    ask<"addTarget:action:forControlEvents:">(button, witness_, selector<"acted:">(), kTouchUpInside);
    return button;
  }
  template <class Recognizer = UILongPressGestureRecognizer>
  Recognizer addRecognizer(UIView view) const {
    const Recognizer made = makeRecognizer<Recognizer>(witness_, selector<"acted:">()).autorelease();
    view.addGestureRecognizer(made);
    return made;
  }

  static UIViewController controller(std::string_view title) {
    const UIViewController made = makeObject<TestController>().autorelease();
    ask<"setTitle:">(made, NSString::from(title));
    return made;
  }
  /// What is noted when one controller takes another's place, for the first time where it is loaded then.
  static Titles turn(const std::string& from, const std::string& to, bool isFirst = false) {
    Titles calls{from + " will disappear", to + " will appear", from + " did disappear", to + " did appear"};
    if (isFirst) calls.insert(calls.begin() + 1, to + " loaded");
    return calls;
  }
  static UIViewController presentedBy(UIViewController controller) {
    return ask<"presentedViewController", UIViewController>(controller);
  }
  static void addAction(UIAlertController alert, std::string_view title, Style style = Style::standard,
                        Block<void(UIAlertAction)> handler = {}) {
    ask<"addAction:">(alert, UIAlertAction::make(NSString::from(title), style, handler));
  }
  static Titles notedOnceThereAre(std::size_t count) {
    soon([count] { return witnessed.size() >= count; });
    return noted();
  }

  /// A target, and a recognizer's delegate.
  Object witness_;
};

TEST_F(UIKit, ViewsOwnSubviewsAndRecognizersOnly) {
  const auto view = makeObject<UIView>(), kept = makeObject<UIView>();
  const NSUInteger owned = references(kept.get()), targeted = references(witness_);
  const auto press = addRecognizer(view.get());
  const NSUInteger held = references(press);
  ask<"setDelegate:">(press, witness_);
  EXPECT_EQ(references(witness_), targeted) << "neither a target nor a delegate is retained";
  {
    const AutoreleasePool pool;
    const auto other = makeObject<UIView>();
    for (const UIView parent : {view.get(), other.get()}) parent.addSubview(kept.get());
    other->addGestureRecognizer(press);
    EXPECT_EQ(view->gestureRecognizers().count(), 0u) << "a recognizer has one view";
  }
  EXPECT_FALSE(kept->superview() || press.view());
  EXPECT_EQ(references(kept.get()), owned);
  EXPECT_EQ(references(press), held - 1);
}

TEST_F(UIKit, LayoutRunsOnceATurnWhereItIsNeeded) {
  const UIView view = add<TestView>({});
  me_.screen();
  noted();
  for (int i = 0; i < 3; ++i) ask<"setNeedsLayout">(view);
  EXPECT_EQ(noted(), Titles());
  me_.screen();
  EXPECT_EQ(noted(), Titles{"lay out"});
  view.setFrame({{0, 0}, {10, 10}});
  ask<"layoutIfNeeded">(view);
  EXPECT_EQ(noted(), Titles{"lay out"}) << "for a new size";
  view.setFrame({{5, 5}, {10, 10}});
  me_.screen();
  EXPECT_EQ(noted(), Titles()) << "not for a new place";
}

TEST_F(UIKit, WhatIsNotOnScreenIsNotSeenOrTouched) {
  constexpr CGRect kScreen{{0, 0}, {375, 812}}, kOutside{{0, 300}, {50, 20}}, kBelow{{0, 900}, {9, 9}};
  enum Outcome { kGone, kSeen, kTouched };
  UIView parent, button;
  const std::tuple<const char*, Outcome, std::function<void()>> cases[] = {
      {"hidden", kGone, [&] { ask<"setHidden:">(button, true); }},
      {"in a transparent parent", kGone, [&] { parent.setAlpha(0); }},
      {"outside its parent", kSeen, [&] { button.setFrame(kOutside); }},
      {"clipped", kGone,
       [&] {
         button.setFrame(kOutside);
         parent.setClipsToBounds(true);
       }},
      {"off the screen", kGone, [&] { parent.setFrame(kBelow); }},
      {"covered", kGone, [&] { add(kScreen).setBackgroundColor(UIColor::whiteColor()); }},
      {"under glass", kSeen, [&] { add(kScreen).setBackgroundColor(UIColor::white(1, 0.5)); }},
      {"under what takes no touches", kTouched, [&] { add(kScreen).setUserInteractionEnabled(false); }},
      {"in a parent that takes none", kSeen, [&] { parent.setUserInteractionEnabled(false); }},
  };
  for (const auto& [name, outcome, change] : cases) {
    SCOPED_TRACE(name);
    parent = add({{10, 100}, {200, 200}}, "", add(kScreen));
    button = addButton("Press", {{10, 10}, {50, 20}}, parent);
    change();
    EXPECT_EQ(me_.sees("Press"), outcome != kGone);
    EXPECT_EQ(refusal([&] { me_.tap("Press"); }).empty(), outcome != kGone);
    EXPECT_EQ(noted(), outcome == kTouched ? Titles{"touched"} : Titles{});
    for (const Object view : screen().subviews()) ask<"removeFromSuperview">(view);
  }
}

TEST_F(UIKit, TheNearestWillingRecognizerIsMoved) {
  const UIView outer = add({{20, 100}, {200, 200}});
  const UIView inner = add<TestView>({{10, 10}, {50, 50}}, "Inner", outer);
  const auto outerPress = addRecognizer(outer), innerPress = addRecognizer(inner);
  ask<"setDelegate:">(outerPress, witness_);
  me_.screen();
  noted();
  const std::tuple<bool, bool, bool, Titles, const char*> cases[] = {
      {true, false, false, {}, "its delegate refuses"},
      {false, true, false, {}, "its view refuses"},
      {true, false, true, {"state 1", "state 3"}, "an ancestor's, which begins and ends"},
      {true, true, true, {"state 1", "state 3"}, "one of the two"},
  };
  for (const auto& [outerIsOn, innerIsOn, allowed, states, what] : cases) {
    ask<"setEnabled:">(outerPress, outerIsOn);
    ask<"setEnabled:">(innerPress, innerIsOn);
    isAllowed = allowed;
    me_.longPress("Inner");
    EXPECT_EQ(noted(), states) << what;
  }
  EXPECT_EQ(innerPress.state(), UIGestureRecognizer::State::possible);
  addRecognizer<UITapGestureRecognizer>(inner);
  me_.tap("Inner");
  EXPECT_EQ(noted(), Titles{"state 3"});
}

TEST_F(UIKit, AnimatedViewsTakeNoTouchesUnlessAllowed) {
  constexpr double kSeconds = 60;
  constexpr NSUInteger kAllowUserInteraction = 2;
  const auto animate = [](std::function<void()> change, double seconds, NSUInteger options = 0) {
    ask<"animateWithDuration:delay:options:animations:completion:">(
        hostType<"UIView">(), seconds, 0.0, options, Block<void()>(block<void()>(change)),
        Block<void(bool)>(block<void(bool)>([](bool) { note("ended"); })));
  };
  const UIView parent = add({{0, 100}, {200, 200}});
  addButton("Press", {{0, 0}, {50, 20}}, parent);
  const auto tapped = [&] {
    me_.tap("Press");
    return noted();
  };
  animate([&] { parent.setAlpha(0.5); }, kSeconds);
  EXPECT_EQ((parent.send<"alpha", double()>()), 0.5) << "set at once";
  EXPECT_EQ(tapped(), Titles());
  animate([&] { parent.setAlpha(0.8); }, 0.001);
  EXPECT_EQ(notedOnceThereAre(1), Titles{"ended"});
  EXPECT_EQ(tapped(), Titles{"touched"}) << "a newer animation has taken its place, and is over";
  animate([&] { parent.setAlpha(0.5); }, kSeconds, kAllowUserInteraction);
  EXPECT_EQ(tapped(), Titles{"touched"});
}

TEST_F(UIKit, ControllersAppearAndDisappearInOrder) {
  const auto a = controller("A"), b = controller("B"), c = controller("C");
  const auto stack = makeObject<UINavigationController, "initWithRootViewController:">(a).autorelease();
  ask<"setTabBarItem:">(stack, ask<"tabBarItem", Object>(a));
  const auto both = makeObject<NSMutableArray>();
  for (const UIViewController each : {UIViewController(stack), c}) both->addObject(each);
  const auto tabs = makeObject<HostClass<"UITabBarController", UIViewController>>();
  ask<"setViewControllers:">(tabs.get(), NSArray(both.get()));
  EXPECT_EQ(noted(), Titles()) << "nothing is loaded before it is shown";
  setRoot(tabs.get());
  EXPECT_EQ(noted(), (Titles{"A loaded", "A will appear", "A did appear"}));
  const auto push = [&] { ask<"pushViewController:animated:">(stack, b, true); };
  push();
  EXPECT_EQ(noted(), turn("A", "B", true));
  EXPECT_TRUE(raises(push)) << "it has its place already";
  me_.tap("C");
  EXPECT_EQ(noted(), turn("B", "C", true));
  me_.tap("A");
  EXPECT_EQ(noted(), turn("C", "B")) << "a tab keeps its place";
}

TEST_F(UIKit, ChildrenAppearWithTheirParentAndPresentThroughIt) {
  const auto parent = controller("Parent"), child = controller("Child"), sheet = controller("Sheet");
  ask<"addChildViewController:">(parent, child);
  setRoot(parent);
  EXPECT_EQ(noted(), (Titles{"Parent loaded", "Parent will appear", "Child loaded", "Child will appear",
                             "Parent did appear", "Child did appear"}));
  screen().addSubview(ask<"view", UIView>(child));
  child.present(sheet, true);
  EXPECT_EQ(noted(), (Titles{"Sheet loaded", "Sheet will appear", "Sheet did appear"}));
  EXPECT_EQ(presentedBy(parent), sheet);
  for (const auto placed : {sheet, child, UIViewController()})
    EXPECT_TRUE(raises([&] { parent.present(placed, true); })) << "it has its place already, or is nobody";
}

TEST_F(UIKit, AnActionSheetOnAPadNeedsASource) {
  ask<"_setUserInterfaceIdiom:">(UIDevice::currentDevice(), NSInteger{1});
  const auto sheet = UIAlertController::make("Sheet", "", UIAlertController::Style::actionSheet);
  EXPECT_TRUE(raises([&] { root().present(sheet, true); }));
  sheet.setPopoverSource(add({{0, 20}, {375, 792}}));
  root().present(sheet, true);
  EXPECT_TRUE(me_.hasAlert());
}

TEST_F(UIKit, AnAlertIsGoneWhenItsHandlerRuns) {
  const auto present = [](UIViewController by, std::string_view title,
                          Block<void(UIAlertAction)> handler = {}) {
    const AutoreleasePool pool;
    const auto alert = UIAlertController::make(title, "", UIAlertController::Style::alert);
    addAction(alert, "Cancel", Style::cancel);
    EXPECT_TRUE(raises([&] { addAction(alert, "Not now", Style::cancel); }));
    addAction(alert, "OK", Style::standard, handler);
    by.present(alert, true);
  };
  addButton("Behind", {{20, 100}, {100, 40}});
  present(makeObject<UIViewController>().get(), "Off the screen");
  const auto captured = std::make_shared<int>();
  present(root(), "First", block<void(UIAlertAction)>([captured, present](UIAlertAction action) {
            note(titleOf(action) + (presentedBy(root()) ? " under the alert" : ""));
            present(root(), "Next");
          }));
  present(root(), "Second");
  EXPECT_NE(refusal([&] { me_.tap("Behind"); }), "") << "an alert keeps fingers from what is behind";
  me_.tap("OK");
  EXPECT_EQ(noted(), Titles{"OK"});
  EXPECT_EQ(me_.alert().title, "Next") << "its handler may present the next one";
  me_.tap("OK");
  EXPECT_FALSE(me_.hasAlert()) << "nothing was waiting behind it";
  EXPECT_EQ(captured.use_count(), 1) << "the handler has gone with its alert";
}

}  // namespace
}  // namespace velvault12
