// By how much the heap of each kind of host grows over many calls of every hook of the library:
//   heap_growth CALLS [SECONDS]
// A hook that would take longer is called less often. Exit status 1 when calls leave something behind, and
// when a hook is not called.

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>

#include "benchmarks/heap_growth/heap_growth.hpp"
#include "tests/temporary_folder.hpp"

namespace {

struct Host {
  const char* name;
  bool (*keepsNothing)(velvault12::Effort effort);
};

constexpr Host kHosts[] = {
    {"Photos", velvault12::photosKeepsNothing},
    {"Photos without SpringBoard", velvault12::photosAloneKeepsNothing},
    {"Camera", velvault12::cameraKeepsNothing},
    {"SpringBoard", velvault12::springBoardKeepsNothing},
    {"Any other app", velvault12::galleryKeepsNothing},
};

bool keepsNothing(const Host& host, velvault12::Effort effort) {
  try {
    return host.keepsNothing(effort);
  } catch (const std::exception& error) {
    std::printf("%s\n", error.what());
    return false;
  }
}

/// Hooks are installed once a process.
bool runsClean(const Host& host, velvault12::Effort effort) {
  std::printf("%s\n", host.name);
  std::fflush(stdout);
  const pid_t process = fork();
  if (process == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const bool isClean = keepsNothing(host, effort);
    std::fflush(stdout);
    _exit(isClean ? 0 : 1);
  }
  int status = 0;
  waitpid(process, &status, 0);
  if (WIFSIGNALED(status)) std::printf("ended by signal %d\n", WTERMSIG(status));
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

int main(int count, char** arguments) {
  constexpr double kMostSeconds = 120;
  const velvault12::Effort effort{count > 1 ? std::atoi(arguments[1]) : 0,
                                  count > 2 ? std::atof(arguments[2]) : kMostSeconds};
  if (effort.calls <= 0 || effort.mostSeconds <= 0 || count > 3) {
    std::fprintf(stderr, "usage: %s CALLS [SECONDS]\n", arguments[0]);
    return 2;
  }
  // The phones lie in memory, where there is such a place: no call waits for a disk.
  const std::filesystem::path memory = "/dev/shm";
  if (is_directory(memory)) setenv("TMPDIR", memory.c_str(), 0);
  const velvault12::TemporaryFolder phones;
  setenv("TMPDIR", phones.path().c_str(), 1);
  std::printf("%-96s %7s %10s %9s %9s\n", "hook", "calls", "bytes", "per call", "us/call");
  bool isClean = true;
  for (const Host& host : kHosts) isClean = runsClean(host, effort) && isClean;
  return isClean ? 0 : 1;
}
