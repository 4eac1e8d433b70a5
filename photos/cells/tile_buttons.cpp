#include "photos/cells/tile_buttons.hpp"

#include <string_view>

#include "photos/cells/frames.hpp"
#include "photos/list/list_editing.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

// The buttons are found again by these.
constexpr NSInteger kMoveButtonTag = 213;
constexpr NSInteger kLockButtonTag = 214;

constexpr double kSlideSeconds = 0.3;

NSInteger tagOf(TileButton button) { return button == TileButton::move ? kMoveButtonTag : kLockButtonTag; }

std::string_view imageOf(TileButton button) {
  return button == TileButton::move ? kMoveImage : kLockButtonImage;
}

SEL actionOf(TileButton button) {
  return button == TileButton::move ? selector<"askToMoveAlbum">() : selector<"lockAlbum">();
}

UIImageView buttonOn(PUAlbumListCellContentView tile, TileButton button) {
  return tile.subviewWithTag<UIImageView>(tagOf(button));
}

void createButton(PUAlbumListCellContentView tile, TileButton kind) {
  if (buttonOn(tile, kind)) return;
  const Ref<UIImageView> button = UIImageView::make(UIImage::contentsOfFile(imageOf(kind)).get());
  place(button.get(), enteringButtonFrame(kind));
  button->setTag(tagOf(kind));
  const auto recognizer = makeRecognizer<UITapGestureRecognizer>(tile, actionOf(kind));
  recognizer->setNumberOfTapsRequired(1);
  recognizer->setDelegate(tile);
  button->addGestureRecognizer(recognizer.get());
  button->setUserInteractionEnabled(true);
  button->setAlpha(0);
  tile.addSubview(button.get());
  UIView::animate(kSlideSeconds, 0, block<void()>([button, kind] {
                    button->setAlpha(1);
                    place(button.get(), buttonFrame(kind));
                  }),
                  Block<void(bool)>());
}

void layOutButton(PUAlbumListCellContentView tile, TileButton kind) {
  const UIImageView button = buttonOn(tile, kind);
  place(button, buttonFrame(kind));
  tile.bringSubviewToFront(button);
  if (!isListEditing() || !tile.deleteButton()) button.removeFromSuperview();
}

}  // namespace

void tileSetEditing(PUAlbumListCellContentView tile, Replaced<void(bool, bool)> host, bool editing,
                    bool animated) {
  host(editing, animated);
  if (editing && isEnabled()) createButtons(tile);
}

void createButtons(PUAlbumListCellContentView tile) {
  tile.bringSubviewToFront(tile.deleteButton());
  createButton(tile, TileButton::move);
  createButton(tile, TileButton::lock);
}

void buttonLoaded(PXUIButton button, Replaced<void()> host) {
  host();
  button.layoutSubviews();
}

void buttonLayout(PXUIButton button, Replaced<void()> host) {
  host();
  const auto tile = button.superview().as<PUAlbumListCellContentView>();
  if (tile && isEnabled()) createButtons(tile);
}

void removeButtons(PUAlbumListCellContentView tile) {
  buttonOn(tile, TileButton::move).removeFromSuperview();
  buttonOn(tile, TileButton::lock).removeFromSuperview();
}

void layOutButtons(PUAlbumListCellContentView tile) {
  layOutButton(tile, TileButton::move);
  layOutButton(tile, TileButton::lock);
  tile.bringSubviewToFront(tile.deleteButton());
}

}  // namespace velvault12
