#include "photos/cells/tile_layout.hpp"

#include "photos/cells/frames.hpp"
#include "photos/cells/lock_view.hpp"
#include "photos/cells/tile_buttons.hpp"
#include "photos/cells/tile_layout_rules.hpp"
#include "photos/list/album_lock.hpp"
#include "photos/list/long_press.hpp"
#include "photos/list/tile_measures.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

// The views are found again by these.
constexpr NSInteger kOverlayTag = 200;
constexpr NSInteger kPadlockTag = 202;

constexpr double kCornerRadius = 5;

/// The strip or the list that shows the tile handles its presses, and no other one, not even the latest: a
/// tile must not outlive whom it sends them to.
void makePressable(PUAlbumListCellContentView tile) {
  const UIViewController controller = tile.viewControllerForAncestor();
  if (controller.responds<"handleLongPress:">()) makePressable(tile, controller);
}

/// A count of photos gets to be one that includes those which were moved out of the camera roll; a range of
/// dates, or whatever else the host writes there, stays.
void countHiddenPhotos(PUAlbumListCellContentView tile, NSString title) {
  const NSString subtitle = tile.subtitle();
  if (title.utf8().empty() || !isNumber(subtitle)) return;
  const PHAssetCollection album = PHAssetCollection::userAlbums(title).firstObject();
  if (!album || album.type() != PHAssetCollection::Type::album) return;
  const NSString count =
      NSNumber::from(PHAsset::fetchAllInAssetCollection(album).count()).send<"stringValue", NSString()>();
  // The host may lay the tile out again for every subtitle that it is told.
  if (!subtitle.isEqualToString(count)) tile.setSubtitle(count);
}

Ref<UIImageView> makePadlock(int side) {
  Ref<UIImageView> padlock = UIImageView::make(UIImage::contentsOfFile(kPadlockImage).get());
  padlock->setTag(kPadlockTag);
  place(padlock.get(), padlockFrame(side));
  return padlock;
}

Ref<UIVisualEffectView> makeBlur(int side) {
  Ref<UIVisualEffectView> blur = UIVisualEffectView::make(UIBlurEffect::dark());
  place(blur.get(), blurFrame(side));
  blur->layer().setMasksToBounds(true);
  return blur;
}

void addOverlay(PUAlbumListCellContentView tile, UIView stack, int side) {
  const Ref<VVLockView> overlay = VVLockView::make();
  place(overlay.get(), newOverlayFrame(frameOf(stack), side));
  overlay->setPhotoView(stack);
  overlay->setTag(kOverlayTag);
  overlay->setBackgroundColor(UIColor::clearColor());
  overlay->addSubview(makeBlur(side).get());
  overlay->addSubview(makePadlock(side).get());
  overlay->setAutoresizesSubviews(true);
  overlay->setClipsToBounds(true);
  overlay->layer().setCornerRadius(kCornerRadius);
  if (overlay) tile.addSubview(overlay.get());
}

/// Only the album list moves its overlays with the tiles.
void layOutOverlay(PUAlbumListCellContentView tile, VVLockView overlay, UIView stack, int side) {
  if (tile.viewControllerForAncestor().as<PUAlbumListViewController>()) {
    overlay.setPhotoView(stack);
    place(overlay, overlayFrame(frameOf(stack), side));
    place(overlay.subviewWithTag<UIImageView>(kPadlockTag), padlockFrame(side));
  }
  tile.bringSubviewToFront(overlay);
}

void showLock(PUAlbumListCellContentView tile, bool isLocked) {
  const UIView stack = tile.stackView();
  int& side = tileMeasures().overlaySide;
  side = overlaySide(frameOf(stack), side);
  const auto overlay = tile.subviewWithTag<VVLockView>(kOverlayTag);
  if (!isLocked) {
    overlay.removeFromSuperview();
  } else if (overlay) {
    layOutOverlay(tile, overlay, stack, side);
  } else {
    addOverlay(tile, stack, side);
  }
}

template <class Text>
void setFontSize(Text text, bool isShown) {
  const std::optional<int> size = tileFontSize(isShown, settings()->layoutFontSize);
  if (size) text.setFont(UIFont::systemFontOfSize(*size));
}

}  // namespace

void layOutTile(PUAlbumListCellContentView tile, Replaced<void()> host) {
  host();
  if (!isEnabled()) {
    showLock(tile, false);
    removeButtons(tile);
    return;
  }
  tile.setClipsToBounds(true);
  const NSString title = tile.title();
  makePressable(tile);
  countHiddenPhotos(tile, title);
  albumLock().reload();
  showLock(tile, albumLock().isLocked(title.utf8()));
  tile.setHidden(false);
  layOutButtons(tile);
  setFontSize(tile.titleTextField(), settings()->layoutShowTitle);
  setFontSize(tile.subtitleLabel(), settings()->layoutShowSubtitle);
}

NSString tileTitle(PUAlbumListCellContentView, Replaced<NSString()> host) {
  return isEnabled() && !settings()->layoutShowTitle ? NSString::from("") : host();
}

}  // namespace velvault12
