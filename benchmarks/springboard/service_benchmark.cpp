#include "benchmarks/springboard/service_benchmark.hpp"

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <utility>

#include "benchmarks/floor.hpp"
#include "benchmarks/photos/photos_app.hpp"
#include "device/system/loader.hpp"
#include "device/system/run_loop.hpp"
#include "host/app_support.hpp"
#include "host/class_pair.hpp"
#include "host/darwin_notifications.hpp"
#include "host/hook.hpp"
#include "startup/service_messages.hpp"
#include "tests/device/forked_process.hpp"

namespace velvault12::benchmarks {

namespace {

const std::vector<std::string> kArray{"Album 3", "Album 4", "Album 5"};

std::string since(std::int64_t start) { return std::to_string(nanoseconds() - start); }

// SpringBoard without the library: what takes the messages does nothing, or nothing but what it is asked for.

constexpr std::string_view kSentAt = "sentAt";

const ForkedProcess* bench = nullptr;

void tellLatency(Object, NSString, Object userInfo) {
  bench->say(since(std::stoll(*stringValue(NSDictionary(userInfo.get())[kSentAt]))));
}
void saveOnly(Object, NSString, Object userInfo) {
  const NSDictionary request(userInfo.get());
  request[key::kArray].as<NSArray>().writeToFile(NSString(request[key::kPath].get()), true);
}
void agreeOnly(Object, NSString, Object userInfo) {
  const Ref<NSMutableDictionary> answer = mutableCopy(NSDictionary(userInfo.get()));
  answer->set(key::kSuccess, NSNumber::from(true));
  answer->writeToFile(NSString::from(kAnswerFile), true);
  postDarwinNotification(kAnswerNotification);
}

ForkedProcess::Life springBoard(const Phone& phone, Version version) {
  return [&phone, version](const ForkedProcess& test) {
    bench = &test;
    device::become({phone.device.folder(), std::string(device::kSpringBoard)});
    if (version == Version::library) device::loadInjectedLibraries();
    device::startApp(device::kSpringBoard);
    if (version != Version::library) {
      const Class type = ClassPair(classNamed<"NSObject">(), "MessageTaker")
                             .method<tellLatency>(selector<"tellLatency:userInfo:">(), "v@:@@")
                             .method<saveOnly>(selector<"save:userInfo:">(), "v@:@@")
                             .method<agreeOnly>(selector<"agree:userInfo:">(), "v@:@@")
                             .registered();
      const Object target(sendToClass<"new", id()>(type));
      const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
      center.runServerOnCurrentThread();
      center.registerForMessage(
          kSaveArrayMessage, target,
          version == Version::host ? selector<"tellLatency:userInfo:">() : selector<"save:userInfo:">());
      center.registerForMessage(kAuthenticateMessage, target, selector<"agree:userInfo:">());
    }
    test.say("ready");
    device::runForever();
  };
}

/// Waits until a file of the folder has been replaced.
class Replacements {
 public:
  explicit Replacements(const std::filesystem::path& folder) {
    inotify_add_watch(descriptor_.get(), folder.c_str(), IN_MOVED_TO);
  }
  void wait() const {
    pollfd readable{.fd = descriptor_.get(), .events = POLLIN, .revents = 0};
    if (poll(&readable, 1, static_cast<int>(device::kPatience.count())) <= 0)
      throw std::runtime_error("nothing was saved");
    char events[4096];
    while (read(descriptor_.get(), events, sizeof events) > 0) continue;
  }

 private:
  device::Descriptor descriptor_{inotify_init1(IN_NONBLOCK | IN_CLOEXEC)};
};

/// An app that sends a save whenever it is told to.
ForkedProcess::Life sender(const Phone& phone, Version version) {
  return [&phone, version](const ForkedProcess& test) {
    device::become({phone.device.folder(), std::string(device::kPhotos)});
    const AutoreleasePool pool;
    const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
    const auto request = makeObject<NSMutableDictionary>();
    request->set(key::kArray, NSArray::from(kArray));
    request->set(key::kPath, NSString::from(kLockedAlbumsFile));
    const Replacements replacements(phone.device.onDisk(kLockedAlbumsFile).parent_path());
    while (true) {
      // The others may be measured for longer than anybody listens.
      if (test.hear().empty()) continue;
      const AutoreleasePool turn;
      const std::int64_t start = nanoseconds();
      if (version == Version::library) {
        saveArray(kArray, kLockedAlbumsFile);
      } else {
        if (version == Version::host) request->set(kSentAt, NSString::from(std::to_string(start)));
        center.sendMessage(kSaveArrayMessage, request.get());
      }
      if (version == Version::host) continue;
      replacements.wait();
      test.say(since(start));
    }
  };
}

// Photos without the library, but with the trip: the selection waits for the answer.

struct Waiting {
  PUAlbumListViewController list;
  Ref<NSIndexPath> path;
  std::optional<Replaced<void(NSIndexPath)>> host;
};
Waiting& waiting() {
  static Waiting selection;
  return selection;
}

void selectWhenAgreed(PUAlbumListViewController list, Replaced<void(NSIndexPath)> host, NSIndexPath path) {
  static const Ref<NSSet> locked = readLockedTitles();
  const auto album = list.collectionAtIndexPath(path);
  if (!locked->containsObject(album.localizedTitle())) return host(path);
  waiting() = {list, Ref(path), host};
  const auto request = makeObject<NSMutableDictionary>();
  request->set(key::kAlbumName, album.localizedTitle());
  sendToService(kAuthenticateMessage, request.get());
}

void openIfAgreed() {
  if (!boolValue(NSDictionary::contentsOfFile(kAnswerFile)[key::kSuccess]).value_or(false)) return;
  (*waiting().host)(std::exchange(waiting().path, {}).get());
}

/// The Photos app, which opens its last album, a locked one, whenever it is told to.
ForkedProcess::Life photos(const Phone& phone, Version version) {
  return [&phone, version](const ForkedProcess& test) {
    const PhotosApp app(phone,
                        version == Version::library ? PhotosApp::Library::loaded : PhotosApp::Library::none);
    if (version == Version::floor) {
      constexpr HookRow kRow =
          replace<selectWhenAgreed>("PUAlbumListViewController", "didSelectItemAtIndexPath:", "v@:@");
      installHooks({&kRow, 1});
      observeDarwinNotification<openIfAgreed>(kAnswerNotification, SuspensionBehavior::coalesce);
    }
    const PUAlbumListViewController list = PhotosApp::albumList();
    const auto isOpen = [&] { return !PhotosApp::albumList(); };
    const NSInteger last = PhotosApp::firstAlbum() + PhotosApp::kAlbums - 1;
    test.say("ready");
    while (true) {
      if (test.hear().empty()) continue;
      const AutoreleasePool turn;
      const std::int64_t start = nanoseconds();
      list.select(PhotosApp::pathTo(last));
      if (!device::runUntil(isOpen, device::kPatience)) throw std::runtime_error("no album has opened");
      test.say(since(start));
      PhotosApp::navigation().send<"popViewControllerAnimated:", Object(bool)>(false);
    }
  };
}

double secondsFrom(const ForkedProcess& process) {
  const std::string told = process.hear();
  if (told.empty()) throw std::runtime_error("nothing came of a message");
  return 1e-9 * static_cast<double>(std::stoll(told));
}

/// A phone in one version: its processes.
struct RunningPhone {
  explicit RunningPhone(Version ofVersion) : version(ofVersion) {
    // Nobody is to be asked: the owner's time is not the system's.
    phone.device.writePreferences({{"passOption", 2}});
    board.emplace(springBoard(phone, version));
    board->hear();
    app.emplace(photos(phone, version));
    app->hear();
    saver.emplace(sender(phone, version));
  }
  double save() const {
    saver->say("save");
    return secondsFrom(version == Version::host ? *board : *saver);
  }
  double open() const {
    app->say("open");
    return secondsFrom(*app);
  }

  Version version;
  PhotosPhone phone;
  std::optional<ForkedProcess> board;
  std::optional<ForkedProcess> app;
  std::optional<ForkedProcess> saver;
};

}  // namespace

Figures measureService() {
  const RunningPhone host(Version::host);
  const RunningPhone floor(Version::floor);
  const RunningPhone library(Version::library);
  const auto phoneOf = [&](Version version) -> const RunningPhone& {
    return version == Version::host ? host : version == Version::floor ? floor : library;
  };
  const auto kAll = {Version::host, Version::floor, Version::library};
  Versions versions;
  Bench all(versions);
  all.addTimed("savearray", kAll, 100, [&](Version version) { return phoneOf(version).save(); });
  all.addTimed("authentication: a locked album opens", kAll, 20,
               [&](Version version) { return phoneOf(version).open(); });
  return all.figures();
}

}  // namespace velvault12::benchmarks
