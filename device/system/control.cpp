#include "device/system/control.hpp"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "device/system/process.hpp"

namespace device {
namespace {

namespace fs = std::filesystem;

// An answer's first byte.
constexpr char kResult = 'r';
constexpr char kError = 'e';

fs::path socketOf(const fs::path& deviceFolder, pid_t app) {
  return deviceFolder / "run/control" / std::to_string(app);
}

// Each word is ended by a zero byte, which none contains.
std::string joined(const std::vector<std::string>& command) {
  std::string frame;
  for (const std::string& word : command) frame.append(word, 0, word.find('\0')).push_back('\0');
  return frame;
}

std::vector<std::string> split(std::string_view frame) {
  std::vector<std::string> command;
  for (std::size_t end; (end = frame.find('\0')) != frame.npos; frame.remove_prefix(end + 1)) {
    command.emplace_back(frame.substr(0, end));
  }
  return command;
}

std::string answerTo(std::string_view frame) {
  try {
    return kResult + performHere(split(frame));
  } catch (const std::exception& error) {
    return kError + std::string(error.what());
  }
}

std::string perform(const fs::path& socket, pid_t app, const std::vector<std::string>& command) {
  const Descriptor connection = connectTo(socket);
  std::optional<std::string> answer;
  if (connection && sendFrame(connection.get(), joined(command))) answer = receiveFrame(connection.get());
  if (!answer || answer->empty()) throw std::runtime_error(endOf(app));
  std::string text = answer->substr(1);
  if (answer->front() == kError) throw std::runtime_error(text);
  return text;
}

}  // namespace

std::unique_ptr<FrameServer> serveControl() {
  return std::make_unique<FrameServer>(socketOf(identity().folder, ::getpid()), answerTo);
}

User userOf(const fs::path& deviceFolder, pid_t app) {
  return User([socket = socketOf(deviceFolder, app), app](const std::vector<std::string>& command) {
    return perform(socket, app, command);
  });
}

std::string endOf(pid_t process) {
  siginfo_t end{};
  if (::waitid(P_PID, process, &end, WEXITED | WNOWAIT) != 0) return "its process has ended";
  const std::string how = end.si_code == CLD_EXITED ? "exit status " : "signal ";
  return "its process has ended with " + how + std::to_string(end.si_status);
}

}  // namespace device
