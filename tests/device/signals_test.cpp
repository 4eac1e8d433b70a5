// What passes between the phone's processes and threads: notifications, messages, injected libraries, work.

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>

#include "host/app_support.hpp"
#include "host/class_pair.hpp"
#include "host/darwin_notifications.hpp"
#include "host/dispatch.hpp"
#include "host/process_wide.hpp"
#include "tests/device/forked_process.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

using Clock = std::chrono::steady_clock;
using Heard = std::vector<std::string>;

struct Teller {
  const Line* test = nullptr;
};
void tell(std::string_view text) {
  if (const Line* const test = processWide<Teller>().test) test->say(text);
}

void liveAs(std::string_view bundleIdentifier, const device::Device& phone, const Line& test) {
  device::become({phone.folder(), std::string(bundleIdentifier)});
  processWide<Teller>().test = &test;
}

/// What the process says next, in alphabetical order.
Heard hear(const ForkedProcess& process, std::size_t times) {
  Heard heard;
  while (heard.size() < times) heard.push_back(process.hear());
  std::sort(heard.begin(), heard.end());
  return heard;
}

class Notifications : public PhoneTest {
 protected:
  template <Name Text>
  static void heard() {
    tell(Text.text);
  }
  static void answer() { notify_post("test/own"); }

  ForkedProcess::Life observer(std::string_view bundleIdentifier, bool answers = false) {
    return [=, this](const Line& test) {
      liveAs(bundleIdentifier, phone_, test);
      constexpr auto kAtOnce = SuspensionBehavior::deliverImmediately;
      observeDarwinNotification<heard<"first">>("test/first", kAtOnce);
      observeDarwinNotification<heard<"first too">>("test/first", kAtOnce);
      observeDarwinNotification<heard<"second">>("test/second", SuspensionBehavior::coalesce);
      observeDarwinNotification<heard<"own">>("test/own", kAtOnce);
      if (answers) observeDarwinNotification<answer>("test/question", kAtOnce);
      test.say("ready");
      device::runForever();
    };
  }

  bool hasSocketOf(const std::string& process) const {
    const auto entries = std::filesystem::recursive_directory_iterator(phone_.folder() / "run");
    return std::any_of(begin(entries), end(entries), [&](const auto& entry) {
      return entry.path().filename().native().starts_with(process + ".");
    });
  }
};

TEST_F(Notifications, ReachEveryObserverOfTheirNameInEveryProcess) {
  const ForkedProcess app(observer("org.example.app", true));
  const ForkedProcess springBoard(observer(device::kSpringBoard));
  for (const ForkedProcess* process : {&app, &springBoard}) ASSERT_EQ(process->hear(), "ready");
  for (int round = 0; round < 3; ++round) {
    phone_.post("test/first");
    for (const ForkedProcess* process : {&app, &springBoard}) {
      EXPECT_EQ(hear(*process, 2), (Heard{"first", "first too"}));
    }
  }
  for (const std::string_view other : {"test/firs", "test/first/", "test%2Ffirst", "Test/First", "test", "",
                                       "../test/first", "test/second/../first"}) {
    phone_.post(other);
  }
  phone_.post("test/second");
  for (const ForkedProcess* process : {&app, &springBoard}) EXPECT_EQ(process->hear(), "second");
  // The one that posts it is among its observers. That it comes next shows that nothing else came.
  phone_.post("test/question");
  for (const ForkedProcess* process : {&app, &springBoard}) EXPECT_EQ(process->hear(), "own");
}

TEST_F(Notifications, WaitForNoObserverAndComeToEachAtLeastOnce) {
  const ForkedProcess quick(observer("org.example.quick"));
  const ForkedProcess slow(observer("org.example.slow"));
  ForkedProcess dead(observer("org.example.dead"));
  for (const auto* process : std::initializer_list<const ForkedProcess*>{&quick, &slow, &dead})
    ASSERT_EQ(process->hear(), "ready");
  device::NotificationCounter here(phone_, "test/first");
  slow.stop();
  const std::string gone = std::to_string(dead.process());
  ASSERT_TRUE(hasSocketOf(gone));
  dead.kill();

  const auto start = Clock::now();
  for (int i = 0; i < 1000; ++i) phone_.post("test/first");
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(4)) << "no send was waited for";
  EXPECT_EQ(here.count(), 1);
  EXPECT_NE(quick.hear().find("first"), std::string::npos);
  phone_.post("test/second");
  phone_.post("test/own");
  EXPECT_FALSE(hasSocketOf(gone)) << "what a dead process observed is forgotten";
  slow.goOn();
  EXPECT_EQ(hear(slow, 4), (Heard{"first", "first too", "own", "second"}));
  phone_.post("test/second");
  EXPECT_EQ(slow.hear(), "second");
}

class Messages : public PhoneTest {
 protected:
  static void take(Object, NSString, Object userInfo) {
    const auto text = stringValue(userInfo.as<NSDictionary>()["text"]);
    tell(userInfo ? text.value_or("no text") : "nil");
  }
  // The library opens every centre that it names.
  static CPDistributedMessagingCenter closedCenter(std::string_view name) {
    return sendToClass<"centerNamed:", CPDistributedMessagingCenter(NSString)>(
        CPDistributedMessagingCenter::hostClass(), NSString::from(name));
  }
  static bool send(CPDistributedMessagingCenter center, NSDictionary userInfo,
                   std::string_view message = "take") {
    return center.send<"sendMessageName:userInfo:", bool(NSString, NSDictionary)>(NSString::from(message),
                                                                                  userInfo);
  }
  static bool send(CPDistributedMessagingCenter center, std::string_view text) {
    const Ref<NSMutableDictionary> userInfo = makeObject<NSMutableDictionary>();
    userInfo->set("text", NSString::from(text));
    return send(center, userInfo.get());
  }

  ForkedProcess::Life server(const Heard& opened, const Heard& closed = {}) {
    return [=, this](const Line& test) {
      liveAs(device::kSpringBoard, phone_, test);
      const Class type = ClassPair(classNamed<"NSObject">(), "MessageTaker")
                             .method<take>(selector<"take:userInfo:">(), "v@:@@")
                             .registered();
      const Object target(sendToClass<"new", id()>(type));
      const auto serve = [&](CPDistributedMessagingCenter center) {
        center.runServerOnCurrentThread();
        center.registerForMessage("take", target, selector<"take:userInfo:">());
      };
      for (const auto& name : opened) serve(CPDistributedMessagingCenter::centerNamed(name));
      for (const auto& name : closed) serve(closedCenter(name));
      test.say("ready");
      device::runForever();
    };
  }
  /// Sends what the test says to the centre "test", and tells whether it was taken.
  ForkedProcess::Life client() {
    return [this](const Line& test) {
      liveAs("org.example.client", phone_, test);
      const auto center = CPDistributedMessagingCenter::centerNamed("test");
      for (std::string text; !(text = test.hear()).empty();) test.say(send(center, text) ? "taken" : "lost");
    };
  }
};

TEST_F(Messages, ComeInOrderWithWhatTheyCarryOrNothing) {
  const ForkedProcess served(server({"test"}));
  ASSERT_EQ(served.hear(), "ready");
  constexpr int kMany = 2000;
  const ForkedProcess sender([&](const Line& test) {
    liveAs("org.example.sender", phone_, test);
    const auto center = CPDistributedMessagingCenter::centerNamed("test");
    for (int i = 0; i < kMany; ++i) send(center, std::to_string(i));
    send(center, NSDictionary(), "nobody takes this");
    send(center, NSDictionary());
    send(center, makeObject<NSMutableDictionary>().get());
    send(center, std::string(200'000, 'x'));
    test.hear();
  });
  for (int i = 0; i < kMany; ++i) ASSERT_EQ(served.hear(), std::to_string(i));
  EXPECT_EQ(served.hear(), "nil");
  EXPECT_EQ(served.hear(), "no text");
  EXPECT_EQ(served.hear().size(), 200'000U);
}

TEST_F(Messages, AreLostAtOnceWithoutAServerAndFindTheNextOne) {
  const ForkedProcess sender(client());
  for (int round = 0; round < 3; ++round) {
    const auto start = Clock::now();
    // The last time, the next server is there before its predecessor is missed.
    for (int i = 0; i < 20 && round < 2; ++i) {
      sender.say("into the void");
      EXPECT_EQ(sender.hear(), "lost");
    }
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(2));
    const ForkedProcess served(server({"test"}));
    ASSERT_EQ(served.hear(), "ready");
    const std::string text = "round " + std::to_string(round);
    sender.say(text);
    EXPECT_EQ(sender.hear(), "taken");
    EXPECT_EQ(served.hear(), text);
  }
}

TEST_F(Messages, OfASandboxedAppPassOnlyWhereBothEndsAreOpen) {
  const ForkedProcess served(server({"open.a", "open.b"}, {"closed.a", "closed.b"}));
  ASSERT_EQ(served.hear(), "ready");
  const auto reachable = [&](std::string_view bundleIdentifier) {
    const ForkedProcess sender([&](const Line& test) {
      liveAs(bundleIdentifier, phone_, test);
      for (const std::string name : {"closed.a", "closed.b", "open.a", "open.b"}) {
        const bool opens = name.ends_with(".a");
        const auto center = opens ? CPDistributedMessagingCenter::centerNamed(name) : closedCenter(name);
        const bool isServed = center.send<"doesServerExist", bool()>();
        const bool isTaken = send(center, name);
        if (isTaken || isServed) test.say(isTaken && isServed ? name : "not both");
      }
      test.say("done");
    });
    Heard names;
    for (std::string name; (name = sender.hear()) != "done" && !name.empty();) names.push_back(name);
    EXPECT_EQ(hear(served, names.size()), names);
    return names;
  };
  EXPECT_EQ(reachable("org.example.app"), Heard{"open.a"});
  EXPECT_EQ(reachable(device::kSpringBoard), (Heard{"closed.a", "closed.b", "open.a", "open.b"}));
}

class Loader : public PhoneTest {
 protected:
  static constexpr std::string_view kEverywhere = "{ Filter = { Bundles = (\"com.apple.UIKit\"); }; }";

  void install(std::string_view name, std::string_view contents) const {
    write("/Library/MobileSubstrate/DynamicLibraries/" + std::string(name), contents);
  }
  /// Whether an app that runs has the library in it.
  bool isLoadedIn(std::string_view bundleIdentifier) const {
    const device::App app = phone_.launch(bundleIdentifier);
    EXPECT_FALSE(app.user().screen().empty());
    std::ifstream maps("/proc/" + std::to_string(app.process()) + "/maps");
    const std::string all(std::istreambuf_iterator<char>(maps), {});
    return all.find("/velvault12.dylib") != std::string::npos;
  }
};

TEST_F(Loader, LoadsWhereAFilterNamesTheProcessAndNowhereByADamagedOne) {
  struct Case {
    std::string_view filter;
    bool inGallery = false;
    bool inPhotos = false;
  };
  for (const Case& expected : {
           Case{kEverywhere, true, true},
           Case{"{ Filter = { Bundles = (\"org.example.other\", \"org.example.gallery\"); }; }", true, false},
           Case{"{ Filter = { Bundles = ((), {}, \"com.apple.mobileslideshow\"); }; }", false, true},
           Case{"{ Filter = { Classes = (NSObject); }; }", true, true},
           Case{"{ Filter = { Classes = (NoSuchClass, {}); Bundles = (); }; }"},
           Case{"{ Filter = { Bundles = (\"com.apple.UIKit\""},
           Case{"{ Filter = { Bundles = \"com.apple.UIKit\"; }; }"},
           Case{"{ Filter = \"com.apple.UIKit\"; }"},
           Case{"(\"com.apple.UIKit\")"},
           Case{"bplist00"},
           Case{""},
       }) {
    install("velvault12.plist", expected.filter);
    EXPECT_EQ(isLoadedIn(device::kGallery), expected.inGallery) << expected.filter;
    EXPECT_EQ(isLoadedIn(device::kPhotos), expected.inPhotos) << expected.filter;
  }
}

TEST_F(Loader, LoadsTheRestBesidesWhatCannotBeLoaded) {
  install("a damaged one.plist", kEverywhere);
  install("a damaged one.dylib", "no library");
  install("a lone one.plist", kEverywhere);
  install("a folder.plist/file", "");
  EXPECT_TRUE(isLoadedIn(device::kGallery));
}

class MainQueue : public PhoneTest {};

TEST_F(MainQueue, PerformsAndReleasesOnTheMainThreadInOrder) {
  device::become({phone_.folder(), "org.example.app"});
  constexpr int kThreads = 4;
  constexpr int kEach = 1000;
  const auto here = std::this_thread::get_id();
  std::atomic<int> elsewhere = 0;
  const auto noteThread = [&] { elsewhere += std::this_thread::get_id() != here; };
  int done[kThreads] = {};
  int outOfOrder = 0;
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      for (int i = 0; i < kEach; ++i) {
        std::shared_ptr<void> captured(nullptr, [&](void*) { noteThread(); });
        runOnMainQueue([&, thread, i, captured = std::move(captured)] {
          noteThread();
          outOfOrder += done[thread]++ != i;
        });
      }
    });
  }
  const auto all = [&] { return std::all_of(done, done + kThreads, [](int n) { return n == kEach; }); };
  EXPECT_TRUE(soon(all));
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(elsewhere, 0);
  EXPECT_EQ(outOfOrder, 0);
}

TEST_F(MainQueue, WorkThatWorkPostsWaitsForTheNextTurn) {
  device::become({phone_.folder(), "org.example.app"});
  bool first = false;
  bool second = false;
  runOnMainQueue([&] {
    first = true;
    runOnMainQueue([&] { second = true; });
  });
  EXPECT_TRUE(soon([&] { return first; }));
  EXPECT_FALSE(second);
  EXPECT_TRUE(soon([&] { return second; }));
}

}  // namespace
}  // namespace velvault12
