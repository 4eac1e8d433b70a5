#include "camera/album_chooser.hpp"

#include <string>
#include <utility>

#include "camera/capture_album.hpp"
#include "camera/chooser_layout_rules.hpp"
#include "host/photos.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

// The views are found again by these.
constexpr NSInteger kButtonTag = 77;
constexpr NSInteger kCaptionTag = 78;

constexpr CGSize kButtonSize{28, 28};
constexpr CGPoint kCaptionOrigin{91, 65};
constexpr double kMinimumScale = 0.5;
constexpr double kTurnSeconds = 0.8;

NSString captionText() { return NSString::from(captureAlbum().title()); }

UIFont captionFont(const CaptionFit& fit) { return UIFont::systemFontOfSize(fit.fontSize); }

/// As large as its text is, below the button.
void place(UILabel caption, UIView button, const CaptionFit& fit) {
  const CGSize size = lineSize(captionText(), captionFont(fit), {fit.maxWidth, fit.maxHeight});
  const CGPoint above = button.center();
  // The size is what stays of the frame.
  caption.setFrame({kCaptionOrigin, size});
  caption.setCenter({above.x, above.y + kCaptionBelowButton});
}

Ref<UIImageView> makeButton(CameraBar bar, CGPoint center) {
  Ref<UIImageView> button = UIImageView::make(UIImage::contentsOfFile(kAlbumImage).get());
  button->setFrame({{}, kButtonSize});
  button->setCenter(center);
  button->setTag(kButtonTag);
  button->setUserInteractionEnabled(true);
  button->addGestureRecognizer(makeRecognizer<UITapGestureRecognizer>(bar, selector<"chooseAlbum">()).get());
  return button;
}

Ref<UILabel> makeCaption(const CaptionFit& fit) {
  Ref<UILabel> caption = makeObject<UILabel>();
  caption->setTag(kCaptionTag);
  caption->setText(captionText());
  caption->setTextColor(UIColor::whiteColor());
  caption->setCenteredText();
  caption->setNumberOfLines(1);
  caption->setFont(captionFont(fit));
  caption->setAdjustsFontSizeToFitWidth(true);
  caption->setAdjustsLetterSpacingToFitWidth(true);
  caption->setMinimumScaleFactor(kMinimumScale);
  caption->setBackgroundColor(UIColor::clearColor());
  caption->setClipsToBounds(true);
  return caption;
}

bool hasDrawButton(CameraBar bar) {
  for (const Object view : bar.subviews()) {
    if (view.as<CustomDrawButton>()) return true;
  }
  return false;
}

ChooserLayout layoutFor(CameraBar bar, UIView background) {
  const CGSize behind = background.bounds().size;
  return chooserLayout({.backgroundWidth = behind.width,
                        .backgroundHeight = behind.height,
                        .barWidth = bar.bounds().size.width,
                        .isPad = UIDevice::currentDevice().isPad(),
                        .hasDrawButton = hasDrawButton(bar)});
}

UIView buttonOn(CameraBar bar) { return bar.background().viewWithTag(kButtonTag); }

UILabel captionOn(CameraBar bar) { return bar.background().viewWithTag(kCaptionTag).as<UILabel>(); }

void layOutChooser(CameraBar bar) {
  if (!isPickerOn()) {
    buttonOn(bar).removeFromSuperview();
    captionOn(bar).removeFromSuperview();
    return;
  }
  if (buttonOn(bar)) {
    captionOn(bar).setText(captionText());
    return;
  }
  const UIView background = bar.background();
  const ChooserLayout layout = layoutFor(bar, background);
  const Ref<UIImageView> button = makeButton(bar, {layout.x, layout.y});
  const Ref<UILabel> caption = makeCaption(layout.caption);
  place(caption.get(), button.get(), layout.caption);
  background.addSubview(button.get());
  background.addSubview(caption.get());
}

void choose(CameraBar bar, std::string title) {
  captureAlbum().choose(std::move(title));
  captionOn(bar).setText(captionText());
  place(captionOn(bar), buttonOn(bar), kWideCaption);
}

void offer(UIAlertController sheet, const Ref<CameraBar>& bar, const std::string& title) {
  sheet.addAction(title, [bar, title] { choose(bar.get(), title); });
}

}  // namespace

void bottomBarLayout(CAMBottomBar bar, Replaced<void()> host) {
  host();
  layOutChooser(bar);
}

void metalViewLayout(CAMMetalView bar, Replaced<void()> host) {
  host();
  // Some shutters are made of one: the bar that they lie on has the button.
  if (!isWithin<CAMBottomBar>(bar)) layOutChooser(bar);
}

void chooseAlbum(CameraBar bar) {
  const auto sheet = UIAlertController::make("Choose Album", "Choose the album to save the photo to.",
                                             UIAlertController::Style::actionSheet);
  const Ref<CameraBar> owner(bar);
  offer(sheet, owner, std::string(kCameraRoll));
  for (const auto album : PHAssetCollection::fetch(
           PHAssetCollection::Type::album, PHAssetCollection::Subtype::albumRegular, PHFetchOptions())) {
    if (const NSString title = album.localizedTitle()) offer(sheet, owner, title.utf8());
  }
  sheet.addCancelAction();
  sheet.addAction("- Create new album -", [owner] { createNewAlbum(owner.get()); });
  const UIView button = buttonOn(bar);
  sheet.setPopoverSource(button ? button : bar);
  bar.viewControllerForAncestor().present(sheet, true);
}

void createNewAlbum(CameraBar bar) {
  const auto alert =
      UIAlertController::make("New Album", "Enter new album title", UIAlertController::Style::alert);
  alert.addTextField(
      block<void(UITextField)>([](UITextField field) { field.setPlaceholder(NSString::from("Title")); }));
  alert.addCancelAction();
  alert.addAction("Create", [owner = Ref(bar), field = Ref(alert.firstTextField())] {
    std::string title = field->text().utf8();
    if (isAlbumTitle(title)) choose(owner.get(), std::move(title));
  });
  bar.viewControllerForAncestor().present(alert, true);
}

void adjustRotation(CameraBar bar, CGSize size) {
  constexpr CGAffineTransform kUpright{.a = 1, .d = 1};
  constexpr CGAffineTransform kClockwise{.b = 1, .c = -1};
  constexpr CGAffineTransform kCounterClockwise{.b = -1, .c = 1};
  const auto orientation = static_cast<DeviceOrientation>(UIDevice::currentDevice().orientation());
  const Turn turn = buttonTurn(size.width, size.height, orientation);
  const CGAffineTransform transform = turn == Turn::clockwise          ? kClockwise
                                      : turn == Turn::counterClockwise ? kCounterClockwise
                                                                       : kUpright;
  const Ref<UIView> button(buttonOn(bar));
  UIView::animate(kTurnSeconds, 0, block<void()>([button, transform] { button->setTransform(transform); }),
                  Block<void(bool)>());
}

}  // namespace velvault12
