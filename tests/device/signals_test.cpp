// What passes between the phone's processes and threads: notifications, messages, injected libraries, work.

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include "device/system/disk.hpp"
#include "host/app_support.hpp"
#include "host/class_pair.hpp"
#include "host/darwin_notifications.hpp"
#include "host/dispatch.hpp"
#include "tests/device/forked_process.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

class Signals : public PhoneTest {
 protected:
  /// An app that prepares itself and then handles what comes.
  class App : public ForkedProcess {
   public:
    App(const Signals& phone, std::string_view bundleIdentifier, const std::function<void()>& prepare)
        : ForkedProcess([&](const ForkedProcess& test) {
            phone.become(bundleIdentifier);
            test_ = &test;
            prepare();
            tell("ready");
            device::runForever();
          }) {
      EXPECT_EQ(hear(), "ready");
    }
  };
  /// In an app: says it to the test.
  static void tell(std::string_view text) { test_->say(text); }

  /// What each process says next, in alphabetical order, is this.
  static void expectFrom(std::initializer_list<const ForkedProcess*> processes, const Titles& expected) {
    for (const ForkedProcess* process : processes) {
      Titles heard;
      while (heard.size() < expected.size()) heard.push_back(process->hear());
      std::sort(heard.begin(), heard.end());
      ASSERT_EQ(heard, expected);
    }
  }

 private:
  static inline const ForkedProcess* test_ = nullptr;
};

class Notifications : public Signals {
 protected:
  template <Name Text>
  static void heard() {
    tell(Text.text);
  }
  App observer(std::string_view bundleIdentifier) const {
    return App(*this, bundleIdentifier, [] {
      constexpr auto kAtOnce = SuspensionBehavior::deliverImmediately;
      observeDarwinNotification<heard<"first">>("test/first", kAtOnce);
      observeDarwinNotification<heard<"first too">>("test/first", kAtOnce);
      observeDarwinNotification<heard<"second">>("test/second", SuspensionBehavior::coalesce);
    });
  }
};

TEST_F(Notifications, ReachEveryObserverOfTheirNameAtLeastOnceAndWaitForNone) {
  const App app = observer("org.example.app");
  const App springBoard = observer(device::kSpringBoard);
  { const App dead = observer("org.example.dead"); }
  EXPECT_EQ(observers("test/first"), 6);
  for (int round = 0; round < 3; ++round) {
    phone_.post("test/first");
    expectFrom({&app, &springBoard}, {"first", "first too"});
  }
  EXPECT_EQ(observers("test/first"), 4) << "what a dead process observed is forgotten";
  for (const std::string_view other : {"test/firs", "test/first/", "test%2Ffirst", "Test/First", "test", "",
                                       "../test/first", "test/second/../first"}) {
    phone_.post(other);
  }
  phone_.post("test/second");
  expectFrom({&app, &springBoard}, {"second"});

  device::NotificationCounter here(phone_, "test/first");
  springBoard.stop();
  for (int i = 0; i < 1000; ++i) phone_.post("test/first");
  phone_.post("test/second");
  EXPECT_EQ(here.count(), 1);
  EXPECT_NE(app.hear().find("first"), std::string::npos);
  springBoard.goOn();
  expectFrom({&springBoard}, {"first", "first too", "second"});
  phone_.post("test/second");
  expectFrom({&springBoard}, {"second"});
}

class Messages : public Signals {
 protected:
  static constexpr std::string_view kCenters[] = {"closed.a", "closed.b", "open.a", "open.b"};

  static void take(Object, NSString, Object userInfo) {
    const auto text = stringValue(userInfo.as<NSDictionary>()["text"]);
    tell(userInfo ? text.value_or("no text") : "nil");
  }
  /// The library opens every centre that it names; the host alone does not.
  static CPDistributedMessagingCenter center(std::string_view name, bool isOpened = true) {
    if (isOpened) return CPDistributedMessagingCenter::centerNamed(name);
    return sendToClass<"centerNamed:", CPDistributedMessagingCenter(NSString)>(
        CPDistributedMessagingCenter::hostClass(), NSString::from(name));
  }
  static bool send(CPDistributedMessagingCenter center, Object userInfo, std::string_view message = "take") {
    return center.send<"sendMessageName:userInfo:", bool(NSString, Object)>(NSString::from(message),
                                                                            userInfo);
  }
  static bool send(CPDistributedMessagingCenter center, std::string_view text) {
    return send(center, dictionaryOf({{"text", NSString::from(text)}}));
  }

  /// Serves centres of which those in "open." are opened.
  App server() const {
    return App(*this, device::kSpringBoard, [] {
      const Class type = ClassPair(classNamed<"NSObject">(), "MessageTaker")
                             .method<take>(selector<"take:userInfo:">(), "v@:@@")
                             .registered();
      const Object target(sendToClass<"new", id()>(type));
      for (const std::string_view name : kCenters) {
        const auto served = center(name, name.starts_with("open."));
        served.runServerOnCurrentThread();
        served.registerForMessage("take", target, selector<"take:userInfo:">());
      }
    });
  }
};

TEST_F(Messages, ComeInOrderWithWhatTheyCarryOrAreLostWithoutAServer) {
  const ForkedProcess sender([this](const ForkedProcess& test) {
    become("org.example.sender");
    const auto there = center("open.a");
    for (std::string text; !(text = test.hear()).empty();) {
      test.say(send(there, text) ? "taken" : "lost");
      send(there, Object(), "nobody takes this");
      send(there, Object());
      send(there, dictionaryOf());
    }
  });
  for (const std::string& text : Titles{"first", "second", std::string(200'000, 'x')}) {
    // The last time, the next server is there before its predecessor is missed.
    for (int i = 0; i < 20 && text.size() < 10; ++i) {
      sender.say("into the void");
      expectFrom({&sender}, {"lost"});
    }
    const App served = server();
    sender.say(text);
    expectFrom({&sender}, {"taken"});
    for (const std::string& next : Titles{text, "nil", "no text"}) EXPECT_EQ(served.hear(), next);
  }
}

TEST_F(Messages, OfASandboxedAppPassOnlyWhereBothEndsAreOpen) {
  const App served = server();
  for (const bool isSandboxed : {true, false}) {
    const ForkedProcess sender([&](const ForkedProcess& test) {
      become(isSandboxed ? "org.example.app" : device::kSpringBoard);
      for (const std::string_view name : kCenters) send(center(name, name.ends_with(".a")), name);
      test.say("done");
    });
    expectFrom({&sender}, {"done"});
    expectFrom({&served}, isSandboxed ? Titles{"open.a"} : Titles(std::begin(kCenters), std::end(kCenters)));
  }
}

class Loader : public PhoneTest {
 protected:
  void install(std::string_view name, std::string_view contents) const {
    write("/Library/MobileSubstrate/DynamicLibraries/" + std::string(name), contents);
  }
  /// Whether an app that runs has the library in it.
  bool isLoadedIn(std::string_view bundleIdentifier) const {
    const device::App app = phone_.launch(bundleIdentifier);
    const auto maps = device::readFile("/proc/" + std::to_string(app.process()) + "/maps");
    return maps->find("/velvault12.dylib") != std::string::npos;
  }
};

TEST_F(Loader, LoadsWhereAFilterNamesTheProcess) {
  install("a damaged one.plist", "{ Filter = { Bundles = (\"com.apple.UIKit\"); }; }");
  install("a damaged one.dylib", "no library");
  using Case = std::tuple<std::string_view, bool, bool>;
  for (const auto& [filter, inGallery, inPhotos] : {
           Case{"{ Filter = { Bundles = (\"org.example.other\", \"org.example.gallery\"); }; }", true, false},
           Case{"{ Filter = { Bundles = ((), {}, \"com.apple.mobileslideshow\"); }; }", false, true},
           Case{"{ Filter = { Classes = (NSObject); }; }", true, true},
           Case{"{ Filter = { Classes = (NoSuchClass, {}); Bundles = \"com.apple.UIKit\"; }; }", false,
                false},
           Case{"(\"com.apple.UIKit\")", false, false},
       }) {
    install("velvault12.plist", filter);
    EXPECT_EQ(isLoadedIn(device::kGallery), inGallery) << filter;
    EXPECT_EQ(isLoadedIn(device::kPhotos), inPhotos) << filter;
  }
}

using MainQueue = PhoneTest;

TEST_F(MainQueue, RunsWorkInOrderOnTheMainThread) {
  become("org.example.app");
  std::vector<int> done;
  std::jthread poster([&, mainThread = std::this_thread::get_id()] {
    for (int i = 0; i < 1000; ++i) {
      runOnMainQueue([&done, i, mainThread] {
        EXPECT_EQ(std::this_thread::get_id(), mainThread);
        done.push_back(i);
      });
    }
  });
  EXPECT_TRUE(soon([&] { return done.size() == 1000; }));
  EXPECT_TRUE(std::ranges::is_sorted(done));
}

}  // namespace
}  // namespace velvault12
