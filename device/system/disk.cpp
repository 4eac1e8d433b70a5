#include "device/system/disk.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "device/system/process.hpp"
#include "device/system/sockets.hpp"

namespace device {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 3> kFoldersOnDisk{"var", "Library", "Applications"};

bool isOnDisk(const fs::path& plain) {
  return std::ranges::find(kFoldersOnDisk, plain.begin()->native()) != kFoldersOnDisk.end();
}

bool isBelow(const fs::path& plain, const fs::path& folder) {
  return std::ranges::mismatch(folder, plain).in1 == folder.end();
}

bool writeAll(int descriptor, std::string_view contents) {
  while (!contents.empty()) {
    const ssize_t written = ::write(descriptor, contents.data(), contents.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) contents.remove_prefix(written);
  }
  return true;
}

}  // namespace

std::optional<std::string> readFile(const fs::path& path) {
  // Without waiting: what lies there may be a pipe.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;

  std::string contents;
  std::array<char, 16384> chunk;
  while (true) {
    const ssize_t length = ::read(file.get(), chunk.data(), chunk.size());
    if (length == 0) return contents;
    if (length > 0) contents.append(chunk.data(), length);
    if (length < 0 && errno != EINTR) return std::nullopt;
  }
}

bool replaceFile(const fs::path& path, std::string_view contents) {
  std::string temporary = path.native() + ".XXXXXX";
  const Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
  if (!file) return false;
  if (::fchmod(file.get(), 0644) == 0 && writeAll(file.get(), contents) &&
      std::rename(temporary.c_str(), path.c_str()) == 0) {
    return true;
  }
  ::unlink(temporary.c_str());
  return false;
}

bool overwriteFile(const fs::path& path, std::string_view contents) {
  const Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK, 0644));
  return file && writeAll(file.get(), contents);
}

Disk::Disk(fs::path deviceFolder, bool isSandboxed)
    : folder_(std::move(deviceFolder)), isSandboxed_(isSandboxed) {}

// The one spelling of a path of the phone, relative to "/": no "..", no "/private" before "var".
fs::path Disk::spelledOut(fs::path path) const {
  if (isBelow(path, folder_ / "disk")) path = path.lexically_relative(folder_ / "disk");
  fs::path plain = (fs::path("/") / path).lexically_normal().relative_path();
  const fs::path withoutPrivate = plain.lexically_relative("private");
  return !withoutPrivate.empty() && *withoutPrivate.begin() == "var" ? withoutPrivate : plain;
}

fs::path Disk::locate(std::string_view path) const {
  if (path.empty() || folder_.empty() || isBelow(path, folder_)) return path;
  const fs::path plain = spelledOut(path);
  return !plain.empty() && isOnDisk(plain) ? folder_ / "disk" / plain : fs::path(path);
}

bool Disk::mayWrite(std::string_view path) const {
  if (!isSandboxed_) return true;
  // Where it leads in the end: links count, and paths of this machine too.
  std::error_code ignored;
  const fs::path plain = fs::weakly_canonical(locate(path), ignored)
                             .lexically_relative(fs::weakly_canonical(folder_ / "disk", ignored));
  const fs::path library = "var/mobile/Library";
  return !isBelow(plain, library) || isBelow(plain, library / "Preferences") ||
         isBelow(plain, library / "Caches");
}

std::optional<std::string> Disk::read(std::string_view path) const { return readFile(locate(path)); }

bool Disk::write(std::string_view path, std::string_view contents, bool atomically) const {
  if (path.empty() || !mayWrite(path)) return false;
  return atomically ? replaceFile(locate(path), contents) : overwriteFile(locate(path), contents);
}

Disk diskOfThisProcess() { return {identity().folder, isSandboxed()}; }

}  // namespace device
