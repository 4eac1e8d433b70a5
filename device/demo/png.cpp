#include "device/demo/png.hpp"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace device {
namespace {

constexpr std::string_view kConverter = "rsvg-convert";

[[noreturn]] void fail(const std::filesystem::path& png, const std::string& reason) {
  throw std::runtime_error(png.native() + " was not made by " + std::string(kConverter) + ": " + reason);
}

using File = std::unique_ptr<std::FILE, decltype(&std::fclose)>;

/// A nameless file that holds the text and is to be read from its start.
File holding(const std::string& text) {
  File file(std::tmpfile(), &std::fclose);
  if (!file || std::fwrite(text.data(), 1, text.size(), file.get()) != text.size() ||
      std::fflush(file.get()) != 0 || ::lseek(::fileno(file.get()), 0, SEEK_SET) != 0) {
    throw std::runtime_error("no room for a temporary file");
  }
  return file;
}

/// What `waitpid` tells of the program's end; throws when it cannot be started.
int run(const std::string& svg, const std::filesystem::path& png) {
  const File input = holding(svg);
  std::string words[] = {std::string(kConverter), "--zoom", "2", "--output", png.native()};
  char* const arguments[] = {words[0].data(), words[1].data(), words[2].data(),
                             words[3].data(), words[4].data(), nullptr};
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, ::fileno(input.get()), STDIN_FILENO);
  pid_t process = -1;
  const int error = ::posix_spawnp(&process, arguments[0], &actions, nullptr, arguments, environ);
  ::posix_spawn_file_actions_destroy(&actions);
  if (error != 0) fail(png, std::strerror(error));
  int end = 0;
  while (::waitpid(process, &end, 0) < 0 && errno == EINTR) continue;
  return end;
}

}  // namespace

void writePng(const std::string& svg, const std::filesystem::path& png) {
  const int end = run(svg, png);
  if (!WIFEXITED(end)) fail(png, "signal " + std::to_string(WTERMSIG(end)));
  if (WEXITSTATUS(end) != 0) fail(png, "exit status " + std::to_string(WEXITSTATUS(end)));
}

}  // namespace device
