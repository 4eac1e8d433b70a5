#include "benchmarks/startup/constructor_benchmark.hpp"

#include <dlfcn.h>

#include <sstream>
#include <stdexcept>

#include "benchmarks/phone.hpp"
#include "benchmarks/startup/empty_library.hpp"
#include "device/frameworks/installed_hooks.hpp"
#include "device/system/loader.hpp"
#include "device/system/process.hpp"
#include "host/darwin_notifications.hpp"
#include "host/foundation.hpp"
#include "host/reference.hpp"
#include "startup/shared_files.hpp"
#include "tests/device/forked_process.hpp"

namespace velvault12::benchmarks {

std::vector<EmptyRow> emptyRows;

namespace {

struct Host {
  const char* name;
  std::string_view bundleIdentifier;
};
constexpr Host kHosts[] = {{"Camera", device::kCamera},
                           {"Photos", device::kPhotos},
                           {"SpringBoard", device::kSpringBoard},
                           {"an app that reads photos", device::kGallery},
                           {"the shop demonstration", device::kShopDemo}};

/// What the library installs in that app.
std::vector<EmptyRow> rowsIn(const Phone& phone, std::string_view app) {
  const ForkedProcess process([&](const ForkedProcess& test) {
    device::become({phone.device.folder(), std::string(app)});
    device::loadInjectedLibraries();
    std::ostringstream rows;
    for (const auto& hook : device::installedHooks()) {
      rows << hook.className << ' ' << hook.selector << ' ' << hook.encoding << ' ' << hook.isClassMethod
           << ' ' << (hook.kind == device::InstalledHook::Kind::added) << '\n';
    }
    test.say(rows.str());
  });
  std::istringstream told(process.hear());
  std::vector<EmptyRow> rows;
  for (EmptyRow row;
       told >> row.className >> row.selector >> row.encoding >> row.isClassMethod >> row.isAdded;)
    rows.push_back(row);
  return rows;
}

void ignore() {}

/// What every app's own frameworks have done before its libraries are loaded. The first time, each of these
/// costs the host more than the whole library does.
void beAHost() {
  NSBundle::mainBundle().bundleIdentifier();
  NSDictionary::contentsOfFile(kPreferencesFile).allKeys();
  observeDarwinNotification<ignore>("org.example.other", SuspensionBehavior::deliverImmediately);
}

double secondsToLoad(const Phone& phone, std::string_view app, const char* library) {
  const ForkedProcess process([&](const ForkedProcess& test) {
    device::become({phone.device.folder(), std::string(app)});
    const AutoreleasePool pool;
    beAHost();
    test.say(std::to_string(secondsOf([library] {
      if (dlopen(library, RTLD_NOW | RTLD_LOCAL) == nullptr) throw std::runtime_error(dlerror());
    })));
  });
  return std::stod(process.hear());
}

}  // namespace

Figures measureLoading() {
  Phone phone;
  phone.device.writePreferences(
      {{"passOption", 1}, {"hideFoldersInApps", false}, {"albumNameHolidays", false}});
  phone.lock({"Holidays", "Pets"});
  Versions versions;
  Bench bench(versions);
  for (const auto& [name, app] : kHosts) {
    const auto load = [&phone, app = app, rows = rowsIn(phone, app)](Version version) {
      emptyRows = rows;
      return secondsToLoad(phone, app, version == Version::floor ? EMPTY_LIBRARY : VELVAULT12_LIBRARY);
    };
    bench.addTimed(std::string("load: ") + name, {Version::floor, Version::library}, 10, load);
  }
  return bench.figures();
}

}  // namespace velvault12::benchmarks
