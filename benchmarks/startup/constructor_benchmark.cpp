#include "benchmarks/startup/constructor_benchmark.hpp"

#include <dlfcn.h>
#include <malloc.h>

#include <fstream>
#include <nlohmann/json.hpp>
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

using nlohmann::json;

std::vector<EmptyRow> emptyRows;
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(EmptyRow, className, selector, encoding, isClassMethod, isAdded)

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
    std::vector<EmptyRow> rows;
    for (const auto& hook : device::installedHooks()) {
      rows.push_back({hook.className, hook.selector, hook.encoding, hook.isClassMethod,
                      hook.kind == device::InstalledHook::Kind::added});
    }
    test.say(json(rows).dump());
  });
  return json::parse(process.hear()).get<std::vector<EmptyRow>>();
}

void ignore() {}

/// What every app's own frameworks have done before its libraries are loaded. The first time, each of these
/// costs the host more than the whole library does.
void beAHost() {
  NSBundle::mainBundle().bundleIdentifier();
  NSDictionary::contentsOfFile(kPreferencesFile).allKeys();
  observeDarwinNotification<ignore>("org.example.other", SuspensionBehavior::deliverImmediately);
}

void load(const char* library) {
  if (dlopen(library, RTLD_NOW | RTLD_LOCAL) == nullptr) throw std::runtime_error(dlerror());
}

/// What a process that is about to become that app says of the loading.
json askOfLoading(const Phone& phone, std::string_view app, const std::function<json()>& loading) {
  const ForkedProcess process([&](const ForkedProcess& test) {
    device::become({phone.device.folder(), std::string(app)});
    const AutoreleasePool pool;
    beAHost();
    test.say(loading().dump());
  });
  return json::parse(process.hear());
}

double secondsToLoad(const Phone& phone, std::string_view app, const char* library) {
  const auto seconds = [library] { return secondsOf([library] { load(library); }); };
  return askOfLoading(phone, app, seconds).get<double>();
}

/// Numbers of one process.
struct Memory {
  std::int64_t heap = 0;
  std::int64_t written = 0;
  std::int64_t mapped = 0;
};
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(Memory, heap, written, mapped)

std::int64_t heapBytes() {
  const auto heap = mallinfo2();
  return static_cast<std::int64_t>(heap.uordblks + heap.hblkhd);
}

/// Of the mappings of that file.
Memory mappedFrom(const std::string& file) {
  constexpr std::int64_t kKilobyte = 1024;
  Memory memory;
  std::ifstream maps("/proc/self/smaps");
  bool isItsOwn = false;
  for (std::string line; std::getline(maps, line);) {
    std::istringstream words(line);
    std::string key;
    std::int64_t kilobytes = 0;
    words >> key;
    // A mapping begins with its addresses and ends with its file.
    if (key.find('-') != key.npos) isItsOwn = line.ends_with(file);
    if (!isItsOwn || !(words >> kilobytes)) continue;
    if (key == "Size:") memory.mapped += kilobytes * kKilobyte;
    if (key == "Private_Dirty:") memory.written += kilobytes * kKilobyte;
  }
  return memory;
}

Memory memoryToLoad(const Phone& phone, std::string_view app, const char* library) {
  const auto loading = [library] {
    const std::int64_t before = heapBytes();
    load(library);
    const std::int64_t heap = heapBytes() - before;
    Memory memory = mappedFrom(library);
    memory.heap = heap;
    return memory;
  };
  return askOfLoading(phone, app, loading).get<Memory>();
}

void choose(const Phone& phone) {
  phone.device.writePreferences(
      {{"passOption", 1}, {"hideFoldersInApps", false}, {"albumNameHolidays", false}});
  phone.lock({"Holidays", "Pets"});
}

}  // namespace

Figures measureLoading() {
  const Phone phone;
  choose(phone);
  Versions versions;
  Bench bench(versions);
  for (const auto& [name, app] : kHosts) {
    const auto seconds = [&phone, app = app, rows = rowsIn(phone, app)](Version version) {
      emptyRows = rows;
      return secondsToLoad(phone, app, version == Version::floor ? EMPTY_LIBRARY : VELVAULT12_LIBRARY);
    };
    bench.addTimed(std::string("load: ") + name, {Version::floor, Version::library}, 10, seconds);
  }
  return bench.figures();
}

std::string memoryReport() {
  const Phone phone;
  choose(phone);
  std::ostringstream table;
  table
      << "| bytes added to | heap, floor | heap, library | pages written | mapped |\n|---|---|---|---|---|\n";
  for (const auto& [name, app] : kHosts) {
    emptyRows = rowsIn(phone, app);
    const Memory floor = memoryToLoad(phone, app, EMPTY_LIBRARY);
    const Memory library = memoryToLoad(phone, app, VELVAULT12_LIBRARY);
    table << "| " << name << " | " << floor.heap << " | " << library.heap << " | " << library.written << " | "
          << library.mapped << " |\n";
  }
  return table.str();
}

}  // namespace velvault12::benchmarks
