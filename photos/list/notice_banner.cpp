#include "photos/list/notice_banner.hpp"

#include "host/process_wide.hpp"
#include "host/uikit.hpp"

namespace velvault12 {

namespace {

constexpr double kFadeSeconds = 0.25;
constexpr double kShownSeconds = 2.0;
constexpr double kHeight = 44;
constexpr double kMargin = 24;
/// A tab bar and the home indicator below it, and some air.
constexpr double kAboveBottom = 100;

struct NoticeBanner {
  Ref<UILabel> shown;
};

CGRect bannerFrame(CGSize window) {
  return {{kMargin, window.height - kAboveBottom - kHeight}, {window.width - 2 * kMargin, kHeight}};
}

Ref<UILabel> makeBanner(std::string_view message, CGRect frame) {
  Ref<UILabel> label = makeObject<UILabel>();
  label->setFrame(frame);
  label->setText(NSString::from(message));
  label->setCenteredText();
  label->setFont(UIFont::systemFontOfSize(15));
  label->setTextColor(UIColor::whiteColor());
  label->setBackgroundColor(UIColor::white(0.1, 0.85));
  label->setUserInteractionEnabled(false);
  label->layer().setCornerRadius(kHeight / 2);
  label->layer().setMasksToBounds(true);
  label->setAlpha(0);
  return label;
}

void remove(const Ref<UILabel>& label) {
  label->removeFromSuperview();
  NoticeBanner& banner = processWide<NoticeBanner>();
  if (banner.shown.get() == label.get()) banner.shown = {};
}

void fade(const Ref<UILabel>& label, double delay, double alpha, Block<void(bool)> completion) {
  UIView::animate(kFadeSeconds, delay, block<void()>([label, alpha] { label->setAlpha(alpha); }), completion);
}

}  // namespace

void showNotice(std::string_view message) {
  const UIView window = UIApplication::sharedApplication().keyWindow();
  if (!window) return;
  NoticeBanner& banner = processWide<NoticeBanner>();
  banner.shown->removeFromSuperview();
  const Ref<UILabel> label = makeBanner(message, bannerFrame(window.bounds().size));
  banner.shown = label;
  window.addSubview(label.get());
  fade(label, 0, 1, block<void(bool)>([label](bool) {
         fade(label, kShownSeconds, 0, block<void(bool)>([label](bool) { remove(label); }));
       }));
}

}  // namespace velvault12
