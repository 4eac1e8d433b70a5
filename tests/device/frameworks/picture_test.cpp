// The picture of the screen. picture_test.svg is that of the first test.

#include "device/user/picture.hpp"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

using Picture = EmptyScreen;

TEST_F(Picture, EqualsTheCommittedOne) {
  const UIView scrolled = add({{10, 60}, {100, 60}}, "Scrolled");
  ask<"setBounds:">(scrolled, CGRect{{0, 30}, {100, 60}});
  add({{5, 40}, {80, 30}}, "Inner", scrolled).setBackgroundColor(UIColor::white(0, 0.5));
  add({{130, 60}, {60, 30}}, "Turned").setTransform({0, 1, -1, 0, 0, 0});
  add({{0, 0}, {9, 9}}, "Hidden").send<"setHidden:", void(ObjcBool)>(true);
  add({{0, 0}, {9, 9}}, "Transparent").setAlpha(0);
  const UIView round = add({{210, 60}, {60, 60}}, "Round");
  round.layer().setCornerRadius(15);
  round.setClipsToBounds(true);
  add({{-20, 20}, {100, 20}}, "Clipped", round).setBackgroundColor(UIColor::white(0.25, 1));

  const auto label = [&](CGRect frame, NSString text, double smallestScale, NSInteger alignment) {
    const auto label = add<UILabel>(frame);
    label.setFont(UIFont::systemFontOfSize(10));
    label.setText(text);
    label.setAdjustsFontSizeToFitWidth(true);
    label.setMinimumScaleFactor(smallestScale);
    ask<"setTextAlignment:">(label, alignment);
  };
  // The padlock's two halves, of which the first is left alone.
  const auto halved = NSString::from("<\"&\x01\uFFFEé\U0001F512\U0001F512");
  label({{10, 150}, {80, 20}}, ask<"substringToIndex:", NSString>(halved, NSUInteger{9}), 1, 0);
  // Ten letters of 5.5 points.
  label({{10, 170}, {55, 20}}, NSString::from("abcdefghij"), 1, 0);
  label({{10, 190}, {30, 20}}, NSString::from("abcdefghij"), 1, 0);
  label({{10, 210}, {30, 20}}, NSString::from("abcdefghij"), 0.5, 1);
  label({{10, 230}, {30, 20}}, NSString::from("abcdefghij"), 0.9, 2);
  add<UITextField>({{130, 150}, {100, 20}}).setPlaceholder(NSString::from("Secret"));
  const auto secure = add<UITextField>({{130, 180}, {100, 40}});
  ask<"setText:">(secure, NSString::from("word"));
  ask<"setBorderStyle:">(secure, NSInteger{3});
  secure.setSecureTextEntry(true);
  const auto button = add<HostClass<"UIButton", UIView>>({{130, 230}, {100, 40}});
  ask<"setTitle:forState:">(button, NSString::from("Disabled"), NSUInteger{0});
  ask<"setEnabled:">(button, ObjcBool{false});

  write("/var/mobile/lock.png", "\x89PNG\r\n\x1a\n");
  write("/var/mobile/lock@2x.png", "\x89PNG\r\n\x1a\nsharp");
  ask<"setImage:">(add<UIImageView>({{250, 150}, {30, 40}}),
                   UIImage::contentsOfFile("/var/mobile/lock.png").get());

  const auto glass = [&](CGRect frame) {
    const auto glass = UIVisualEffectView::make(UIBlurEffect::dark());
    glass->setFrame(frame);
    screen().addSubview(glass.get());
    return UIView(glass.get());
  };
  add({{10, 560}, {100, 100}}, "Behind").setBackgroundColor(UIColor::white(0.25, 1));
  add({{0, 0}, {20, 20}}, "Within", ask<"contentView", UIView>(glass({{30, 580}, {100, 50}})));
  glass({{60, 600}, {100, 50}});
  add({{140, 640}, {50, 50}}, "In front").setBackgroundColor(UIColor::white(0.75, 1));

  const std::string svg = device::screenPicture("<Holidays> needs to be unlocked.");
  const auto committed = std::filesystem::path(__FILE__).replace_extension(".svg");
  std::stringstream expected;
  expected << std::ifstream(committed).rdbuf();
  const auto actual = std::filesystem::temp_directory_path() / committed.filename();
  EXPECT_EQ(svg, expected.str()) << "If " << actual << " looks right, copy it to " << committed;
  if (HasFailure()) std::ofstream(actual) << svg;
}

TEST_F(Picture, WaitsForWhatMovesIntoSight) {
  const UIView view = add({{0, 0}, {10, 10}}, "View");
  view.setAlpha(0);
  UIView::animate(60, 60, block<void()>([&] { view.setFrame({{0, 0}, {20, 20}}); }), Block<void(bool)>());
  UIView::animate(0.3, 0, block<void()>([&] { view.setAlpha(0.75); }), Block<void(bool)>());
  EXPECT_NE(me_.picture().find(R"("View" data-frame="0 0 10 10" opacity="0.75")"), std::string::npos);
}

}  // namespace
}  // namespace velvault12
