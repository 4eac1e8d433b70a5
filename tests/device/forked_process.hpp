#pragma once

#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <exception>
#include <functional>
#include <string>
#include <string_view>

#include "device/system/sockets.hpp"
#include "device/user/user.hpp"

namespace velvault12 {

/// A process that is a copy of this one, for as long as this object lives at the most. The test speaks to the
/// process through it, and the process to the test. To be made while this process is no app and has no
/// threads.
class ForkedProcess {
 public:
  using Life = std::function<void(const ForkedProcess& test)>;

  explicit ForkedProcess(const Life& life) {
    int ends[2] = {-1, -1};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends);
    const timeval patience{.tv_sec = device::kPatience.count() / 1000, .tv_usec = 0};
    for (const int end : ends) setsockopt(end, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    const pid_t parent = getpid();
    process_ = fork();
    const bool isChild = process_ == 0;
    line_ = device::Descriptor(ends[isChild ? 1 : 0]);
    close(ends[isChild ? 0 : 1]);
    if (isChild) live(parent, life);
  }
  ~ForkedProcess() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
  ForkedProcess(const ForkedProcess&) = delete;
  ForkedProcess& operator=(const ForkedProcess&) = delete;

  void say(std::string_view text) const { device::sendFrame(line_.get(), text); }
  /// What the other end says next; "" when it has ended or keeps silent.
  std::string hear() const { return device::receiveFrame(line_.get()).value_or(""); }

  void stop() const {
    kill(process_, SIGSTOP);
    waitpid(process_, nullptr, WUNTRACED);
  }
  void goOn() const { kill(process_, SIGCONT); }

 private:
  [[noreturn]] void live(pid_t parent, const Life& life) const {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    try {
      if (getppid() == parent) life(*this);
    } catch (const std::exception& error) {
      say(error.what());
    }
    _exit(0);
  }

  device::Descriptor line_;
  pid_t process_ = -1;
};

}  // namespace velvault12
