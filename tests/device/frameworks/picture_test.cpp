// The picture of the screen: which elements it has, where, and in which order.

#include "device/user/picture.hpp"

#include <gtest/gtest.h>

#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

class Picture : public EmptyScreen {
 protected:
  /// Whether the screen's picture, which is well formed, has these texts in this order.
  static ::testing::AssertionResult has(std::initializer_list<std::string_view> texts) {
    const std::string svg = device::screenPicture("");
    const auto data =
        ask<"dataWithBytes:length:", Object>(hostType<"NSData">(), svg.data(), NSUInteger{svg.size()});
    const auto parser = makeObject<HostClass<"NSXMLParser">, "initWithData:">(data);
    EXPECT_TRUE((ask<"parse", ObjcBool>(parser.get()))) << svg;
    std::size_t at = 0;
    for (const std::string_view text : texts) {
      at = svg.find(text, at);
      if (at == std::string::npos) return ::testing::AssertionFailure() << "no " << text << " in\n" << svg;
      at += text.size();
    }
    return ::testing::AssertionSuccess();
  }
};

TEST_F(Picture, HasWhatIsOnScreenAtItsPlaceAndInItsOrder) {
  const UIView scrolled = add({{100, 200}, {50, 50}});
  ask<"setBounds:">(scrolled, CGRect{{0, 30}, {50, 50}});
  add({{5, 40}, {10, 10}}, "Inner", scrolled).setBackgroundColor(UIColor::white(0, 0.5));
  add({{10, 10}, {40, 20}}, "Turned").setTransform({0, 1, -1, 0, 0, 0});
  add({{0, 0}, {9, 9}}, "Hidden").send<"setHidden:", void(ObjcBool)>(true);
  add({{0, 0}, {9, 9}}, "Transparent").setAlpha(0);
  add({{0, 0}, {375, 812}}, "Cover").setBackgroundColor(UIColor::whiteColor());
  const UIView round = add({{10, 20}, {50, 50}}, "Round");
  round.layer().setCornerRadius(5);
  add({{-5, 0}, {100, 9}}, "Inside", round);

  EXPECT_TRUE(has({R"("Inner" data-frame="105 210 10 10"><rect x="105" y="210" width="10" height="10")",
                   R"-(fill="rgb(0,0,0)" fill-opacity="0.5")-", "Turned", "matrix(0 1 -1 0 50 -10)", "Cover",
                   "Round"}));
  for (const auto* const text : {"Hidden", "Transparent", "clip1"}) EXPECT_FALSE(has({text}));
  round.setClipsToBounds(true);
  EXPECT_TRUE(has({R"(id="clip1"><rect x="10" y="20" width="50" height="50" rx="5"/></clipPath>)",
                   "clip-path=\"url(#clip1)\"", "Inside"}));

  device::User::here().leaveApp();
  for (const auto* const text : {"data-frame", "StatusBar"}) EXPECT_FALSE(has({text}));
}

TEST_F(Picture, HasTextAsThePhoneWritesIt) {
  // The padlock's two halves, of which the first is left alone.
  const auto halved = NSString::from("<\"&\x01é\U0001F512\U0001F512");
  const auto label = add<UILabel>({{0, 100}, {55, 20}});
  label.setFont(UIFont::systemFontOfSize(10));
  label.setText(ask<"substringToIndex:", NSString>(halved, NSUInteger{8}));
  constexpr std::string_view kWritten = "&lt;&quot;&amp;\uFFFDé\U0001F512\uFFFD";
  EXPECT_TRUE(has({kWritten, kWritten})) << "the text, and what it says";
  // Ten letters of 5.5 points.
  label.setText(NSString::from("abcdefghij"));
  EXPECT_TRUE(has({">abcdefghij</text>"}));
  label.setFrame({{0, 100}, {30, 20}});
  EXPECT_TRUE(has({">abcd…</text>"}));
  label.setAdjustsFontSizeToFitWidth(true);
  label.setMinimumScaleFactor(0.5);
  label.setCenteredText();
  EXPECT_TRUE(has({R"(<text x="15" y="111.9636" font-size="5.4545")"})) << "made smaller, in the middle";
  label.setMinimumScaleFactor(0.9);
  EXPECT_TRUE(has({">abcde…</text>"})) << "smaller and cut off";

  const auto field = add<UITextField>({{0, 0}, {200, 30}});
  field.setPlaceholder(NSString::from("Secret"));
  EXPECT_TRUE(has({">Secret</text>"}));
  ask<"setText:">(field, NSString::from("word"));
  field.setSecureTextEntry(true);
  EXPECT_TRUE(has({">••••</text>"}));
  EXPECT_FALSE(has({"word"}));
}

TEST_F(Picture, HasImagesAsSharpAsTheyAre) {
  const std::string png = "\x89PNG\r\n\x1a\n";
  write("/var/mobile/lock.png", png);
  write("/var/mobile/lock@2x.png", png + "sharp");
  const auto view = UIImageView::make(UIImage::contentsOfFile("/var/mobile/lock.png").get());
  view->setFrame({{1, 2}, {3, 4}});
  screen().addSubview(view.get());
  EXPECT_TRUE(has({R"("lock" data-frame="1 2 3 4")", R"(width="3" height="4" preserveAspectRatio="none")",
                   R"(href="data:image/png;base64,iVBORw0KGgpzaGFycA==")"}));
}

TEST_F(Picture, ShowsAnAnimatedViewAsItIsAtThisMoment) {
  const UIView view = add({{0, 0}, {10, 10}}, "View");
  UIView::animate(60, 60, block<void()>([&] { view.setAlpha(0.5); }), Block<void(bool)>());
  EXPECT_TRUE(has({R"("View" data-frame="0 0 10 10">)"}));
  UIView::animate(0.3, 0, block<void()>([&] { view.setAlpha(0.75); }), Block<void(bool)>());
  EXPECT_NE(device::User::here().picture().find("opacity=\"0.75\""), std::string::npos)
      << "a user waits until nothing moves";
}

TEST_F(Picture, BlursWhatIsBehindGlass) {
  add({{0, 0}, {100, 100}}, "Behind").setBackgroundColor(UIColor::white(0.25, 1));
  const auto glass = [](CGRect frame) {
    const auto effect = ask<"effectWithStyle:", Object>(hostType<"UIBlurEffect">(), NSInteger{2});
    const auto view = makeObject<HostClass<"UIVisualEffectView", UIView>, "initWithEffect:">(effect);
    view->setFrame(frame);
    screen().addSubview(view.get());
    return UIView(view.get());
  };
  const UIView view = glass({{10, 10}, {50, 50}});
  glass({{20, 20}, {50, 50}});
  add({{0, 0}, {100, 100}}, "InFront").setBackgroundColor(UIColor::white(0.75, 1));
  add({{0, 0}, {5, 5}}, "Within", ask<"contentView", UIView>(view));

  constexpr std::string_view kBehind = "rgb(64,64,64)", kInFront = "rgb(191,191,191)", kNamed = "\"Behind\"",
                             kBlur = "filter=\"url(#blur)\"", kTint = "fill-opacity=\"0.55\"";
  EXPECT_TRUE(has({kNamed, kBehind, kBlur, kBehind, kTint, "\"Within\"", kBlur, kBehind, kTint, kInFront}))
      << "sharp, and blurred once for each glass";
  for (const auto text : {kNamed, kInFront}) EXPECT_FALSE(has({text, text})) << "in front, or blurred";
}

}  // namespace
}  // namespace velvault12
