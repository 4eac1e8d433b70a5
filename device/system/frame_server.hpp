#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "device/system/run_loop.hpp"
#include "device/system/sockets.hpp"

namespace device {

/// Serves a socket on the main thread's run loop, each connection by itself. Main thread only.
class FrameServer {
 public:
  /// Called with one frame after the other; what it answers is sent back.
  using Handler = std::function<std::optional<std::string>(std::string frame)>;

  FrameServer(const std::filesystem::path& socket, Handler handler);
  ~FrameServer();
  FrameServer(const FrameServer&) = delete;
  FrameServer& operator=(const FrameServer&) = delete;

  /// False when another living process has the socket.
  bool isServing() const { return static_cast<bool>(listener_); }

 private:
  struct Connection;
  void accept();
  void read(const std::shared_ptr<Connection>& connection);

  Handler handler_;
  Descriptor listener_;
  std::optional<Watch> watch_;
  std::set<std::shared_ptr<Connection>> connections_;
};

}  // namespace device
