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
#include <utility>

#include "device/system/sockets.hpp"
#include "device/user/user.hpp"

namespace velvault12 {

/// One end of a conversation between the test and a process that it forked.
class Line {
 public:
  explicit Line(int socket) : socket_(socket) {
    const timeval patience{.tv_sec = device::kPatience.count() / 1000, .tv_usec = 0};
    setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  }
  void say(std::string_view text) const { device::sendFrame(socket_.get(), text); }
  /// What the other end says next; "" when it has ended or keeps silent.
  std::string hear() const { return device::receiveFrame(socket_.get()).value_or(""); }

 private:
  device::Descriptor socket_;
};

/// A process that is a copy of this one, for as long as this object lives at the most. To be made while this
/// process is no app and has no threads.
class ForkedProcess {
 public:
  using Life = std::function<void(const Line& test)>;

  explicit ForkedProcess(const Life& life) : ForkedProcess(ends(), life) {}
  ~ForkedProcess() { kill(); }
  ForkedProcess(const ForkedProcess&) = delete;
  ForkedProcess& operator=(const ForkedProcess&) = delete;

  pid_t process() const { return process_; }
  void say(std::string_view text) const { line_.say(text); }
  std::string hear() const { return line_.hear(); }

  void stop() const {
    ::kill(process_, SIGSTOP);
    waitpid(process_, nullptr, WUNTRACED);
  }
  void goOn() const { ::kill(process_, SIGCONT); }
  void kill() {
    if (process_ <= 0) return;
    ::kill(process_, SIGKILL);
    waitpid(std::exchange(process_, -1), nullptr, 0);
  }

 private:
  using Ends = std::pair<int, int>;
  static Ends ends() {
    int sockets[2] = {-1, -1};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets);
    return {sockets[0], sockets[1]};
  }

  ForkedProcess(Ends ends, const Life& life) : line_(ends.first) {
    const pid_t parent = getpid();
    process_ = fork();
    if (process_ == 0) live(ends, parent, life);
    close(ends.second);
  }
  [[noreturn]] static void live(Ends ends, pid_t parent, const Life& life) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(1);
    close(ends.first);
    const Line test(ends.second);
    try {
      life(test);
    } catch (const std::exception& error) {
      test.say(error.what());
    }
    _exit(0);
  }

  Line line_;
  pid_t process_ = -1;
};

}  // namespace velvault12
