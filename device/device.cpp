#include "device/device.hpp"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "device/system/control.hpp"
#include "device/system/darwin_notifications.hpp"
#include "device/system/disk.hpp"
#include "device/system/launch.hpp"
#include "device/system/sockets.hpp"

namespace device {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds kLaunchLimit{60'000};

struct Pipe {
  Descriptor reading;
  Descriptor writing;
};

Pipe makePipe() {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
  return {Descriptor(ends[0]), Descriptor(ends[1])};
}

// Everything up to the pipe's end; none when that does not come in time.
std::optional<std::string> readAll(const Descriptor& pipe, std::chrono::milliseconds limit) {
  const auto end = std::chrono::steady_clock::now() + limit;
  std::string text;
  char chunk[512];
  while (true) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    pollfd readable{.fd = pipe.get(), .events = POLLIN, .revents = 0};
    if (left.count() <= 0) return std::nullopt;
    if (::poll(&readable, 1, static_cast<int>(left.count())) <= 0) continue;
    const ssize_t length = ::read(pipe.get(), chunk, sizeof chunk);
    if (length == 0) return text;
    if (length > 0) text.append(chunk, length);
  }
}

// Only what is safe between fork and exec in a process with several threads.
[[noreturn]] void runProgram(char* const arguments[], int ready, pid_t parent) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (::getppid() == parent && ::fcntl(ready, F_SETFD, 0) == 0) ::execv(arguments[0], arguments);
  const char* reason = std::strerror(errno);
  if (::write(ready, reason, std::strlen(reason)) < 0) ::_exit(126);
  ::_exit(127);
}

}  // namespace

App::App(pid_t process, User user) : process_(process), user_(std::move(user)) {}

App::~App() { kill(); }

App::App(App&& other) noexcept : process_(std::exchange(other.process_, -1)), user_(std::move(other.user_)) {}

App& App::operator=(App&& other) noexcept {
  if (this == &other) return *this;
  kill();
  process_ = std::exchange(other.process_, -1);
  user_ = std::move(other.user_);
  return *this;
}

void App::kill() {
  if (process_ <= 0) return;
  ::kill(process_, SIGKILL);
  while (::waitpid(process_, nullptr, 0) < 0 && errno == EINTR) continue;
  process_ = -1;
}

Device::Device(const fs::path& folder) : folder_(fs::absolute(folder).lexically_normal()) {
  // Whatever else lies there is not the phone's to erase.
  if (fs::exists(folder_) && !fs::is_empty(folder_) && !fs::exists(folder_ / "disk")) {
    throw std::runtime_error(folder_.native() + " is no phone's folder");
  }
  fs::remove_all(folder_);
  for (const char* path :
       {"disk/var/mobile/Library/Preferences", "disk/Library/MobileSubstrate/DynamicLibraries",
        "disk/var/mobile/Media/PhotoData", "run", "log"}) {
    fs::create_directories(folder_ / path);
  }
}

fs::path Device::onDisk(std::string_view phonePath) const { return Disk(folder_, false).locate(phonePath); }

void Device::install(const fs::path& library, const fs::path& filter, const fs::path& images) const {
  const fs::path installed = onDisk("/Library/MobileSubstrate/DynamicLibraries") / library.stem();
  // Removed first: a running app may have the old one loaded.
  fs::remove(installed.native() + ".dylib");
  fs::copy_file(library, installed.native() + ".dylib");
  fs::copy_file(filter, installed.native() + ".plist", fs::copy_options::overwrite_existing);
  const fs::path support = onDisk("/Library/Application Support") / library.stem();
  fs::create_directories(support);
  for (const auto& image : fs::directory_iterator(images)) {
    if (image.path().extension() != ".png") continue;
    fs::copy_file(image, support / image.path().filename(), fs::copy_options::overwrite_existing);
  }
}

App Device::launch(std::string_view bundleIdentifier) const {
  Pipe ready = makePipe();
  std::string words[] = {DEVICE_APP, folder_.native(), std::string(bundleIdentifier),
                         std::to_string(ready.writing.get())};
  char* const arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(), nullptr};
  const pid_t parent = ::getpid();
  const pid_t process = ::fork();
  if (process < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (process == 0) runProgram(arguments, ready.writing.get(), parent);

  App app(process, userOf(folder_, process));
  ready.writing = Descriptor();
  const std::optional<std::string> told = readAll(ready.reading, kLaunchLimit);
  if (told == kReady) return app;
  const std::string reason = !told ? "it takes too long" : told->empty() ? endOf(process) : *told;
  throw std::runtime_error(words[2] + " did not launch: " + reason);
}

void Device::launchHere(std::string_view bundleIdentifier) const {
  launchApp({folder_, std::string(bundleIdentifier)});
}

PhotoDatabase Device::photoLibrary() const { return PhotoDatabase(onDisk(kPhotoDatabasePath)); }

void Device::post(std::string_view notification) const { postNotification(folder_, notification); }

NotificationCounter::NotificationCounter(const Device& device, std::string_view notification) {
  NotificationSocket socket = observeNotification(device.folder(), notification);
  socket_ = std::move(socket.path);
  descriptor_ = socket.descriptor.release();
}

NotificationCounter::~NotificationCounter() {
  ::unlink(socket_.c_str());
  ::close(descriptor_);
}

int NotificationCounter::count() {
  if (takeDatagrams(descriptor_)) count_++;
  return count_;
}

}  // namespace device
