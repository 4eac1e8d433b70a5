#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace device {

/// The contents of a whole regular file of this machine.
std::optional<std::string> readFile(const std::filesystem::path& file);
/// Replaces the whole file or leaves it as it was: nobody ever sees a part. The folder must exist.
bool replaceFile(const std::filesystem::path& file, std::string_view contents);
/// Writes over what is there: a reader may see a part, and a failure leaves one.
bool overwriteFile(const std::filesystem::path& file, std::string_view contents);

/// The phone's disk as one process sees it: takes the phone's paths, works on the device's folder.
///
/// "/var", "/private/var", "/Library" and "/Applications" lie on that disk, and so do relative paths below
/// them, since the phone's processes run in "/". Every other path is one of this machine and left as it is,
/// as are those that lie in the device's folder already.
class Disk {
 public:
  Disk(std::filesystem::path deviceFolder, bool isSandboxed);

  /// Where the file lies on this machine.
  std::filesystem::path locate(std::string_view path) const;
  /// False where the sandbox keeps an app out: below /var/mobile/Library, but for Preferences and Caches.
  bool mayWrite(std::string_view path) const;

  std::optional<std::string> read(std::string_view path) const;
  bool write(std::string_view path, std::string_view contents, bool atomically) const;

 private:
  std::filesystem::path spelledOut(std::filesystem::path path) const;

  std::filesystem::path folder_;
  bool isSandboxed_;
};

/// The disk as the process that `become` made sees it.
Disk diskOfThisProcess();

}  // namespace device
