#include "photos/list/long_press.hpp"

#include <string>

#include "photos/list/album_lock.hpp"
#include "photos/list/authentication_request.hpp"
#include "startup/settings.hpp"

namespace velvault12 {

namespace {

constexpr double kPressSeconds = 1.0;
constexpr double kSecondsToRedraw = 0.1;

bool actsIn(UIGestureRecognizer::State state) {
  // A press that waited for its owner is handled again when the finger has long been lifted: it is possible
  // then.
  return state == UIGestureRecognizer::State::possible || state == UIGestureRecognizer::State::began;
}

}  // namespace

void handleLongPress(UIViewController controller, UIGestureRecognizer recognizer) {
  if (!recognizer || !actsIn(recognizer.state())) return;
  AlbumLock& lock = albumLock();
  lock.reload();
  const auto tile = recognizer.view().as<PUAlbumListCellContentView>();
  const NSString title = tile.title();
  const std::string name = title.utf8();
  if (name.empty()) return;
  UIDevice::currentDevice().tick();
  switch (longPressOutcome(lock.isLocked(name), lock.hasPass())) {
    case LongPressOutcome::lock:
      lock.lock(name);
      break;
    case LongPressOutcome::askOwner:
      lock.pendingLongPress = {Ref(recognizer), name};
      askOwner(controller, AuthenticationMethod::removeLock, title);
      break;
    case LongPressOutcome::removeLock:
      lock.takePass();
      lock.pendingLongPress = {};
      lock.removeLock(name);
      break;
  }
  NSTimer::scheduledOnce(kSecondsToRedraw, tile, selector<"layoutSubviews">());
}

void makePressable(PUAlbumListCellContentView tile, UIViewController target) {
  if (!isEnabled()) return;
  const auto recognizer =
      makeRecognizer<UILongPressGestureRecognizer>(target, selector<"handleLongPress:">());
  recognizer->setMinimumPressDuration(kPressSeconds);
  if (tile.gestureRecognizers().count() == 0) tile.addGestureRecognizer(recognizer.get());
}

UICollectionViewCell stripCell(PUHorizontalAlbumListGadget strip,
                               Replaced<UICollectionViewCell(UICollectionView, NSIndexPath)> host,
                               UICollectionView view, NSIndexPath path) {
  const UICollectionViewCell cell = host(view, path);
  makePressable(albumTile(strip.gadgetAtIndexPath(path)), strip);
  return cell;
}

UICollectionViewCell listCell(PUAlbumListViewController list,
                              Replaced<UICollectionViewCell(UICollectionView, NSIndexPath)> host,
                              UICollectionView view, NSIndexPath path) {
  const UICollectionViewCell cell = host(view, path);
  makePressable(albumTile(cell), list);
  return cell;
}

}  // namespace velvault12
