#include "device/system/control.hpp"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include "device/system/process.hpp"

namespace device {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

fs::path socketOf(const fs::path& deviceFolder, pid_t app) {
  return deviceFolder / "run/control" / std::to_string(app);
}

// What is no UTF-8 of a text is replaced.
std::string frameOf(const json& value) { return value.dump(-1, ' ', false, json::error_handler_t::replace); }

std::string answerTo(const std::string& frame) {
  try {
    return frameOf({{"result", performHere(json::parse(frame))}});
  } catch (const std::exception& error) {
    return frameOf({{"error", error.what()}});
  }
}

json perform(const fs::path& socket, pid_t app, const json& command) {
  const Descriptor connection = connectTo(socket);
  std::optional<std::string> answer;
  if (connection && sendFrame(connection.get(), frameOf(command))) answer = receiveFrame(connection.get());
  if (!answer) throw std::runtime_error(endOf(app));
  json read = json::parse(*answer);
  if (read.contains("error")) throw std::runtime_error(read["error"].get<std::string>());
  return std::move(read.at("result"));
}

}  // namespace

std::unique_ptr<FrameServer> serveControl() {
  return std::make_unique<FrameServer>(socketOf(identity().folder, ::getpid()), answerTo);
}

User userOf(const fs::path& deviceFolder, pid_t app) {
  return User([socket = socketOf(deviceFolder, app), app](const json& command) {
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
