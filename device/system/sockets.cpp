#include "device/system/sockets.hpp"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <system_error>
#include <utility>

namespace device {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLengthBytes = 4;

// A socket's address holds about a hundred characters, whatever the depth of the folder: so it leads through
// the folder's descriptor.
class Address {
 public:
  explicit Address(const fs::path& socket)
      : folder_(::open(socket.parent_path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
    const std::string path =
        "/proc/self/fd/" + std::to_string(folder_.get()) + "/" + socket.filename().native();
    if (!folder_ || path.size() >= sizeof address_.sun_path) return;
    address_.sun_family = AF_UNIX;
    std::memcpy(address_.sun_path, path.c_str(), path.size() + 1);
  }

  bool isValid() const { return address_.sun_family == AF_UNIX; }
  const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&address_); }
  static constexpr socklen_t size() { return sizeof(sockaddr_un); }

 private:
  Descriptor folder_;
  sockaddr_un address_{};
};

[[noreturn]] void fail(const fs::path& socket) {
  throw std::system_error(errno, std::generic_category(), socket.native());
}

Descriptor bound(int type, const fs::path& socket) {
  fs::create_directories(socket.parent_path());
  ::unlink(socket.c_str());
  Descriptor descriptor(::socket(AF_UNIX, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  const Address address(socket);
  if (!descriptor || !address.isValid() || ::bind(descriptor.get(), address.get(), address.size()) != 0) {
    fail(socket);
  }
  return descriptor;
}

void limitSends(const Descriptor& connection) {
  const timeval limit{.tv_sec = kSendLimit.count(), .tv_usec = 0};
  ::setsockopt(connection.get(), SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

std::uint32_t lengthIn(std::string_view bytes) {
  std::uint32_t length = 0;
  for (const char byte : bytes.substr(0, kLengthBytes))
    length = length << 8 | static_cast<unsigned char>(byte);
  return length;
}

bool receiveAll(int connection, std::string& bytes) {
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t length = ::recv(connection, bytes.data() + filled, bytes.size() - filled, 0);
    if (length == 0 || (length < 0 && errno != EINTR)) return false;
    if (length > 0) filled += length;
  }
  return true;
}

}  // namespace

Descriptor::~Descriptor() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

Descriptor::Descriptor(Descriptor&& other) noexcept : descriptor_(other.release()) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  if (this == &other) return *this;
  if (descriptor_ >= 0) ::close(descriptor_);
  descriptor_ = other.release();
  return *this;
}

int Descriptor::release() { return std::exchange(descriptor_, -1); }

std::string fileNameOf(std::string_view name) {
  std::string escaped;
  for (const char character : name) {
    if (character == '/') {
      escaped += "%2F";
    } else if (character == '%') {
      escaped += "%25";
    } else {
      escaped += character;
    }
  }
  // "." and ".." are folders already.
  return escaped.starts_with('.') ? "%2E" + escaped.substr(1) : escaped;
}

Descriptor bindDatagrams(const fs::path& socket) { return bound(SOCK_DGRAM, socket); }

Descriptor listenAt(const fs::path& socket) {
  if (connectTo(socket)) return Descriptor();
  // Its name appears once it listens, so that nobody who finds it is turned away.
  const fs::path draft = socket.native() + "." + std::to_string(::getpid());
  Descriptor descriptor = bound(SOCK_STREAM, draft);
  if (::listen(descriptor.get(), SOMAXCONN) != 0 || std::rename(draft.c_str(), socket.c_str()) != 0) {
    fail(socket);
  }
  return descriptor;
}

Descriptor connectTo(const fs::path& socket) {
  Descriptor descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  const Address address(socket);
  if (!descriptor || !address.isValid()) return Descriptor();
  limitSends(descriptor);
  if (::connect(descriptor.get(), address.get(), address.size()) == 0) return descriptor;
  // Whoever listened there is gone.
  if (errno == ECONNREFUSED) ::unlink(socket.c_str());
  return Descriptor();
}

Descriptor acceptFrom(const Descriptor& listener) {
  Descriptor connection(::accept4(listener.get(), nullptr, nullptr, SOCK_CLOEXEC));
  if (connection) limitSends(connection);
  return connection;
}

void signalAll(const fs::path& folder) {
  // A socket of its own for each call: what the peers have not taken yet would fill a shared one.
  const Descriptor sender(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  std::error_code ignored;
  for (fs::directory_iterator entry(folder, ignored), end; !ignored && entry != end;
       entry.increment(ignored)) {
    const Address address(entry->path());
    if (!address.isValid()) continue;
    const ssize_t sent =
        ::sendto(sender.get(), "", 0, MSG_DONTWAIT | MSG_NOSIGNAL, address.get(), address.size());
    if (sent < 0 && errno == ECONNREFUSED) ::unlink(entry->path().c_str());
  }
}

bool takeDatagrams(int socket) {
  bool any = false;
  char nothing = 0;
  while (::recv(socket, &nothing, sizeof nothing, MSG_DONTWAIT) >= 0 || errno == EINTR) any = true;
  return any;
}

bool sendFrame(int connection, std::string_view frame) {
  const auto length = static_cast<std::uint32_t>(frame.size());
  if (frame.size() > kMostFrameBytes) {
    errno = EMSGSIZE;
    return false;
  }
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(length >> shift);
  bytes += frame;
  for (std::string_view rest = bytes; !rest.empty();) {
    const ssize_t sent = ::send(connection, rest.data(), rest.size(), MSG_NOSIGNAL);
    if (sent < 0 && errno != EINTR) return false;
    if (sent > 0) rest.remove_prefix(sent);
  }
  return true;
}

std::optional<std::string> receiveFrame(int connection) {
  std::string length(kLengthBytes, '\0');
  if (!receiveAll(connection, length) || lengthIn(length) > kMostFrameBytes) return std::nullopt;
  std::string frame(lengthIn(length), '\0');
  if (!receiveAll(connection, frame)) return std::nullopt;
  return frame;
}

void FrameBuffer::append(std::string_view bytes) {
  bytes_.erase(0, std::exchange(taken_, 0));
  bytes_ += bytes;
}

std::optional<std::string> FrameBuffer::next() {
  const std::string_view rest = std::string_view(bytes_).substr(taken_);
  if (isDamaged_ || rest.size() < kLengthBytes) return std::nullopt;
  const std::size_t length = lengthIn(rest);
  isDamaged_ = length > kMostFrameBytes;
  if (isDamaged_ || rest.size() - kLengthBytes < length) return std::nullopt;
  taken_ += kLengthBytes + length;
  return std::string(rest.substr(kLengthBytes, length));
}

}  // namespace device
