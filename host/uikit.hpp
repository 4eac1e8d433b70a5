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
  inline UIView view() const;
};

/// A new recognizer of that kind. The target is not retained.
template <class Recognizer>
Ref<Recognizer> makeRecognizer(Object target, SEL action) {
  return makeObject<Recognizer, "initWithTarget:action:">(target, action);
}

/// Of one finger's single tap.
class UITapGestureRecognizer : public HostClass<"UITapGestureRecognizer", UIGestureRecognizer> {
 public:
  using HostClass::HostClass;
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
  void setBackgroundColor(UIColor color) const { send<"setBackgroundColor:", void(UIColor)>(color); }
  void setClipsToBounds(bool clips) const { send<"setClipsToBounds:", void(bool)>(clips); }
  void setUserInteractionEnabled(bool enabled) const {
    send<"setUserInteractionEnabled:", void(bool)>(enabled);
  }
  void setTag(NSInteger tag) const { send<"setTag:", void(NSInteger)>(tag); }
  /// The receiver or the first of its descendants with that tag.
  UIView viewWithTag(NSInteger tag) const { return send<"viewWithTag:", UIView(NSInteger)>(tag); }
  void addSubview(UIView view) const { send<"addSubview:", void(UIView)>(view); }
  UIView superview() const { return send<"superview", UIView()>(); }
  /// A copy.
  NSArray subviews() const { return send<"subviews", NSArray()>(); }
  /// The controller that has it on screen; may be nil.
  inline UIViewController viewControllerForAncestor() const;
  void removeFromSuperview() const { send<"removeFromSuperview", void()>(); }
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
};

class UIImageView : public HostClass<"UIImageView", UIView> {
 public:
  using HostClass::HostClass;
  /// Takes no touches unless told to. A nil image leaves it empty.
  static Ref<UIImageView> make(UIImage image) { return makeObject<UIImageView, "initWithImage:">(image); }
};

class UITextField : public HostClass<"UITextField", UIView> {
 public:
  using HostClass::HostClass;
  NSString text() const { return send<"text", NSString()>(); }
  void setPlaceholder(NSString text) const { send<"setPlaceholder:", void(NSString)>(text); }
  void setSecureTextEntry(bool secure) const { send<"setSecureTextEntry:", void(bool)>(secure); }
};

class UICollectionViewCell : public HostClass<"UICollectionViewCell", UIView> {
 public:
  using HostClass::HostClass;
};

class UICollectionView : public HostClass<"UICollectionView", UIView> {
 public:
  using HostClass::HostClass;
};

class UIViewController : public HostClass<"UIViewController"> {
 public:
  using HostClass::HostClass;
  void present(UIViewController controller, bool animated) const {
    send<"presentViewController:animated:completion:", void(UIViewController, bool, Block<void()>)>(
        controller, animated, Block<void()>());
  }
};

inline UIViewController UIView::viewControllerForAncestor() const {
  return trySend<"_viewControllerForAncestor", UIViewController()>();
}

class UINavigationController : public HostClass<"UINavigationController", UIViewController> {
 public:
  using HostClass::HostClass;
  void popToRoot(bool animated) const { send<"popToRootViewControllerAnimated:", NSArray(bool)>(animated); }
};

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
  /// One cancel action at most; a second raises.
  void addAction(UIAlertAction action) const { send<"addAction:", void(UIAlertAction)>(action); }
  /// Alerts only, not action sheets.
  void addTextField(Block<void(UITextField)> configure) const {
    send<"addTextFieldWithConfigurationHandler:", void(Block<void(UITextField)>)>(configure);
  }
  /// Where an action sheet's popover points to. A pad raises when the sheet is presented without; elsewhere
  /// it does nothing.
  void setPopoverSource(UIView view) const {
    const auto popover = send<"popoverPresentationController", Object()>();
    popover.send<"setSourceView:", void(UIView)>(view);
    popover.send<"setSourceRect:", void(CGRect)>(view.bounds());
  }
  UITextField firstTextField() const {
    const auto fields = send<"textFields", NSArray()>();
    return fields.count() == 0 ? UITextField() : fields.objectAtIndex(0).as<UITextField>();
  }
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
