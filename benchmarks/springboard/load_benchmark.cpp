// Many apps that save at once, and the one SpringBoard that writes for them all.

#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <stdexcept>
#include <string>
#include <vector>

#include "benchmarks/phone.hpp"
#include "benchmarks/springboard/service_benchmark.hpp"
#include "device/system/process.hpp"
#include "device/system/run_loop.hpp"
#include "host/app_support.hpp"
#include "host/hook.hpp"
#include "host/springboard.hpp"
#include "startup/service_messages.hpp"
#include "tests/device/forked_process.hpp"

namespace velvault12::benchmarks {

namespace {

constexpr int kSenders = 8;
constexpr int kMessages = 2'000;
/// What an app sends in one go: as much as waits for SpringBoard without keeping the app waiting as well.
constexpr int kBurst = 100;

/// How many of each sender's messages have been served, and how many of all out of order.
std::array<int, kSenders> served;
int overtaken = 0;
/// From just before the sending, in seconds.
std::vector<double> latencies;

void noteServing(SpringBoard, Replaced<void(NSString, Object)> host, NSString name, Object userInfo) {
  const auto array = userInfo.as<NSDictionary>()[key::kArray].as<NSArray>().strings();
  const int sender = std::stoi(array.at(0)), number = std::stoi(array.at(1));
  latencies.push_back(static_cast<double>(nanoseconds() - std::stoll(array.at(2))) * 1e-9);
  if (number != served.at(sender)) ++overtaken;
  ++served.at(sender);
  host(name, userInfo);
}

ForkedProcess::Life sender(const Phone& phone, int index) {
  return [&phone, index](const ForkedProcess& bench) {
    device::become({phone.device.folder(), "org.example.sender"});
    const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
    const std::string path = "/var/mobile/Library/velvault/" + std::to_string(index) + ".plist";
    bench.say("ready");
    for (int number = 0; number < kMessages; ++number) {
      // A burst may take longer than this process listens.
      while (number % kBurst == 0 && bench.hear().empty()) continue;
      const AutoreleasePool pool;
      const auto request = makeObject<NSMutableDictionary>();
      request->set(key::kArray, NSArray::from({std::to_string(index), std::to_string(number),
                                               std::to_string(nanoseconds())}));
      request->set(key::kPath, NSString::from(path));
      center.sendMessage(kSaveArrayMessage, request.get());
    }
  };
}

}  // namespace

Figures measureLoad() {
  const Phone phone;
  std::deque<ForkedProcess> senders;
  for (int index = 0; index < kSenders; ++index) senders.emplace_back(sender(phone, index));
  for (const ForkedProcess& each : senders) each.hear();
  phone.device.launchHere(device::kSpringBoard);
  constexpr HookRow kRow = replace<noteServing>("SpringBoard", "handleMessageNamed:withUserInfo:", "v@:@@");
  installHooks({&kRow, 1});

  std::array<int, kSenders> sent{};
  while (latencies.size() < std::size_t{kSenders} * kMessages) {
    for (int index = 0; index < kSenders; ++index) {
      if (served.at(index) < sent.at(index) || sent[index] == kMessages) continue;
      senders[index].say("next burst");
      sent[index] += kBurst;
    }
    const auto isMore = [before = latencies.size()] { return latencies.size() > before; };
    if (!device::runUntil(isMore, device::kPatience)) throw std::runtime_error("messages are lost");
  }
  if (overtaken > 0) throw std::runtime_error(std::to_string(overtaken) + " messages are out of order");

  std::ranges::sort(latencies);
  Figures figures;
  for (const auto& [name, share] : {std::pair("p50", 0.5), {"p99", 0.99}, {"p99.9", 0.999}, {"max", 1.0}}) {
    const auto rank = static_cast<std::size_t>(share * static_cast<double>(latencies.size() - 1));
    figures.push_back(
        {std::string("savearray from 8 apps at once, ") + name, Version::library, latencies[rank]});
  }
  return figures;
}

}  // namespace velvault12::benchmarks
