#include <span>
#include <string>

#include "camera/capture_album.hpp"
#include "host/darwin_notifications.hpp"
#include "host/foundation.hpp"
#include "photos/list/authentication_answer.hpp"
#include "startup/hook_table.hpp"
#include "startup/host_plan_rules.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

void makeStateFolder() {
  const NSFileManager files = NSFileManager::defaultManager();
  const NSString folder = NSString::from(kStateFolderToMake);
  if (!files.fileExistsAtPath(folder)) files.createDirectoryAtPath(folder);
}

/// The one thing that runs when the loader brings the library into a process, before the host's own code.
[[gnu::constructor]] void start() {
  const AutoreleasePool pool;
  loadSettings();
  observeDarwinNotification<loadSettings>(kReloadNotification, SuspensionBehavior::deliverImmediately);
  const std::string host = NSBundle::mainBundle().bundleIdentifier().utf8();
  const HostPlan plan = planForHost(host, isEnabled());
  if (plan.readCaptureAlbum) captureAlbum().readAtStart();
  if (plan.makeStateFolder) makeStateFolder();
  installHooks(hooksOf(plan.group));
  if (plan.observeAnswers) {
    observeDarwinNotification<answerArrived>(kAnswerNotification, SuspensionBehavior::coalesce);
  }
  if (plan.filterLibrary) installHooks(libraryFilterHooks());
}

}  // namespace

}  // namespace velvault12
