#include "device/system/launch.hpp"

#include <unistd.h>

#include <cerrno>
#include <exception>
#include <memory>
#include <string_view>
#include <utility>

#include "device/apps/app.hpp"
#include "device/system/control.hpp"
#include "device/system/loader.hpp"
#include "device/system/run_loop.hpp"
#include "device/system/sockets.hpp"

namespace device {
namespace {

void tell(Descriptor ready, std::string_view text) {
  while (::write(ready.get(), text.data(), text.size()) < 0 && errno == EINTR) continue;
}

}  // namespace

void launchApp(Identity identity) {
  become(std::move(identity));
  loadInjectedLibraries();
  startApp(device::identity().bundleIdentifier);
}

int runApp(Identity identity, int readyPipe) {
  Descriptor ready(readyPipe);
  std::unique_ptr<FrameServer> control;
  try {
    launchApp(std::move(identity));
    control = serveControl();
  } catch (const std::exception& error) {
    tell(std::move(ready), error.what());
    return 1;
  }
  tell(std::move(ready), kReady);
  runForever();
}

}  // namespace device
