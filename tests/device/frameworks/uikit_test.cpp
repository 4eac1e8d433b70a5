// UIKit as an app's own code uses it. This process is an app whose screen is empty.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <tuple>

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

/// What the test's own classes were told, and what they are to answer.
struct Witnessed {
  std::vector<std::string> calls;
  bool allows = true;
  NSInteger items = 30;
  bool hasCells = true;
} witnessed;

void note(std::string_view what) { witnessed.calls.emplace_back(what); }
std::vector<std::string> noted() { return std::exchange(witnessed.calls, {}); }
std::string titleOf(Object object) { return object.trySend<"title", NSString()>().utf8(); }
NSInteger itemOf(Object path) { return ask<"item", NSInteger>(path); }
void label(UIView view, std::string_view text) { ask<"setAccessibilityLabel:">(view, NSString::from(text)); }

template <Name What, class... Arguments>
void told(Object self, Arguments...) {
  note(titleOf(self) + What.text);
}
bool allows(Object, Object) { return witnessed.allows; }
void acted(Object, Object sender) {
  const auto recognizer = sender.as<UIGestureRecognizer>();
  note(recognizer ? "state " + std::to_string(static_cast<int>(recognizer.state())) : "touched");
}
NSInteger itemCount(Object, Object, NSInteger) { return witnessed.items; }
UIView dequeue(UICollectionView view, std::string_view kind, NSIndexPath path) {
  return ask<"dequeueReusableCellWithReuseIdentifier:forIndexPath:", UIView>(view, NSString::from(kind),
                                                                             path);
}
UIView cellFor(Object, UICollectionView view, NSIndexPath path) {
  if (!witnessed.hasCells) return UIView();
  const UIView cell = dequeue(view, "cell", path);
  label(cell, "Item " + std::to_string(itemOf(path)));
  return cell;
}
bool shouldSelect(Object, Object, NSIndexPath) { return witnessed.allows; }
void didSelect(Object, Object, NSIndexPath path) { note("selected " + std::to_string(itemOf(path))); }

using TestController = HostClass<"TestController", UIViewController>;
using LayoutController = HostClass<"LayoutController", UIViewController>;
using TestView = HostClass<"TestView", UIView>;
/// A target, a recognizer's delegate, a collection view's data source and delegate.
using Witness = HostClass<"Witness">;

class UIKit : public PlainPhone {
 protected:
  UIKit() {
    phone_.launchHere(device::kSpringBoard);
    ClassPair(classNamed<"UIViewController">(), "TestController")
        .method<told<" loaded">>(selector<"viewDidLoad">(), "v@:")
        .method<told<" will appear", bool>>(selector<"viewWillAppear:">(), "v@:C")
        .method<told<" did appear", bool>>(selector<"viewDidAppear:">(), "v@:C")
        .method<told<" will disappear", bool>>(selector<"viewWillDisappear:">(), "v@:C")
        .method<told<" did disappear", bool>>(selector<"viewDidDisappear:">(), "v@:C")
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
    witness_ = makeObject<Witness>().autorelease();
  }

  static UIView window() { return UIApplication::sharedApplication().keyWindow(); }
  static UIViewController root() { return ask<"rootViewController", UIViewController>(window()); }
  static void setRoot(UIViewController controller) { ask<"setRootViewController:">(window(), controller); }
  static UIView screen() { return ask<"view", UIView>(root()); }

  template <class View = UIView>
  static View add(CGRect frame, UIView parent = screen(), std::string_view text = "") {
    const View made = makeObject<View, "initWithFrame:">(frame).autorelease();
    label(made, text);
    parent.addSubview(made);
    return made;
  }
  UIView addButton(std::string_view title, CGRect frame, UIView parent = screen()) const {
    constexpr NSUInteger kTouchUpInside = 1 << 6;
    const auto button = add<HostClass<"UIButton", UIView>>(frame, parent, title);
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
  static void push(UINavigationController stack, UIViewController controller) {
    ask<"pushViewController:animated:">(stack, controller, true);
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
    soon([count] { return witnessed.calls.size() >= count; });
    return noted();
  }

  const device::User me_ = device::User::here();
  Object witness_;
};

TEST_F(UIKit, TheFrameFollowsFromCentreBoundsAndTransform) {
  const UIView view = add({{10, 20}, {30, 40}});
  EXPECT_EQ(view.center(), (CGPoint{25, 40}));
  view.setCenter({100, 100});
  EXPECT_EQ(view.frame(), (CGRect{{85, 80}, {30, 40}}));
  ask<"setBounds:">(view, CGRect{{7, 7}, {50, 60}});
  EXPECT_EQ(view.frame(), (CGRect{{75, 70}, {50, 60}})) << "it grows around its centre";
  view.setTransform({0, 1, -1, 0, 0, 0});
  EXPECT_EQ(view.frame(), (CGRect{{70, 75}, {60, 50}})) << "turned by a quarter";
  EXPECT_EQ(view.bounds(), (CGRect{{7, 7}, {50, 60}}));
}

TEST_F(UIKit, PointsAreConvertedThroughScrolledAncestors) {
  const UIView outer = add({{100, 200}, {50, 50}}), other = add({{1, 2}, {10, 10}});
  const UIView inner = add({{5, 6}, {10, 10}}, outer);
  ask<"setBounds:">(outer, CGRect{{0, 30}, {50, 50}});
  const std::pair<UIView, CGPoint> places[] = {{UIView(), {106, 177}}, {other, {105, 175}}, {outer, {6, 7}}};
  for (const auto& [view, place] : places) {
    EXPECT_EQ((ask<"convertPoint:toView:", CGPoint>(inner, CGPoint{1, 1}, view)), place);
    EXPECT_EQ((ask<"convertPoint:fromView:", CGPoint>(inner, place, view)), (CGPoint{1, 1}));
  }
}

TEST_F(UIKit, TheTreeKeepsItsOrder) {
  const UIView parent = add({});
  const UIView a = add({}, parent), b = add({}, parent), c = add({}, parent);
  a.setTag(5), b.setTag(6), c.setTag(7);
  const auto order = [&] {
    std::string tags;
    for (const Object view : parent.subviews()) tags += std::to_string(ask<"tag", NSInteger>(view));
    return tags;
  };
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
  b.setTag(5);
  EXPECT_EQ(parent.viewWithTag(5), a) << "the first of two";
}

TEST_F(UIKit, AViewThatGoesLetsGoOfWhatItHeld) {
  const auto view = makeObject<UIView>(), kept = makeObject<UIView>();
  const NSUInteger owned = references(kept.get()), targeted = references(witness_);
  const auto press = addRecognizer(view.get());
  ask<"setDelegate:">(press, witness_);
  addButton("Press", {});
  EXPECT_EQ(references(witness_), targeted) << "neither a target nor a delegate is retained";
  const NSUInteger held = references(press);
  {
    const AutoreleasePool pool;
    const auto other = makeObject<UIView>();
    view->addSubview(kept.get());
    for (int i = 0; i < 2; ++i) kept->removeFromSuperview();
    other->addSubview(kept.get());
    other->addGestureRecognizer(press);
    EXPECT_EQ(view->gestureRecognizers().count(), 0u) << "a recognizer has one view";
    EXPECT_EQ(press.view(), other.get());
  }
  EXPECT_FALSE(kept->superview());
  EXPECT_EQ(references(kept.get()), owned);
  EXPECT_FALSE(press.view());
  EXPECT_EQ(references(press), held - 1);
}

TEST_F(UIKit, AViewIsLaidOutOnceATurnAndItsControllerIsToldAround) {
  const UIView view = add<TestView>({});
  const auto laidOut = makeObject<LayoutController>();
  ask<"setView:">(laidOut.get(), view);
  me_.screen();
  noted();
  for (int i = 0; i < 3; ++i) ask<"setNeedsLayout">(view);
  EXPECT_EQ(noted(), Titles());
  me_.screen();
  EXPECT_EQ(noted(), (Titles{"will lay out", "lay out", "did lay out"}));
  view.setFrame({{0, 0}, {10, 10}});
  ask<"layoutIfNeeded">(view);
  EXPECT_EQ(noted().size(), 3u) << "a new size asks for a layout";
  view.setFrame({{5, 5}, {10, 10}});
  me_.screen();
  EXPECT_EQ(noted(), Titles()) << "a new place does not";
}

TEST_F(UIKit, WhatIsNotOnScreenIsNeitherSeenNorTouched) {
  constexpr CGRect kScreen{{0, 0}, {375, 812}}, kOutside{{0, 300}, {50, 20}}, kBelow{{0, 900}, {9, 9}};
  enum Outcome { kGone, kSeen, kTouched };
  UIView parent, button;
  const std::tuple<const char*, Outcome, std::function<void()>> cases[] = {
      {"half transparent", kTouched, [&] { button.setAlpha(0.5); }},
      {"transparent", kGone, [&] { button.setAlpha(0); }},
      {"hidden", kGone, [&] { ask<"setHidden:">(button, true); }},
      {"in a transparent parent", kGone, [&] { parent.setAlpha(0); }},
      {"in a hidden parent", kGone, [&] { ask<"setHidden:">(parent, true); }},
      {"outside its parent", kSeen, [&] { button.setFrame(kOutside); }},
      {"clipped", kGone, [&] { button.setFrame(kOutside), parent.setClipsToBounds(true); }},
      {"off the screen", kGone, [&] { parent.setFrame(kBelow); }},
      {"without a size", kGone, [&] { button.setFrame({}); }},
      {"covered", kGone, [&] { add(kScreen).setBackgroundColor(UIColor::whiteColor()); }},
      {"under glass", kSeen, [&] { add(kScreen).setBackgroundColor(UIColor::white(1, 0.5)); }},
      {"under what takes no touches", kTouched, [&] { add(kScreen).setUserInteractionEnabled(false); }},
      {"taking no touches", kSeen, [&] { button.setUserInteractionEnabled(false); }},
      {"in a parent that takes none", kSeen, [&] { parent.setUserInteractionEnabled(false); }},
      {"disabled", kSeen, [&] { ask<"setEnabled:">(button, false); }},
      {"removed", kGone, [&] { parent.removeFromSuperview(); }},
  };
  for (const auto& [name, outcome, change] : cases) {
    SCOPED_TRACE(name);
    parent = add({{10, 100}, {200, 200}}, add(kScreen));
    button = addButton("Press", {{10, 10}, {50, 20}}, parent);
    change();
    EXPECT_EQ(me_.sees("Press"), outcome != kGone);
    EXPECT_EQ(me_.screen().find("\"Press\"") != std::string::npos, outcome != kGone);
    EXPECT_EQ(refusal([&] { me_.tap("Press"); }).empty(), outcome != kGone);
    EXPECT_EQ(noted(), outcome == kTouched ? Titles{"touched"} : Titles{});
    for (const Object view : screen().subviews()) ask<"removeFromSuperview">(view);
  }
}

TEST_F(UIKit, AFingerMovesTheNearestRecognizerThatTakesIt) {
  const UIView outer = add({{20, 100}, {200, 200}});
  const UIView inner = add<TestView>({{10, 10}, {50, 50}}, outer, "Inner");
  const auto outerPress = addRecognizer(outer), innerPress = addRecognizer(inner);
  ask<"setDelegate:">(outerPress, witness_);
  me_.screen();
  noted();
  const std::tuple<bool, bool, bool, Titles, const char*> cases[] = {
      {true, false, false, {}, "its delegate refuses"},
      {false, true, false, {}, "its view refuses"},
      {false, false, true, {}, "both are disabled"},
      {true, false, true, {"state 1", "state 3"}, "an ancestor's, which begins and ends"},
      {false, true, true, {"state 1", "state 3"}, "its own"},
      {true, true, true, {"state 1", "state 3"}, "one of the two"},
  };
  for (const auto& [outerIsOn, innerIsOn, allowed, states, what] : cases) {
    ask<"setEnabled:">(outerPress, outerIsOn);
    ask<"setEnabled:">(innerPress, innerIsOn);
    witnessed.allows = allowed;
    me_.longPress("Inner");
    EXPECT_EQ(noted(), states) << what;
  }
  EXPECT_EQ(innerPress.state(), UIGestureRecognizer::State::possible);
  me_.tap("Inner");
  EXPECT_EQ(noted(), Titles()) << "too short";

  const auto tap = addRecognizer<UITapGestureRecognizer>(inner);
  me_.tap("Inner");
  EXPECT_EQ(noted(), Titles{"state 3"});
  EXPECT_EQ(tap.state(), UIGestureRecognizer::State::possible);
  ask<"setNumberOfTapsRequired:">(tap, NSUInteger{2});
  me_.tap("Inner");
  EXPECT_EQ(noted(), Titles()) << "one tap of two";
}

/// As the host's class method takes it.
struct Animation {
  double seconds;
  double delay = 0;
  NSUInteger options = 0;
};
constexpr double kForLong = 60;
constexpr NSUInteger kAllowUserInteraction = 2;

void animate(Animation how, std::function<void()> change) {
  ask<"animateWithDuration:delay:options:animations:completion:">(
      hostType<"UIView">(), how.seconds, how.delay, how.options, Block<void()>(block<void()>(change)),
      Block<void(bool)>(block<void(bool)>([](bool ended) { note(ended ? "ended" : "broke off"); })));
}

TEST_F(UIKit, AnAnimationSetsValuesAtOnceAndShowsTheWayToThem) {
  const UIView view = add({{0, 100}, {50, 20}}, screen(), "View");
  const auto shownLeft = [&] {
    const std::string line = me_.screen();
    return std::stod(line.substr(line.find("\"View\" (") + 8));
  };
  animate({.seconds = 0.3}, [&] { view.setFrame({{100, 100}, {50, 20}}); });
  EXPECT_EQ(view.frame().origin, (CGPoint{100, 100}));
  std::vector<double> way;
  while (witnessed.calls.empty()) {
    way.push_back(shownLeft());
    device::runUntil([] { return !witnessed.calls.empty(); }, std::chrono::milliseconds(10));
  }
  EXPECT_TRUE(std::ranges::is_sorted(way));
  EXPECT_TRUE(std::ranges::any_of(way, [](double left) { return left > 0 && left < 100; }));
  EXPECT_EQ(shownLeft(), 100);

  animate({.seconds = 0.01}, [&] { view.setAlpha(0.5); });
  EXPECT_EQ(notedOnceThereAre(2), (Titles{"ended", "ended"})) << "no end comes twice";

  animate({.seconds = 1, .delay = kForLong}, [&] { view.setAlpha(0); });
  EXPECT_EQ((ask<"alpha", double>(view)), 0);
  EXPECT_TRUE(me_.sees("View")) << "before its delay is over";
  animate({.seconds = 0.01}, [&] { view.setAlpha(0); });
  EXPECT_TRUE(me_.sees("View")) << "it changes nothing";
  animate({.seconds = kForLong}, [&] { view.setAlpha(1); });
  EXPECT_TRUE(me_.sees("View")) << "from where it was shown";
  animate({.seconds = 0.01}, [&] { view.setAlpha(0); });
  me_.waitUntilGone("View");
}

TEST_F(UIKit, WhatIsAnimatedTakesTouchesOnlyWhereThatIsAllowed) {
  const UIView parent = add({{0, 100}, {200, 200}});
  const UIView button = addButton("Press", {{0, 0}, {50, 20}}, parent);
  const auto tapped = [&] {
    me_.tap("Press");
    return noted();
  };
  animate({kForLong}, [&] { parent.setAlpha(0.5); });
  EXPECT_EQ(tapped(), Titles());
  animate({0.001, 0, kAllowUserInteraction}, [&] { parent.setAlpha(0.8); });
  EXPECT_EQ(notedOnceThereAre(1), Titles{"ended"});
  EXPECT_EQ(tapped(), Titles{"touched"}) << "a newer animation has taken its place";
  animate({kForLong, kForLong, kAllowUserInteraction}, [&] { button.setCenter({30, 12}); });
  EXPECT_EQ(tapped(), Titles{"touched"});
  animate({0.001}, [&] { button.setAlpha(0.5); });
  EXPECT_EQ(notedOnceThereAre(1), Titles{"ended"});
  EXPECT_EQ(tapped(), Titles{"touched"}) << "it is over";
  animate({kForLong}, [&] { button.setAlpha(0.5); });
  EXPECT_EQ(tapped(), Titles{"touched"}) << "it changes nothing";
}

TEST_F(UIKit, WhoTakesTheScreenAndWhoLeavesItAreToldInOrder) {
  const auto a = controller("A"), b = controller("B"), c = controller("C"), d = controller("D");
  const auto stack = makeObject<UINavigationController, "initWithRootViewController:">(a).autorelease();
  ask<"setTabBarItem:">(stack, ask<"tabBarItem", Object>(a));
  const auto both = makeObject<NSMutableArray>();
  for (const UIViewController each : {UIViewController(stack), d}) both->addObject(each);
  const auto tabs = makeObject<HostClass<"UITabBarController", UIViewController>>();
  ask<"setViewControllers:">(tabs.get(), NSArray(both.get()));
  EXPECT_EQ(noted(), Titles()) << "nothing is loaded before it is shown";
  setRoot(tabs.get());
  EXPECT_EQ(noted(), (Titles{"A loaded", "A will appear", "A did appear"}));
  push(stack, b);
  EXPECT_EQ(noted(), turn("A", "B", true));
  push(stack, c);
  EXPECT_EQ(noted(), turn("B", "C", true));
  EXPECT_TRUE(raises([&] { push(stack, b); }));
  EXPECT_EQ((ask<"navigationController", UIViewController>(c)), stack);

  me_.tap("D");
  EXPECT_EQ(noted(), turn("C", "D", true));
  me_.tap("A");
  EXPECT_EQ(noted(), turn("D", "C")) << "a tab keeps its place";
  me_.tap("A");
  EXPECT_EQ(noted(), turn("C", "A")) << "a second touch leads to its first screen";
  EXPECT_FALSE((ask<"navigationController", UIViewController>(b)));
  const auto pop = [&] { return ask<"popViewControllerAnimated:", UIViewController>(stack, true); };
  EXPECT_FALSE(pop()) << "the first one stays";
  push(stack, b);
  EXPECT_EQ(noted(), turn("A", "B")) << "loaded once";
  EXPECT_EQ(pop(), b);
}

TEST_F(UIKit, AChildAppearsWithItsParentAndPresentsThroughIt) {
  const auto parent = controller("Parent"), child = controller("Child"), sheet = controller("Sheet");
  ask<"addChildViewController:">(parent, child);
  setRoot(parent);
  EXPECT_EQ(noted(), (Titles{"Parent loaded", "Parent will appear", "Child loaded", "Child will appear",
                             "Parent did appear", "Child did appear"}));
  screen().addSubview(ask<"view", UIView>(child));
  auto completed = block<void()>([] { note("completed"); });
  ask<"presentViewController:animated:completion:">(child, sheet, true, Block<void()>(completed));
  EXPECT_EQ(noted(), (Titles{"Sheet loaded", "Sheet will appear", "Sheet did appear"}));
  EXPECT_EQ(presentedBy(parent), sheet);
  EXPECT_EQ(notedOnceThereAre(1), Titles{"completed"});
  EXPECT_TRUE(raises([&] { parent.present(sheet, true); })) << "it is presented already";
  EXPECT_TRUE(raises([&] { sheet.present(child, true); })) << "it has its place already";
  EXPECT_TRUE(raises([&] { parent.present(UIViewController(), true); }));

  const auto above = controller("Above");
  sheet.present(above, true);
  noted();
  ask<"dismissViewControllerAnimated:completion:">(parent, true, Block<void()>(completed));
  EXPECT_EQ(notedOnceThereAre(5), (Titles{"Above will disappear", "Above did disappear",
                                          "Sheet will disappear", "Sheet did disappear", "completed"}));
  EXPECT_FALSE(presentedBy(parent));
  sheet.present(above, true);
  EXPECT_FALSE(presentedBy(sheet)) << "who is off the screen cannot present";
}

TEST_F(UIKit, AnAlertReadsAsItWasMade) {
  const auto made = UIAlertController::make("Title", "Message", UIAlertController::Style::alert);
  EXPECT_FALSE((ask<"textFields", NSArray>(made)));
  EXPECT_FALSE((ask<"popoverPresentationController", Object>(made))) << "no pad";
  addAction(made, "Never", Style::cancel);
  addAction(made, "Always", Style::destructive);
  addAction(made, "Once");
  EXPECT_TRUE(raises([&] { addAction(made, "Not now", Style::cancel); }));
  made.addTextField(block<void(UITextField)>([](UITextField field) {
    field.setPlaceholder(NSString::from("Secret"));
    field.setSecureTextEntry(true);
  }));
  root().present(made, true);
  const device::AlertText text = me_.alert();
  EXPECT_EQ(text.title, "Title");
  EXPECT_EQ(text.message, "Message");
  EXPECT_EQ(text.fields, Titles{"Secret (secure)"});
  EXPECT_EQ(text.buttons, (Titles{"Never", "Always", "Once"}));
  for (const std::string_view typed : {"first", "second"}) me_.type(typed);
  EXPECT_EQ(made.firstTextField().text().utf8(), "second") << "typing replaces";
  EXPECT_FALSE(me_.sees("second")) << "a secure field hides it";
  const auto sheet = UIAlertController::make("Sheet", "", UIAlertController::Style::actionSheet);
  EXPECT_TRUE(raises([&] { sheet.addTextField({}); }));
}

TEST_F(UIKit, AnActionSheetOnAPadLiesBesideItsSource) {
  ask<"_setUserInterfaceIdiom:">(UIDevice::currentDevice(), NSInteger{1});
  const auto sheet = [] {
    const auto made = UIAlertController::make("Sheet", "", UIAlertController::Style::actionSheet);
    addAction(made, "Cancel", Style::cancel);
    return made;
  };
  const auto panelOf = [&](UIAlertController made) {
    root().present(made, true);
    const CGRect panel = ask<"view", UIView>(made).frame();
    me_.tap("Cancel");
    return panel;
  };
  EXPECT_TRUE(raises([&] { root().present(sheet(), true); })) << "beside what?";
  const UIView source = add({{0, 20}, {375, 792}});
  for (const CGRect rect :
       {CGRect{{0, 0}, {20, 20}}, CGRect{{350, 0}, {20, 20}}, CGRect{{150, 400}, {30, 40}},
        CGRect{{0, 770}, {20, 20}}, CGRect{{350, 770}, {20, 20}}}) {
    const UIAlertController made = sheet();
    made.setPopoverSource(source);
    ask<"setSourceRect:">(ask<"popoverPresentationController", Object>(made), rect);
    const CGRect panel = panelOf(made);
    const double top = rect.origin.y + 20, bottom = top + rect.size.height;
    SCOPED_TRACE(rect.origin.x + 1000 * rect.origin.y);
    EXPECT_TRUE(panel.origin.y == bottom || panel.origin.y + panel.size.height == top);
    EXPECT_TRUE(panel.origin.x >= 0 && panel.origin.x + panel.size.width <= 375);
    EXPECT_TRUE(panel.origin.y >= 0 && panel.origin.y + panel.size.height <= 812);
  }
  const UIAlertController made = sheet();
  const auto item = makeObject<HostClass<"UIBarButtonItem">>();
  ask<"setBarButtonItem:">(ask<"popoverPresentationController", Object>(made), Object(item.get()));
  const CGRect panel = panelOf(made);
  EXPECT_GT(panel.origin.x + panel.size.width, 350);
  EXPECT_LT(panel.origin.y, 100);
}

TEST_F(UIKit, AnAlertLivesUntilAButtonDismissesItAndThenRunsItsHandlerOnce) {
  GSDebugAllocationActive(1);
  const auto livingActions = [] { return GSDebugAllocationCount(UIAlertAction::hostClass()); };
  const auto present = [](UIViewController by, std::string_view title,
                          Block<void(UIAlertAction)> handler = {}) {
    const AutoreleasePool pool;
    const auto alert = UIAlertController::make(title, "", UIAlertController::Style::alert);
    addAction(alert, "Cancel", Style::cancel);
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
  EXPECT_EQ(livingActions(), 2) << "only the first one's are left";
  EXPECT_TRUE(me_.sees("Behind"));
  EXPECT_NE(refusal([&] { me_.tap("Behind"); }), "") << "an alert keeps fingers from what is behind";
  me_.tap("OK");
  EXPECT_EQ(noted(), Titles{"OK"});
  EXPECT_EQ(me_.alert().title, "Next") << "its handler may present the next one";
  me_.tap("OK");
  EXPECT_FALSE(me_.hasAlert()) << "nothing was waiting behind it";
  EXPECT_EQ(captured.use_count(), 1) << "the handler has gone with its alert";
  EXPECT_EQ(livingActions(), 0);
  me_.tap("Behind");
  EXPECT_EQ(noted(), Titles{"touched"});
}

class Collection : public UIKit {
 protected:
  Collection() {
    const auto layout = makeObject<HostClass<"UICollectionViewFlowLayout">>().autorelease();
    ask<"setItemSize:">(layout, CGSize{100, 100});
    ask<"_setSpacing:">(layout, 0.0);
    constexpr CGRect kFrame{{0, 100}, {100, 250}};
    view_ = makeObject<UICollectionView, "initWithFrame:collectionViewLayout:">(kFrame, layout).autorelease();
    ask<"registerClass:forCellWithReuseIdentifier:">(view_, classNamed<"TestCell">(), NSString::from("cell"));
    ask<"setDataSource:">(view_, witness_);
    ask<"setDelegate:">(view_, witness_);
    screen().addSubview(view_);
    me_.screen();
  }

  UIView cell(NSInteger item) const { return ask<"cellForItemAtIndexPath:", UIView>(view_, pathTo(item)); }
  Items itemsWithCells() const {
    Items items;
    for (const Object path : ask<"indexPathsForVisibleItems", NSArray>(view_)) items.insert(itemOf(path));
    return items;
  }
  void scrollTo(double y) const {
    ask<"setContentOffset:">(view_, CGPoint{0, y});
    me_.screen();
  }

  UICollectionView view_;
};

TEST_F(Collection, OnlyWhatIsInSightHasCellsWhichAreUsedAgain) {
  EXPECT_EQ(itemsWithCells(), (Items{0, 1, 2}));
  EXPECT_EQ(itemOf(ask<"indexPathForCell:", NSIndexPath>(view_, cell(1))), 1);
  EXPECT_FALSE(cell(3));
  scrollTo(1000);
  EXPECT_EQ(itemsWithCells(), (Items{10, 11, 12}));
  EXPECT_GE(noted().size(), 2u) << "a cell is made ready to be used again";
  std::set<id> cells;
  for (double y = 0; y < 2700; y += 90) {
    scrollTo(y);
    for (const NSInteger item : itemsWithCells()) cells.insert(cell(item).get());
  }
  EXPECT_LE(cells.size(), 6u);
  scrollTo(1e6);
  EXPECT_EQ(itemsWithCells(), (Items{27, 28, 29})) << "it does not scroll past its end";
}

TEST_F(Collection, ReloadingAsksForEverythingAnew) {
  scrollTo(2000);
  witnessed.items = 2;
  EXPECT_EQ((ask<"numberOfItemsInSection:", NSInteger>(view_, NSInteger{0})), 30) << "not asked again before";
  ask<"reloadData">(view_);
  me_.screen();
  EXPECT_EQ(itemsWithCells(), (Items{0, 1}));
  witnessed.hasCells = false;
  ask<"reloadData">(view_);
  EXPECT_TRUE(raises([&] { ask<"layoutIfNeeded">(view_); })) << "no cell";
  EXPECT_TRUE(raises([&] { dequeue(view_, "other", pathTo(0)); })) << "nothing is registered as that";
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

}  // namespace
}  // namespace velvault12
