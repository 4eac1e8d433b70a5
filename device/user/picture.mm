#include "device/user/picture.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#import "device/frameworks/UIKit/NSStringDrawing.h"
#import "device/frameworks/UIKit/UIKit.h"
#include "device/user/screen.hpp"
#include "device/user/xml.hpp"

namespace device {
namespace {

constexpr CGFloat kBezel = 12;
constexpr CGFloat kScreenCorner = 40;
constexpr CGFloat kBlur = 9;
constexpr CGFloat kBorderInset = 7;
/// How small a button's title is made to fit.
constexpr CGFloat kSmallestTitle = 0.5;

/// The attributes that fill a shape.
std::string fill(UIColor* color) {
  CGFloat red = 0, green = 0, blue = 0, alpha = 0;
  [color getRed:&red green:&green blue:&blue alpha:&alpha];
  const auto byte = [](CGFloat part) { return std::to_string(std::lround(255 * part)); };
  return attribute("fill", "rgb(" + byte(red) + "," + byte(green) + "," + byte(blue) + ")") +
         (alpha < 1 ? attribute("fill-opacity", alpha) : "");
}

std::string attributesOf(CGRect place) {
  return attribute("x", place.origin.x) + attribute("y", place.origin.y) +
         attribute("width", place.size.width) + attribute("height", place.size.height);
}

std::string rectangle(CGRect place, CGFloat radius, const std::string& look) {
  return "<rect" + attributesOf(place) + (radius > 0 ? attribute("rx", radius) : "") + look + "/>";
}

// Text, as wide as the phone measures it.

struct Text {
  NSString* text;
  UIFont* font;
  UIColor* color;
  NSInteger alignment = NSTextAlignmentLeft;
  /// How small it may be made to fit, 1 for not at all.
  CGFloat smallestScale = 1;
};

CGFloat widthOf(NSString* text, UIFont* font) {
  constexpr CGFloat kNoLimit = std::numeric_limits<CGFloat>::max();
  return [text sizeWithFont:font constrainedToSize:{kNoLimit, kNoLimit} lineBreakMode:0].width;
}

UIFont* fittingFont(const Text& text, CGFloat width) {
  const CGFloat needed = widthOf(text.text, text.font);
  if (needed <= width || text.smallestScale >= 1) return text.font;
  return [text.font fontWithSize:[text.font pointSize] * std::max(width / needed, text.smallestScale)];
}

NSString* cutOff(NSString* text, UIFont* font, CGFloat width) {
  // What was made to fit is wider by rounding.
  if (widthOf(text, font) < width + 1) return text;
  for (NSUInteger length = [text length]; length > 0;) {
    length = [text rangeOfComposedCharacterSequenceAtIndex:length - 1].location;
    NSString* cut = [[text substringToIndex:length] stringByAppendingString:@"…"];
    if (widthOf(cut, font) <= width) return cut;
  }
  return @"";
}

std::string svg(const Text& text, CGRect place) {
  if (![text.text length]) return "";
  UIFont* font = fittingFont(text, place.size.width);
  const std::string shown = xml(textOf(cutOff(text.text, font, place.size.width)));
  if (shown.empty()) return "";
  const CGFloat size = [font pointSize];
  const bool isCentered = text.alignment == NSTextAlignmentCenter;
  const bool isRight = text.alignment == NSTextAlignmentRight;
  const CGFloat x = isCentered ? CGRectGetCenter(place).x : isRight ? CGRectGetMaxX(place) : place.origin.x;
  // Half of a capital letter's height below the middle.
  const CGFloat y = CGRectGetCenter(place).y + 0.36 * size;
  return "<text" + attribute("x", x) + attribute("y", y) + attribute("font-size", size) + fill(text.color) +
         (isCentered || isRight ? attribute("text-anchor", isCentered ? "middle" : "end") : "") +
         ([font _isBold] ? attribute("font-weight", "bold") : "") + ">" + shown + "</text>";
}

std::string content(UILabel* label, CGRect place) {
  const CGFloat scale = [label adjustsFontSizeToFitWidth] ? [label minimumScaleFactor] : 1;
  return svg({[label text], [label font], [label textColor], [label textAlignment], scale}, place);
}

std::string content(UIButton* button, CGRect place) {
  UIColor* color = [button isEnabled] ? [button currentTitleColor] : [UIColor colorWithWhite:0.6 alpha:1];
  UIFont* font = [UIFont systemFontOfSize:17];
  return svg({[button currentTitle], font, color, NSTextAlignmentCenter, kSmallestTitle}, place);
}

std::string content(UITextField* field, CGRect place) {
  std::string border;
  if ([field borderStyle] == UITextBorderStyleRoundedRect) {
    constexpr CGFloat kHeight = 30;
    place = {{place.origin.x, CGRectGetCenter(place).y - kHeight / 2}, {place.size.width, kHeight}};
    border = rectangle(place, 5, R"( fill="white" stroke="#c8c8cc")");
    place = {{place.origin.x + kBorderInset, place.origin.y},
             {place.size.width - 2 * kBorderInset, place.size.height}};
  }
  NSString* text = [field text];
  UIColor* color = [field textColor];
  if (![text length]) {
    text = [field placeholder];
    color = [UIColor colorWithWhite:0.75 alpha:1];
  } else if ([field isSecureTextEntry]) {
    text = [@"" stringByPaddingToLength:[text length] withString:@"•" startingAtIndex:0];
  }
  return border + svg({text, [field font], color, [field textAlignment]}, place);
}

// Images.

/// Of the file for the sharpest screen that lies beside it.
NSData* sharpestData(UIImage* image) {
  NSString* path = [image _path];
  NSString* stem = [path stringByDeletingPathExtension];
  for (NSString* scale in @[ @"@3x", @"@2x" ]) {
    NSString* sharper =
        [[stem stringByAppendingString:scale] stringByAppendingPathExtension:[path pathExtension]];
    if (NSData* data = [NSData dataWithContentsOfFile:sharper]) return data;
  }
  return [image _data];
}

std::string content(UIImage* image, CGRect place) {
  if (UIColor* color = [image _color]) return rectangle(place, 0, fill(color));
  NSData* data = sharpestData(image);
  if (![data length]) return "";
  const bool isPng = *static_cast<const unsigned char*>([data bytes]) == 0x89;
  return "<image" + attributesOf(place) + R"( preserveAspectRatio="none" href="data:image/)" +
         (isPng ? "png" : "jpeg") + ";base64," + textOf([data base64EncodedStringWithOptions:0]) + "\"/>";
}

std::string contentOf(UIView* view, CGRect place) {
  if ([view isKindOfClass:[UILabel class]]) return content(static_cast<UILabel*>(view), place);
  if ([view isKindOfClass:[UIButton class]]) return content(static_cast<UIButton*>(view), place);
  if ([view isKindOfClass:[UITextField class]]) return content(static_cast<UITextField*>(view), place);
  if (![view isKindOfClass:[UIImageView class]]) return "";
  return content([static_cast<UIImageView*>(view) image], place);
}

std::string tint(UIBlurEffect* effect) {
  const bool isDark = [effect _style] == UIBlurEffectStyleDark;
  return fill([UIColor colorWithWhite:isDark ? 0.1 : 1 alpha:isDark ? 0.55 : 0.6]);
}

/// Nil for what is no blurring glass.
UIBlurEffect* blurOf(UIView* view) {
  if (![view isKindOfClass:[UIVisualEffectView class]]) return nil;
  UIVisualEffect* effect = [static_cast<UIVisualEffectView*>(view) effect];
  return [effect isKindOfClass:[UIBlurEffect class]] ? static_cast<UIBlurEffect*>(effect) : nil;
}

std::string matrix(CGAffineTransform t, CGPoint center) {
  return "matrix(" +
         numbers({t.a, t.b, t.c, t.d, center.x + t.tx - t.a * center.x - t.c * center.y,
                  center.y + t.ty - t.b * center.x - t.d * center.y}) +
         ")";
}

bool isUpright(CGAffineTransform t) {
  return t.a == 1 && t.b == 0 && t.c == 0 && t.d == 1 && t.tx == 0 && t.ty == 0;
}

/// Paints views backmost first, in the screen's coordinates.
class Painter {
 public:
  std::string paintedWindows() {
    paintWindows();
    return std::move(svg_);
  }

 private:
  void paintWindows() {
    for (UIWindow* window in windowsOnScreen()) paint(window, CGPointZero);
  }

  /// In a parent whose own origin lies at that point.
  void paint(UIView* view, CGPoint origin) {
    const UIViewLook look = [view _shownLook];
    if ([view isHidden] || look.alpha < kTransparent || isNotBehind(view)) return;
    const CGSize size = look.bounds.size;
    const CGPoint center = {origin.x + look.center.x, origin.y + look.center.y};
    const CGRect place = {{center.x - size.width / 2, center.y - size.height / 2}, size};
    const std::size_t before = svg_.size();
    svg_ += "<g" + attributesOf(view, look, center, place) + ">";
    const std::size_t opened = svg_.size();
    const CGFloat radius = [[view layer] cornerRadius];
    if (UIBlurEffect* effect = blurOf(view)) paintBlur(view, effect, place, radius);
    if (isInReach(place)) {
      if (UIColor* color = [view backgroundColor]) svg_ += rectangle(place, radius, fill(color));
    }
    if ([view clipsToBounds]) openClip(place, radius);
    if (isInReach(place)) svg_ += contentOf(view, place);
    const CGPoint inside = {place.origin.x - look.bounds.origin.x, place.origin.y - look.bounds.origin.y};
    for (UIView* subview in [view subviews]) paint(subview, inside);
    if ([view clipsToBounds]) svg_ += "</g>";
    if (blurring_ && svg_.size() == opened) return svg_.resize(before);
    svg_ += "</g>\n";
  }

  std::string attributesOf(UIView* view, const UIViewLook& look, CGPoint center, CGRect place) const {
    std::string attributes;
    if (!blurring_) {
      attributes += attribute("class", textOf(NSStringFromClass([view class])));
      if (const std::string text = textOf(view); !text.empty()) attributes += attribute("aria-label", text);
      attributes += attribute("data-frame",
                              numbers({place.origin.x, place.origin.y, place.size.width, place.size.height}));
    }
    if (look.alpha < 1) attributes += attribute("opacity", look.alpha);
    if (!isUpright(look.transform)) attributes += attribute("transform", matrix(look.transform, center));
    return attributes;
  }

  void openClip(CGRect place, CGFloat radius) {
    const std::string id = "clip" + std::to_string(++clips_);
    svg_ += "<clipPath" + attribute("id", id) + ">" + rectangle(place, radius, "") + "</clipPath><g" +
            attribute("clip-path", clip()) + ">";
  }

  /// The one opened last.
  std::string clip() const { return "url(#clip" + std::to_string(clips_) + ")"; }

  // What is behind glass is painted once more, blurred; without the glass in it, of which each would paint
  // all of that behind it again.

  void paintBlur(UIView* view, UIBlurEffect* effect, CGRect place, CGFloat radius) {
    openClip(place, radius);
    blurring_ = view;
    blurred_ = place;
    // Clipped twice: what is around the glass does not run into it, nor the other way round.
    svg_ += "<g" + attribute("filter", "url(#blur)") + "><g" + attribute("clip-path", clip()) + ">";
    paintWindows();
    svg_ += "</g></g></g>";
    blurring_ = nil;
    isBehind_ = true;
    svg_ += rectangle(place, radius, tint(effect));
  }

  bool isNotBehind(UIView* view) {
    if (!blurring_) return false;
    if (view == blurring_) isBehind_ = false;
    return !isBehind_ || blurOf(view);
  }

  bool isInReach(CGRect place) const { return !blurring_ || CGRectIntersectsRect(place, blurred_); }

  std::string svg_;
  int clips_ = 0;
  /// The glass that is being painted.
  UIView* blurring_ = nil;
  CGRect blurred_{};
  bool isBehind_ = true;
};

/// In the colour that stands out from what is behind.
constexpr std::string_view kStatusBar =
    R"(<g class="StatusBar" fill="white" style="mix-blend-mode:difference">
<text x="54" y="30" font-size="15" font-weight="bold" text-anchor="middle">9:41</text>
<path d="M296 30v-4h3v4zM301 30v-6h3v6zM306 30v-8h3v8zM311 30v-10h3v10z"/>
<rect x="321.5" y="20.5" width="22" height="9" rx="2.5" fill="none" stroke="white"/>
<rect x="323" y="22" width="19" height="6" rx="1.5"/><rect x="345" y="23" width="1.5" height="4" rx="0.7"/>
<rect x="120.5" y="800" width="134" height="5" rx="2.5"/></g>
)";

constexpr std::string_view kNotch =
    R"(<path d="M78 -1h219c-5 0 -7 3 -7 7v4a20 20 0 0 1 -20 20h-165a20 20 0 0 1 -20 -20v-4c0 -4 -2 -7 -7 -7z"/>)";

/// The system's sheet that asks for the owner, but for the reason. What is behind it is dimmed.
constexpr std::string_view kOwnerSheet = R"svg(<rect width="375" height="812" fill-opacity="0.4"/>
<rect x="52" y="296" width="271" height="224" rx="14" fill="white"/>
<path transform="translate(167.5 314) scale(1.67)" fill="none" stroke="#0a7aff" stroke-width="1.4"
  stroke-linecap="round" d="M1 7v-3a3 3 0 0 1 3 -3h3M17 1h3a3 3 0 0 1 3 3v3M23 17v3a3 3 0 0 1 -3 3h-3
  M7 23h-3a3 3 0 0 1 -3 -3v-3M8 8v2M16 8v2M12.4 8v5.5h-1M8.3 16.5q3.7 3 7.4 0"/>
<g font-size="17" text-anchor="middle"><text x="187.5" y="384" font-weight="bold">Face ID or Passcode</text>
<path d="M52 432.5h271M52 476.5h271" stroke="#bfbfbf" stroke-width="0.5"/>
<g fill="#0a7aff"><text x="187.5" y="460">Enter Passcode</text><text x="187.5" y="504">Cancel</text></g></g>
)svg";

std::string ownerSheet(const std::string& reason) {
  NSString* text = [NSString stringWithUTF8String:reason.c_str()];
  return "<g" + attribute("class", "OwnerSheet") + attribute("aria-label", reason) + ">" +
         std::string(kOwnerSheet) +
         svg({text, [UIFont systemFontOfSize:13], [UIColor blackColor], NSTextAlignmentCenter,
              kSmallestTitle},
             {{64, 394}, {247, 26}}) +
         "</g>\n";
}

}  // namespace

std::string screenPicture(const std::string& ownerRequest) {
  const CGRect screen = [[UIScreen mainScreen] bounds];
  const CGRect phone = {{-kBezel, -kBezel},
                        {screen.size.width + 2 * kBezel, screen.size.height + 2 * kBezel}};
  const std::string windows = Painter().paintedWindows();
  std::string svg =
      R"(<svg xmlns="http://www.w3.org/2000/svg")" +
      attribute("viewBox", numbers({phone.origin.x, phone.origin.y, phone.size.width, phone.size.height})) +
      " font-family=\"Helvetica, Arial, sans-serif\">\n";
  svg += R"(<filter id="blur"><feGaussianBlur)" + attribute("stdDeviation", kBlur) + "/></filter>\n";
  svg += "<clipPath id=\"screen\">" + rectangle(screen, kScreenCorner, "") + "</clipPath>\n";
  svg += rectangle(phone, kScreenCorner + kBezel, R"( fill="#0b0b0d")");
  svg += "<g style=\"isolation:isolate\" clip-path=\"url(#screen)\">" + rectangle(screen, 0, "") + "\n";
  if (!windows.empty()) svg += windows + std::string(kStatusBar);
  if (!ownerRequest.empty()) svg += ownerSheet(ownerRequest);
  return svg + std::string(kNotch) + "</g>\n</svg>\n";
}

}  // namespace device
