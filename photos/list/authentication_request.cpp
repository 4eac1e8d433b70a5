#include "photos/list/authentication_request.hpp"

#include <string>
#include <utility>

#include "photos/list/album_lock.hpp"
#include "photos/list/album_title.hpp"
#include "photos/list/controller_registry.hpp"
#include "photos/list/lock_rules.hpp"
#include "photos/list/notice_banner.hpp"
#include "startup/service_messages.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

void addPasswordField(UIAlertController alert) {
  alert.addTextField(block<void(UITextField)>([](UITextField field) {
    field.setPlaceholder(NSBundle::mainBundle().localizedString("Password"));
    field.setSecureTextEntry(true);
  }));
}

void checkPassword(Object requester, int method, const std::string& entered, std::string_view wrongNotice) {
  const PasswordOutcome outcome = passwordOutcome(NSString::contentsOfFile(kPasswordFile), entered);
  if (outcome == PasswordOutcome::isWrong) {
    showNotice(wrongNotice);
    return;
  }
  requester.trySend<"unlockAuthorised:", void(int)>(method);
  if (outcome == PasswordOutcome::unlocksWithoutPassword) showNotice("No password set");
}

// Each runs again what waits, through the hook that held it back and now finds the pass, if it is still about
// the album whose owner was asked. Either way it waits no longer. When nothing waits, a hook that is run all
// the same uses the pass up; without a press there is none, and the pass is for whatever comes next.

void pressAgain(UIViewController controller) {
  AlbumLock& lock = albumLock();
  const auto pending = std::exchange(lock.pendingLongPress, {});
  if (pending.recognizer) {
    const auto tile = pending.recognizer->view().as<PUAlbumListCellContentView>();
    if (tile.title().utf8() != pending.title) return;
    // Its lock may be gone by now: an answer never locks.
    lock.reload();
    if (!lock.isLocked(pending.title)) return;
  }
  lock.givePass();
  controller.trySend<"handleLongPress:", void(UIGestureRecognizer)>(pending.recognizer.get());
}

void deleteAgain(UIViewController controller) {
  AlbumLock& lock = albumLock();
  const PUAlbumListViewController list(controller.get());
  const auto pending = std::exchange(lock.pendingDeletion, {});
  if (const PUAlbumListCellContentView tile = pending.tile.get()) {
    if (!list.collectionOf(tile) || titleOf(list, tile).utf8() != pending.title) return;
  }
  lock.givePass();
  list.performDelete(pending.tile.get(), pending.action.get());
}

template <class Controller>
void selectAgain(Controller controller) {
  AlbumLock& lock = albumLock();
  const auto pending = std::exchange(lock.pendingSelection, {});
  if (pending.path) {
    const UICollectionView view = controller.collectionView();
    if (view && !view.hasItemAtIndexPath(pending.path.get())) return;
    if (titleAt(controller, pending.path.get()).utf8() != pending.title) return;
  }
  lock.givePass();
  controller.select(pending.path.get());
  if (pending.path) lock.lockedAlbumOpened = true;
}

template <class Controller>
void runAgain(Controller controller, int method) {
  switch (static_cast<AuthenticationMethod>(method)) {
    case AuthenticationMethod::removeLock:
      return pressAgain(controller);
    case AuthenticationMethod::deleteAlbum:
      return deleteAgain(controller);
    case AuthenticationMethod::openAlbum:
      return selectAgain(controller);
  }
  albumLock().givePass();
}

}  // namespace

void unlockAlbum(Object requester, int method, NSString album) {
  controllerRegistry().recordRequesting(requester);
  const Ref<NSMutableDictionary> request = makeObject<NSMutableDictionary>();
  request->set(key::kSender, NSBundle::mainBundle().bundleIdentifier());
  request->set(key::kMethod, NSNumber::from(method));
  request->set(key::kAlbumName, album);
  request->set(key::kController, NSString::from(requester.className()));
  sendToService(kAuthenticateMessage, request.get());
}

void askForPassword(UIViewController controller, Object requester, int method, std::string_view wrongNotice) {
  const NSBundle bundle = NSBundle::mainBundle();
  const auto alert = UIAlertController::make("Unlock album", "Enter password to unlock album.",
                                             UIAlertController::Style::alert);
  addPasswordField(alert);
  alert.addAction(bundle.localizedString("OK"),
                  [owner = Ref(requester), field = Ref(alert.firstTextField()), method, wrongNotice] {
                    checkPassword(owner.get(), method, field->text().utf8(), wrongNotice);
                  });
  alert.addCancelAction(bundle.localizedString("Cancel"));
  controller.present(alert, true);
}

void requestPassword(UIViewController controller, int method) {
  askForPassword(controller, controller, method, "Incorrect password");
}

void stripUnlockAuthorised(PUHorizontalAlbumListGadget strip, int method) { runAgain(strip, method); }

void listUnlockAuthorised(PUAlbumListViewController list, int method) { runAgain(list, method); }

}  // namespace velvault12
