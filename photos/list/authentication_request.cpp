#include "photos/list/authentication_request.hpp"

#include <string>

#include "photos/list/album_lock.hpp"
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

void checkPassword(UIViewController controller, int method, const std::string& entered) {
  const PasswordOutcome outcome = passwordOutcome(NSString::contentsOfFile(kPasswordFile), entered);
  if (outcome == PasswordOutcome::isWrong) {
    showNotice("Incorrect password");
    return;
  }
  controller.trySend<"unlockAuthorised:", void(int)>(method);
  if (outcome == PasswordOutcome::unlocksWithoutPassword) showNotice("No password set");
}

/// Gives the pass and runs the action again. Answers false for an album's opening, which is the caller's to
/// run: each class has its own way of being told of a selection.
bool resumed(UIViewController controller, int method) {
  AlbumLock& lock = albumLock();
  lock.givePass();
  switch (static_cast<AuthenticationMethod>(method)) {
    case AuthenticationMethod::removeLock: {
      const Ref<UIGestureRecognizer> recognizer = lock.pendingLongPress;
      controller.trySend<"handleLongPress:", void(UIGestureRecognizer)>(recognizer.get());
      return true;
    }
    case AuthenticationMethod::deleteAlbum: {
      const AlbumLock::Deletion deletion = lock.pendingDeletion;
      PUAlbumListViewController(controller.get()).performDelete(deletion.tile.get(), deletion.action.get());
      return true;
    }
    case AuthenticationMethod::openAlbum:
      return false;
  }
  return true;
}

/// Selects again what waits, through the hook that held it back.
template <class Controller>
void selectPending(Controller controller) {
  // Kept here too: the hook that lets it through drops it.
  const Ref<NSIndexPath> path = albumLock().pendingSelection;
  controller.select(path.get());
  albumLock().lockedAlbumOpened = true;
}

}  // namespace

void unlockAlbum(UIViewController controller, int method, NSString album) {
  controllerRegistry().lastRequesting = Ref<Object>(controller);
  const Ref<NSMutableDictionary> request = makeObject<NSMutableDictionary>();
  request->set(key::kSender, NSBundle::mainBundle().bundleIdentifier());
  request->set(key::kMethod, NSNumber::from(method));
  request->set(key::kAlbumName, album);
  request->set(key::kController, NSString::from(controller.className()));
  sendToService(kAuthenticateMessage, request.get());
}

void requestPassword(UIViewController controller, int method) {
  const NSBundle bundle = NSBundle::mainBundle();
  const auto alert = UIAlertController::make("Unlock album", "Enter password to unlock album.",
                                             UIAlertController::Style::alert);
  addPasswordField(alert);
  // The field and not the alert: an action that keeps its own alert is never released.
  const Ref<UITextField> field(alert.firstTextField());
  const Ref<UIViewController> owner(controller);
  alert.addAction(UIAlertAction::make(bundle.localizedString("OK"), UIAlertAction::Style::standard,
                                      block<void(UIAlertAction)>([owner, field, method](UIAlertAction) {
                                        checkPassword(owner.get(), method, field->text().utf8());
                                      })));
  alert.addAction(UIAlertAction::make(bundle.localizedString("Cancel"), UIAlertAction::Style::cancel,
                                      Block<void(UIAlertAction)>()));
  controller.present(alert, true);
}

void stripUnlockAuthorised(PUHorizontalAlbumListGadget strip, int method) {
  if (!resumed(strip, method)) selectPending(strip);
}

void listUnlockAuthorised(PUAlbumListViewController list, int method) {
  if (!resumed(list, method)) selectPending(list);
}

}  // namespace velvault12
