#include "device/system/frame_server.hpp"

#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <utility>

namespace device {

struct FrameServer::Connection {
  Descriptor socket;
  FrameBuffer frames;
  // Last, so that the run loop forgets the socket before it is closed.
  std::optional<Watch> watch;
};

FrameServer::FrameServer(const std::filesystem::path& socket, Handler handler)
    : handler_(std::move(handler)), listener_(listenAt(socket)) {
  if (listener_) watch_.emplace(listener_.get(), [this] { accept(); });
}

FrameServer::~FrameServer() = default;

void FrameServer::accept() {
  while (Descriptor socket = acceptFrom(listener_)) {
    auto connection = std::make_shared<Connection>();
    connection->socket = std::move(socket);
    connection->watch.emplace(connection->socket.get(),
                              [this, peer = std::weak_ptr(connection)] { read(peer.lock()); });
    connections_.insert(std::move(connection));
  }
}

// A handler may run the run loop and so come here again: frames are taken one by one, in order.
void FrameServer::read(const std::shared_ptr<Connection>& connection) {
  std::array<char, 65536> chunk;
  const ssize_t length = ::recv(connection->socket.get(), chunk.data(), chunk.size(), MSG_DONTWAIT);
  bool isOpen = length > 0 || (length < 0 && (errno == EAGAIN || errno == EINTR));
  if (length > 0) connection->frames.append({chunk.data(), static_cast<std::size_t>(length)});

  while (std::optional<std::string> frame = connection->frames.next()) {
    const std::optional<std::string> answer = handler_(*std::move(frame));
    if (answer && !sendFrame(connection->socket.get(), *answer)) isOpen = false;
  }
  if (isOpen && !connection->frames.isDamaged()) return;
  connection->watch.reset();
  connections_.erase(connection);
}

}  // namespace device
