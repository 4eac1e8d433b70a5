// Many apps that save at once, and the one SpringBoard that writes for them all.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <iostream>
#include <numeric>

#include "host/app_support.hpp"
#include "host/hook.hpp"
#include "host/springboard.hpp"
#include "startup/service_messages.hpp"
#include "tests/device/forked_process.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

constexpr int kSenders = 8;
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr int kMessages = 4'000;
#else
constexpr int kMessages = 10'000;
#endif

/// What an app sends in one go: as much as waits for SpringBoard without keeping the app waiting as well.
constexpr int kBurst = 100;

/// How many of each sender's have been served, and how many of all not in the order of their sending.
std::array<int, kSenders> served;
int overtaken = 0;
/// From just before the sending, in microseconds.
std::vector<double> latencies;

std::int64_t nanoseconds() { return std::chrono::steady_clock::now().time_since_epoch().count(); }

void noteServing(SpringBoard, Replaced<void(NSString, Object)> host, NSString name, Object userInfo) {
  const auto array = userInfo.as<NSDictionary>()[key::kArray].as<NSArray>().strings();
  latencies.push_back(static_cast<double>(nanoseconds() - std::stoll(array.at(2))) / 1000);
  overtaken += std::stoi(array[1]) != served.at(std::stoi(array[0]))++;
  host(name, userInfo);
}

class Load : public PhoneTest {
 protected:
  static std::string fileOf(int sender) {
    return std::string(kStateFolder) + "/" + std::to_string(sender) + ".plist";
  }
  ForkedProcess::Life sender(int index) const {
    return [this, index](const ForkedProcess& test) {
      become("org.example.sender");
      const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
      test.say("ready");
      for (int number = 0; number < kMessages; ++number) {
        // On a busy machine a burst may take longer than anybody listens.
        while (number % kBurst == 0 && test.hear().empty()) continue;
        const AutoreleasePool pool;
        const NSArray array =
            NSArray::from({std::to_string(index), std::to_string(number), std::to_string(nanoseconds())});
        center.sendMessage(kSaveArrayMessage,
                           dictionaryOf({{key::kSender, NSString::from("org.example.sender")},
                                         {key::kArray, array},
                                         {key::kPath, NSString::from(fileOf(index))}}));
      }
    };
  }
  static void report() {
    std::sort(latencies.begin(), latencies.end());
    std::cout << latencies.size() << " messages, microseconds until served:";
    for (const auto& [name, share] : {std::pair("p50", 0.5), {"p99", 0.99}, {"p99.9", 0.999}, {"max", 1.0}}) {
      const auto rank = static_cast<std::size_t>(share * static_cast<double>(latencies.size() - 1));
      const std::string value = std::to_string(static_cast<long>(latencies.at(rank)));
      RecordProperty(name, value);
      std::cout << " " << name << " " << value;
    }
    std::cout << std::endl;
  }
};

TEST_F(Load, NothingOfWhatManyAppsSendAtOnceIsLostOrOvertaken) {
  std::deque<ForkedProcess> senders;
  for (int index = 0; index < kSenders; ++index) senders.emplace_back(sender(index));
  for (const ForkedProcess& each : senders) ASSERT_EQ(each.hear(), "ready");
  phone_.launchHere(device::kSpringBoard);
  installHook(replace<noteServing>("SpringBoard", "handleMessageNamed:withUserInfo:", "v@:@@"));
  std::array<int, kSenders> wanted{};
  for (int all = 0; all < kSenders * kMessages;) {
    for (int index = 0; index < kSenders; ++index) {
      if (served.at(index) < wanted.at(index) || wanted[index] == kMessages) continue;
      senders[index].say("next burst");
      wanted[index] += kBurst;
    }
    const int before = all;
    ASSERT_TRUE(soon([&] { return (all = std::accumulate(served.begin(), served.end(), 0)) > before; }))
        << all;
  }
  EXPECT_EQ(overtaken, 0);
  for (int index = 0; index < kSenders; ++index) {
    EXPECT_EQ(served.at(index), kMessages);
    EXPECT_EQ(phone_.strings(fileOf(index))->at(1), std::to_string(kMessages - 1));
  }
  report();
}

}  // namespace
}  // namespace velvault12
