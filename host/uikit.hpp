#pragma once

#include <string_view>

#include "host/block.hpp"
#include "host/core_graphics.hpp"
#include "host/foundation.hpp"

namespace velvault12 {

class UIView;

class UIColor : public HostClass<"UIColor"> {
 public:
  using HostClass::HostClass;
  static UIColor clearColor() { return sendToClass<"clearColor", UIColor()>(hostClass()); }
  static UIColor whiteColor() { return sendToClass<"whiteColor", UIColor()>(hostClass()); }
  /// From 0 (black, clear) to 1.
  static UIColor white(double white, double alpha) {
    return sendToClass<"colorWithWhite:alpha:", UIColor(double, double)>(hostClass(), white, alpha);
  }
};

class UIFont : public HostClass<"UIFont"> {
 public:
  using HostClass::HostClass;
  static UIFont systemFontOfSize(double points) {
    return sendToClass<"systemFontOfSize:", UIFont(double)>(hostClass(), points);
  }
};

/// How large a line of text is, its tail cut off where it does not fit: no larger than `within`, and as large
/// where the host does not measure.
inline CGSize lineSize(NSString text, UIFont font, CGSize within) {
  constexpr NSInteger kTruncateTail = 4;
  if (!text.responds<"sizeWithFont:constrainedToSize:lineBreakMode:">()) return within;
  return text.send<"sizeWithFont:constrainedToSize:lineBreakMode:", CGSize(UIFont, CGSize, NSInteger)>(
      font, within, kTruncateTail);
}

class CALayer : public HostClass<"CALayer"> {
 public:
  using HostClass::HostClass;
  void setCornerRadius(double points) const { send<"setCornerRadius:", void(double)>(points); }
  void setMasksToBounds(bool masks) const { send<"setMasksToBounds:", void(bool)>(masks); }
};

class UIGestureRecognizer : public HostClass<"UIGestureRecognizer"> {
 public:
  using HostClass::HostClass;
  enum class State : NSInteger { possible = 0, began = 1, changed = 2, ended = 3, cancelled = 4, failed = 5 };

  State state() const { return send<"state", State()>(); }
  /// Not retained.
  void setDelegate(Object delegate) const { send<"setDelegate:", void(Object)>(delegate); }
  inline UIView view() const;
};

/// A new recognizer of that kind. The target is not retained.
template <class Recognizer>
Ref<Recognizer> makeRecognizer(Object target, SEL action) {
  return makeObject<Recognizer, "initWithTarget:action:">(target, action);
}

/// Of one finger's single tap, unless told otherwise.
class UITapGestureRecognizer : public HostClass<"UITapGestureRecognizer", UIGestureRecognizer> {
 public:
  using HostClass::HostClass;
  void setNumberOfTapsRequired(NSUInteger count) const {
    send<"setNumberOfTapsRequired:", void(NSUInteger)>(count);
  }
};

class UILongPressGestureRecognizer : public HostClass<"UILongPressGestureRecognizer", UIGestureRecognizer> {
 public:
  using HostClass::HostClass;
  void setMinimumPressDuration(double seconds) const {
    send<"setMinimumPressDuration:", void(double)>(seconds);
  }
};

class UIViewController;

class UIView : public HostClass<"UIView"> {
 public:
  using HostClass::HostClass;

  CGRect bounds() const { return send<"bounds", CGRect()>(); }
  CGRect frame() const { return send<"frame", CGRect()>(); }
  void setFrame(CGRect frame) const { send<"setFrame:", void(CGRect)>(frame); }
  CGPoint center() const { return send<"center", CGPoint()>(); }
  void setCenter(CGPoint center) const { send<"setCenter:", void(CGPoint)>(center); }
  void setTransform(CGAffineTransform transform) const {
    send<"setTransform:", void(CGAffineTransform)>(transform);
  }
  void setAlpha(double alpha) const { send<"setAlpha:", void(double)>(alpha); }
  void setHidden(bool hidden) const { send<"setHidden:", void(bool)>(hidden); }
  void setBackgroundColor(UIColor color) const { send<"setBackgroundColor:", void(UIColor)>(color); }
  void setClipsToBounds(bool clips) const { send<"setClipsToBounds:", void(bool)>(clips); }
  void setUserInteractionEnabled(bool enabled) const {
    send<"setUserInteractionEnabled:", void(bool)>(enabled);
  }
  void setAutoresizesSubviews(bool autoresizes) const {
    send<"setAutoresizesSubviews:", void(bool)>(autoresizes);
  }
  void setTag(NSInteger tag) const { send<"setTag:", void(NSInteger)>(tag); }
  NSInteger tag() const { return send<"tag", NSInteger()>(); }
  /// The receiver or the first of its descendants with that tag.
  UIView viewWithTag(NSInteger tag) const { return send<"viewWithTag:", UIView(NSInteger)>(tag); }
  /// The first of its own subviews of that kind with that tag: what lies further down belongs to somebody
  /// else, who has tags as well.
  template <class View>
  View subviewWithTag(NSInteger tag) const;
  void addSubview(UIView view) const { send<"addSubview:", void(UIView)>(view); }
  /// Does nothing for a view that is no subview of it.
  void bringSubviewToFront(UIView view) const { send<"bringSubviewToFront:", void(UIView)>(view); }
  UIView superview() const { return send<"superview", UIView()>(); }
  /// A copy.
  NSArray subviews() const { return send<"subviews", NSArray()>(); }
  /// The controller that has it on screen; may be nil.
  inline UIViewController viewControllerForAncestor() const;
  void removeFromSuperview() const { send<"removeFromSuperview", void()>(); }
  /// At once, and needed or not.
  void layoutSubviews() const { send<"layoutSubviews", void()>(); }
  CALayer layer() const { return send<"layer", CALayer()>(); }
  /// Nil, or empty, without any.
  NSArray gestureRecognizers() const { return send<"gestureRecognizers", NSArray()>(); }
  void addGestureRecognizer(UIGestureRecognizer recognizer) const {
    send<"addGestureRecognizer:", void(UIGestureRecognizer)>(recognizer);
  }

  /// Seconds; touches are taken meanwhile. The completion is told whether the animation ran to its end.
  static void animate(double duration, double delay, Block<void()> animations, Block<void(bool)> completion) {
    constexpr NSUInteger kAllowUserInteraction = 2;
    sendToClass<"animateWithDuration:delay:options:animations:completion:",
                void(double, double, NSUInteger, Block<void()>, Block<void(bool)>)>(
        hostClass(), duration, delay, kAllowUserInteraction, animations, completion);
  }
};

template <class View>
View UIView::subviewWithTag(NSInteger tag) const {
  for (const Object subview : subviews()) {
    const auto view = subview.as<View>();
    if (view && view.tag() == tag) return view;
  }
  return {};
}

inline UIView UIGestureRecognizer::view() const { return send<"view", UIView()>(); }

/// Whether one of the views that the view lies in is of that class.
template <class View>
bool isWithin(UIView view) {
  while ((view = view.superview())) {
    if (view.as<View>()) return true;
  }
  return false;
}

class UILabel : public HostClass<"UILabel", UIView> {
 public:
  using HostClass::HostClass;
  void setText(NSString text) const { send<"setText:", void(NSString)>(text); }
  void setFont(UIFont font) const { send<"setFont:", void(UIFont)>(font); }
  void setTextColor(UIColor color) const { send<"setTextColor:", void(UIColor)>(color); }
  void setCenteredText() const {
    constexpr NSInteger kCenter = 1;
    send<"setTextAlignment:", void(NSInteger)>(kCenter);
  }
  void setNumberOfLines(NSInteger count) const { send<"setNumberOfLines:", void(NSInteger)>(count); }
  void setAdjustsFontSizeToFitWidth(bool adjusts) const {
    send<"setAdjustsFontSizeToFitWidth:", void(bool)>(adjusts);
  }
  /// Deprecated for long.
  void setAdjustsLetterSpacingToFitWidth(bool adjusts) const {
    trySend<"setAdjustsLetterSpacingToFitWidth:", void(bool)>(adjusts);
  }
  void setMinimumScaleFactor(double factor) const { send<"setMinimumScaleFactor:", void(double)>(factor); }
};

class UIImage : public HostClass<"UIImage"> {
 public:
  using HostClass::HostClass;
  /// Empty when the file is missing or no image.
  static Ref<UIImage> contentsOfFile(std::string_view path) {
    return makeObject<UIImage, "initWithContentsOfFile:">(NSString::from(path));
  }
  /// In its own colours also where the host would tint it, as in bars. Autoreleased.
  UIImage alwaysOriginal() const {
    constexpr NSInteger kAlwaysOriginal = 1;
    return send<"imageWithRenderingMode:", UIImage(NSInteger)>(kAlwaysOriginal);
  }
};

class UIImageView : public HostClass<"UIImageView", UIView> {
 public:
  using HostClass::HostClass;
  /// Takes no touches unless told to. A nil image leaves it empty.
  static Ref<UIImageView> make(UIImage image) { return makeObject<UIImageView, "initWithImage:">(image); }
};

class UIBlurEffect : public HostClass<"UIBlurEffect"> {
 public:
  using HostClass::HostClass;
  static UIBlurEffect dark() {
    constexpr NSInteger kDark = 2;
    return sendToClass<"effectWithStyle:", UIBlurEffect(NSInteger)>(hostClass(), kDark);
  }
};

/// Shows what is behind it through an effect.
class UIVisualEffectView : public HostClass<"UIVisualEffectView", UIView> {
 public:
  using HostClass::HostClass;
  static Ref<UIVisualEffectView> make(UIBlurEffect effect) {
    return makeObject<UIVisualEffectView, "initWithEffect:">(effect);
  }
};

class UITextField : public HostClass<"UITextField", UIView> {
 public:
  using HostClass::HostClass;
  NSString text() const { return send<"text", NSString()>(); }
  void setFont(UIFont font) const { send<"setFont:", void(UIFont)>(font); }
  void setPlaceholder(NSString text) const { send<"setPlaceholder:", void(NSString)>(text); }
  void setSecureTextEntry(bool secure) const { send<"setSecureTextEntry:", void(bool)>(secure); }
};

class UICollectionViewCell : public HostClass<"UICollectionViewCell", UIView> {
 public:
  using HostClass::HostClass;
  UIView contentView() const { return send<"contentView", UIView()>(); }
};

class UIScrollView : public HostClass<"UIScrollView", UIView> {
 public:
  using HostClass::HostClass;
};

class UICollectionView : public HostClass<"UICollectionView", UIScrollView> {
 public:
  using HostClass::HostClass;
  /// Whether there is an item at that place: a path that was good before the view was loaded anew may lead to
  /// none.
  bool hasItemAtIndexPath(NSIndexPath path) const {
    return path.section() < send<"numberOfSections", NSInteger()>() &&
           path.item() < send<"numberOfItemsInSection:", NSInteger(NSInteger)>(path.section());
  }
  /// Nil for one that is out of sight.
  UICollectionViewCell cellForItemAtIndexPath(NSIndexPath path) const {
    return send<"cellForItemAtIndexPath:", UICollectionViewCell(NSIndexPath)>(path);
  }
};

class UITabBar : public HostClass<"UITabBar", UIView> {
 public:
  using HostClass::HostClass;
  /// May be nil.
  NSArray items() const { return send<"items", NSArray()>(); }
};

/// A button in a bar. Its target is not retained.
class UIBarButtonItem : public HostClass<"UIBarButtonItem"> {
 public:
  using HostClass::HostClass;
  static Ref<UIBarButtonItem> withImage(UIImage image, Object target, SEL action) {
    constexpr NSInteger kPlain = 0;
    return makeObject<UIBarButtonItem, "initWithImage:style:target:action:">(image, kPlain, target, action);
  }
  /// With the system's own picture of a camera.
  static Ref<UIBarButtonItem> camera(Object target, SEL action) {
    constexpr NSInteger kCamera = 15;
    return makeObject<UIBarButtonItem, "initWithBarButtonSystemItem:target:action:">(kCamera, target, action);
  }
  void setTag(NSInteger tag) const { send<"setTag:", void(NSInteger)>(tag); }
  NSInteger tag() const { return send<"tag", NSInteger()>(); }
};

/// What a navigation bar shows for a controller.
class UINavigationItem : public HostClass<"UINavigationItem"> {
 public:
  using HostClass::HostClass;
  /// The outermost first; nil without any.
  NSArray rightBarButtonItems() const { return send<"rightBarButtonItems", NSArray()>(); }
  void setRightBarButtonItems(NSArray items) const { send<"setRightBarButtonItems:", void(NSArray)>(items); }
};

class UINavigationController;

class UIViewController : public HostClass<"UIViewController"> {
 public:
  using HostClass::HostClass;
  void present(UIViewController controller, bool animated) const {
    send<"presentViewController:animated:completion:", void(UIViewController, bool, Block<void()>)>(
        controller, animated, Block<void()>());
  }
  /// Made by `loadView` at first use.
  UIView view() const { return send<"view", UIView()>(); }
  UINavigationItem navigationItem() const { return send<"navigationItem", UINavigationItem()>(); }
  /// The one that it lies in, nil without.
  inline UINavigationController navigationController() const;
  bool isEditing() const { return send<"isEditing", bool()>(); }
  void setEditing(bool editing, bool animated) const {
    send<"setEditing:animated:", void(bool, bool)>(editing, animated);
  }
};

inline UIViewController UIView::viewControllerForAncestor() const {
  return trySend<"_viewControllerForAncestor", UIViewController()>();
}

class UINavigationController : public HostClass<"UINavigationController", UIViewController> {
 public:
  using HostClass::HostClass;
  UIView navigationBar() const { return send<"navigationBar", UIView()>(); }
  void popToRoot(bool animated) const { send<"popToRootViewControllerAnimated:", NSArray(bool)>(animated); }
};

inline UINavigationController UIViewController::navigationController() const {
  return send<"navigationController", UINavigationController()>();
}

class UIAlertAction : public HostClass<"UIAlertAction"> {
 public:
  using HostClass::HostClass;
  enum class Style : NSInteger { standard = 0, cancel = 1, destructive = 2 };

  static UIAlertAction make(NSString title, Style style, Block<void(UIAlertAction)> handler) {
    return sendToClass<"actionWithTitle:style:handler:",
                       UIAlertAction(NSString, Style, Block<void(UIAlertAction)>)>(hostClass(), title, style,
                                                                                   handler);
  }
};

class UIAlertController : public HostClass<"UIAlertController", UIViewController> {
 public:
  using HostClass::HostClass;
  enum class Style : NSInteger { actionSheet = 0, alert = 1 };

  static UIAlertController make(std::string_view title, std::string_view message, Style style) {
    return sendToClass<"alertControllerWithTitle:message:preferredStyle:",
                       UIAlertController(NSString, NSString, Style)>(hostClass(), NSString::from(title),
                                                                     NSString::from(message), style);
  }
  /// A button, and what it does once the alert is gone. What the callable captured is kept until then: never
  /// the alert itself, which would never be released.
  template <class Callable>
  void addAction(NSString title, Callable onTap) const {
    add(UIAlertAction::make(
        title, UIAlertAction::Style::standard,
        block<void(UIAlertAction)>([onTap = std::move(onTap)](UIAlertAction) { onTap(); })));
  }
  template <class Callable>
  void addAction(std::string_view title, Callable onTap) const {
    addAction(NSString::from(title), std::move(onTap));
  }
  /// A button that does nothing else. One at most; a second raises.
  void addCancelAction(NSString title = NSString::from("Cancel")) const {
    add(UIAlertAction::make(title, UIAlertAction::Style::cancel, Block<void(UIAlertAction)>()));
  }
  /// Alerts only, not action sheets.
  void addTextField(Block<void(UITextField)> configure) const {
    send<"addTextFieldWithConfigurationHandler:", void(Block<void(UITextField)>)>(configure);
  }
  /// Where an action sheet's popover points to. A pad raises when the sheet is presented without; elsewhere
  /// it does nothing.
  void setPopoverSource(UIView view) const {
    popover().send<"setSourceView:", void(UIView)>(view);
    popover().send<"setSourceRect:", void(CGRect)>(view.bounds());
  }
  void setPopoverSource(UIBarButtonItem item) const {
    popover().send<"setBarButtonItem:", void(UIBarButtonItem)>(item);
  }
  UITextField firstTextField() const {
    const auto fields = send<"textFields", NSArray()>();
    return fields.count() == 0 ? UITextField() : fields.objectAtIndex(0).as<UITextField>();
  }

 private:
  Object popover() const { return send<"popoverPresentationController", Object()>(); }
  void add(UIAlertAction action) const { send<"addAction:", void(UIAlertAction)>(action); }
};

class UIScreen : public HostClass<"UIScreen"> {
 public:
  using HostClass::HostClass;
  static UIScreen mainScreen() { return sendToClass<"mainScreen", UIScreen()>(hostClass()); }
  /// In points.
  CGRect bounds() const { return send<"bounds", CGRect()>(); }
};

/// Private, and nil on a phone without the hardware.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the host's own name
class _UITapticEngine : public HostClass<"_UITapticEngine"> {
 public:
  using HostClass::HostClass;
  void actuateFeedback(NSInteger feedback) const { trySend<"actuateFeedback:", void(NSInteger)>(feedback); }
};

class UIDevice : public HostClass<"UIDevice"> {
 public:
  using HostClass::HostClass;
  static UIDevice currentDevice() { return sendToClass<"currentDevice", UIDevice()>(hostClass()); }
  bool isPad() const {
    constexpr NSInteger kPad = 1;
    return send<"userInterfaceIdiom", NSInteger()>() == kPad;
  }
  /// `UIDeviceOrientation`: 0 while it is not known.
  NSInteger orientation() const { return send<"orientation", NSInteger()>(); }
  _UITapticEngine tapticEngine() const { return trySend<"_tapticEngine", _UITapticEngine()>(); }
  /// The tick that tells of a lock set or removed, on a phone with the hardware.
  void tick() const {
    constexpr NSInteger kTick = 1001;
    tapticEngine().actuateFeedback(kTick);
  }
};

class UIApplication : public HostClass<"UIApplication"> {
 public:
  using HostClass::HostClass;
  /// Nil before the app has launched.
  static UIApplication sharedApplication() {
    return sendToClass<"sharedApplication", UIApplication()>(hostClass());
  }
  UIView keyWindow() const { return send<"keyWindow", UIView()>(); }
};

}  // namespace velvault12
