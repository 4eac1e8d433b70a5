#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace device {

/// Owns a file descriptor.
class Descriptor {
 public:
  explicit Descriptor(int descriptor = -1) : descriptor_(descriptor) {}
  ~Descriptor();
  Descriptor(Descriptor&& other) noexcept;
  Descriptor& operator=(Descriptor&& other) noexcept;

  int get() const { return descriptor_; }
  explicit operator bool() const { return descriptor_ >= 0; }
  int release();

 private:
  int descriptor_;
};

/// How long a send waits for a peer that does not read.
inline constexpr std::chrono::seconds kSendLimit{60};
/// A longer frame is taken for damage.
inline constexpr std::size_t kMostFrameBytes = 64 << 20;

/// The name as one component of a path.
std::string fileNameOf(std::string_view name);

/// A socket that receives datagrams without waiting. The folder is made when missing. These and the next
/// throw std::system_error when the socket cannot be had.
Descriptor bindDatagrams(const std::filesystem::path& socket);
/// A socket that accepts connections without waiting; takes the place of one that a dead process left. Empty
/// when a living process serves there.
Descriptor listenAt(const std::filesystem::path& socket);
/// A connection whose sends wait for `kSendLimit` at most. Empty when nobody listens.
Descriptor connectTo(const std::filesystem::path& socket);
/// The next waiting connection, as `connectTo` makes them. Empty without one.
Descriptor acceptFrom(const Descriptor& listener);

/// Sends one empty datagram to every socket in the folder, never waiting: where the queue is full, datagrams
/// are pending already. Removes the sockets of dead processes.
void signalAll(const std::filesystem::path& folder);
/// Takes what has arrived; whether anything had.
bool takeDatagrams(int socket);

/// A frame is its length in four bytes, then its bytes. False, with errno, when it was not sent as a whole:
/// the connection is of no use any more. Never raises SIGPIPE.
bool sendFrame(int connection, std::string_view frame);
/// Waits for one. None at the end of the connection.
std::optional<std::string> receiveFrame(int connection);

/// Puts frames together from the pieces in which they arrive.
class FrameBuffer {
 public:
  void append(std::string_view bytes);
  std::optional<std::string> next();
  /// The peer does not speak in frames: nothing that follows can be understood.
  bool isDamaged() const { return isDamaged_; }

 private:
  std::string bytes_;
  std::size_t taken_ = 0;
  bool isDamaged_ = false;
};

}  // namespace device
