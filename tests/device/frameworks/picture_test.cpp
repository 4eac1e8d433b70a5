// The picture of the screen: which elements it has, where, and in which order. This process is an app whose
// screen is empty.

#include "device/user/picture.hpp"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

constexpr auto kNowhere = std::string::npos;

class Picture : public PlainPhone {
 protected:
  Picture() { phone_.launchHere(device::kSpringBoard); }

  template <class View = UIView>
  static View add(CGRect frame, UIView parent = UIView(), std::string_view text = "") {
    const View made = makeObject<View, "initWithFrame:">(frame).autorelease();
    if (!text.empty()) ask<"setAccessibilityLabel:">(made, NSString::from(text));
    (parent ? parent : UIView(UIApplication::sharedApplication().keyWindow())).addSubview(made);
    return made;
  }
  static UILabel addLabel(NSString text, double width) {
    const auto label = add<UILabel>({{0, 100}, {width, 20}});
    label.setText(text);
    label.setFont(UIFont::systemFontOfSize(10));
    return label;
  }

  /// The screen's picture, which is well formed.
  static std::string taken() {
    std::string svg = device::screenPicture();
    const auto data =
        ask<"dataWithBytes:length:", Object>(hostType<"NSData">(), svg.data(), NSUInteger{svg.size()});
    const auto parser = makeObject<HostClass<"NSXMLParser">, "initWithData:">(data);
    EXPECT_TRUE((ask<"parse", ObjcBool>(parser.get()))) << svg;
    return svg;
  }
  /// Where the element stands in the document, which says what is in front.
  static std::size_t position(std::string_view svg, std::string_view text) {
    return svg.find("aria-label=\"" + std::string(text) + '"');
  }
  /// Its place on the screen, "" without it.
  static std::string place(std::string_view svg, std::string_view text) {
    constexpr std::string_view kFrame = "data-frame=\"";
    const std::size_t element = position(svg, text);
    if (element == kNowhere) return "";
    const std::size_t start = svg.find(kFrame, element) + kFrame.size();
    return std::string(svg.substr(start, svg.find('"', start) - start));
  }
  /// The document from an element on.
  static std::string from(std::string_view svg, std::string_view text) {
    return std::string(svg.substr(std::min(position(svg, text), svg.size())));
  }
  static std::size_t count(std::string_view svg, std::string_view text) {
    std::size_t found = 0;
    for (std::size_t at = 0; (at = svg.find(text, at)) != kNowhere; at += text.size()) ++found;
    return found;
  }
};

TEST_F(Picture, HasWhatIsOnScreenAtItsPlaceAndInItsOrder) {
  const UIView scrolled = add({{100, 200}, {50, 50}});
  ask<"setBounds:">(scrolled, CGRect{{0, 30}, {50, 50}});
  const UIView inner = add({{5, 40}, {10, 10}}, scrolled, "Inner");
  inner.setBackgroundColor(UIColor::white(0, 0.5));
  const UIView turned = add({{10, 10}, {40, 20}}, UIView(), "Turned");
  turned.setTransform({0, 1, -1, 0, 0, 0});
  add({{0, 0}, {9, 9}}, UIView(), "Hidden").send<"setHidden:", void(ObjcBool)>(true);
  add({{0, 0}, {9, 9}}, UIView(), "Transparent").setAlpha(0);
  const UIView cover = add({{0, 0}, {375, 812}}, UIView(), "Cover");
  cover.setBackgroundColor(UIColor::whiteColor());

  const std::string svg = taken();
  EXPECT_EQ(place(svg, "Inner"), "105 210 10 10");
  constexpr std::string_view kInner =
      R"-(><rect x="105" y="210" width="10" height="10" fill="rgb(0,0,0)" fill-opacity="0.5"/>)-";
  EXPECT_NE(from(svg, "Inner").find(kInner), kNowhere);
  EXPECT_NE(from(svg, "Turned").find("matrix(0 1 -1 0 50 -10)"), kNowhere) << "around its middle";
  EXPECT_EQ(place(svg, "Hidden"), "");
  EXPECT_EQ(place(svg, "Transparent"), "");
  EXPECT_LT(position(svg, "Turned"), position(svg, "Cover")) << "what covers is painted later";

  device::User::here().leaveApp();
  EXPECT_EQ(count(taken(), "data-frame"), 0u);
  EXPECT_EQ(count(taken(), "StatusBar"), 0u);
}

TEST_F(Picture, IsADocumentWhateverIsWritten) {
  // The padlock's two halves, of which the first is left alone.
  const auto text =
      ask<"substringToIndex:", NSString>(NSString::from("<\"&\x01é\U0001F512\U0001F512"), NSUInteger{8});
  addLabel(text, 375);
  EXPECT_EQ(count(taken(), "&lt;&quot;&amp;\uFFFDé\U0001F512\uFFFD"), 2u) << "the text, and what it says";
}

TEST_F(Picture, CutsTextOffWhereThePhoneDoes) {
  // Ten letters of 5.5 points.
  const NSString text = NSString::from("abcdefghij");
  addLabel(text, 55);
  EXPECT_EQ(count(taken(), ">abcdefghij</text>"), 1u);
  const UILabel narrow = addLabel(text, 30);
  EXPECT_EQ(count(taken(), ">abcd…</text>"), 1u);
  narrow.setAdjustsFontSizeToFitWidth(true);
  narrow.setMinimumScaleFactor(0.5);
  narrow.setCenteredText();
  EXPECT_EQ(count(taken(), R"(<text x="15" y="111.9636" font-size="5.4545")"), 1u)
      << "made smaller, in the middle";
  narrow.setMinimumScaleFactor(0.9);
  EXPECT_EQ(count(taken(), ">abcde…</text>"), 1u) << "smaller and cut off";

  const auto field = add<UITextField>({{0, 0}, {200, 30}});
  field.setPlaceholder(NSString::from("Secret"));
  EXPECT_EQ(count(taken(), ">Secret</text>"), 1u);
  ask<"setText:">(field, NSString::from("word"));
  field.setSecureTextEntry(true);
  EXPECT_EQ(count(taken(), ">••••</text>"), 1u);
  EXPECT_EQ(count(taken(), "word"), 0u);
}

TEST_F(Picture, ClipsToRoundCorners) {
  const UIView round = add({{10, 20}, {50, 50}}, UIView(), "Round");
  round.layer().setCornerRadius(5);
  add({{-5, 0}, {100, 9}}, round, "Inside");
  constexpr std::string_view kClipped = "<g clip-path=\"url(#clip1)\">";
  EXPECT_EQ(count(taken(), kClipped), 0u);
  round.setClipsToBounds(true);
  const std::string svg = taken();
  EXPECT_EQ(
      count(svg, R"(<clipPath id="clip1"><rect x="10" y="20" width="50" height="50" rx="5"/></clipPath>)"),
      1u);
  EXPECT_LT(svg.find(kClipped), position(svg, "Inside"));
}

TEST_F(Picture, HasImagesAsSharpAsTheyAre) {
  const std::string png = "\x89PNG\r\n\x1a\n";
  for (const auto* const name : {"lock.png", "lock@2x.png"}) {
    std::ofstream(phone_.onDisk("/var/mobile") / name) << png << (name[4] == '@' ? "sharp" : "");
  }
  const auto view = UIImageView::make(UIImage::contentsOfFile("/var/mobile/lock.png").get());
  view->setFrame({{1, 2}, {3, 4}});
  add({{0, 0}, {9, 9}}).addSubview(view.get());
  const std::string svg = taken();
  EXPECT_EQ(place(svg, "lock"), "1 2 3 4");
  EXPECT_EQ(
      count(
          svg,
          R"(width="3" height="4" preserveAspectRatio="none" href="data:image/png;base64,iVBORw0KGgpzaGFycA==")"),
      1u);
}

TEST_F(Picture, ShowsAnAnimatedViewAsItIsAtThisMoment) {
  const UIView view = add({{0, 0}, {10, 10}}, UIView(), "View");
  view.setAlpha(0.5);
  UIView::animate(60, 60, block<void()>([&] {
                    view.setAlpha(1);
                    view.setFrame({{50, 50}, {10, 10}});
                  }),
                  Block<void(bool)>());
  const std::string before = taken();
  EXPECT_EQ(place(before, "View"), "0 0 10 10");
  EXPECT_NE(from(before, "View").find("opacity=\"0.5\""), kNowhere);
  UIView::animate(0.01, 0, block<void()>([&] { view.setAlpha(0.75); }), Block<void(bool)>());
  const std::string after = device::User::here().picture();
  EXPECT_NE(from(after, "View").find("opacity=\"0.75\""), kNowhere) << "a user waits until nothing moves";
}

TEST_F(Picture, BlursWhatIsBehindGlass) {
  add({{0, 0}, {100, 100}}, UIView(), "Behind").setBackgroundColor(UIColor::white(0.25, 1));
  const auto glass = [](CGRect frame) {
    const auto effect = ask<"effectWithStyle:", Object>(hostType<"UIBlurEffect">(), NSInteger{2});
    const auto view = makeObject<HostClass<"UIVisualEffectView", UIView>, "initWithEffect:">(effect);
    view->setFrame(frame);
    UIView(UIApplication::sharedApplication().keyWindow()).addSubview(view.get());
    return UIView(view.get());
  };
  const UIView view = glass({{10, 10}, {50, 50}});
  glass({{20, 20}, {50, 50}});
  add({{0, 0}, {100, 100}}, UIView(), "InFront").setBackgroundColor(UIColor::white(0.75, 1));
  EXPECT_TRUE(raises([&] { view.addSubview(makeObject<UIView>().get()); }));
  add({{0, 0}, {5, 5}}, ask<"contentView", UIView>(view), "Within");

  const std::string svg = taken();
  constexpr std::string_view kBehind = "fill=\"rgb(64,64,64)\"", kInFront = "fill=\"rgb(191,191,191)\"";
  EXPECT_EQ(count(svg, kBehind), 3u) << "sharp, and blurred once for each glass";
  EXPECT_EQ(count(svg, kInFront), 1u);
  EXPECT_EQ(count(svg, "filter=\"url(#blur)\""), 2u);
  EXPECT_EQ(count(svg, "aria-label=\"Behind\""), 1u);
  EXPECT_GT(position(svg, "Within"), svg.find("fill-opacity=\"0.55\"")) << "in front of its effect";
}

}  // namespace
}  // namespace velvault12
