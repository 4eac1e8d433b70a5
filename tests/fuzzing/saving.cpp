// What comes with the message that has SpringBoard save an array: an array is saved where a path says, so
// that it reads back as it was, and without either of them nothing is written.

#include <cmath>

#include "device/apps/app.hpp"
#include "device/system/loader.hpp"
#include "tests/fuzzing/fuzz_target.hpp"

namespace velvault12 {

/// Whether each attempt to write had an effect.
std::vector<bool> writes;

bool isSharedFile(const std::string& path) {
  static const std::regex name("/var/mobile/Library/velvault/[A-Za-z]{1,40}\\.[A-Za-z]{1,40}");
  return std::regex_match(path, name);
}

/// SpringBoard writes wherever it is told to; here, paths that may lead out of the phone's folder lead
/// nowhere.
bool writeOnPhone(NSArray, Replaced<bool(NSString, bool)> host, NSString path, bool atomically) {
  writes.push_back(isSharedFile(path.utf8()) && host(path, atomically));
  return writes.back();
}

class SavingTarget : public Fuzzed<PhoneTest> {
 public:
  SavingTarget() {
    become(device::kSpringBoard);
    // Before the library comes, so that this is what it calls as the host's own.
    installHook(replace<writeOnPhone>("NSArray", "writeToFile:atomically:", "B@:@B"));
    device::loadInjectedLibraries();
    device::startApp(device::kSpringBoard);
  }

  void take(std::string_view bytes) override {
    writes.clear();
    const Object userInfo = received(bytes);
    UIApplication::sharedApplication().send<"handleMessageNamed:withUserInfo:", Object(NSString, Object)>(
        NSString::from("savearray"), userInfo);

    const auto request = userInfo.as<NSDictionary>();
    const NSArray array(request["array"].get());
    const std::string path = stringOr("", request["path"]);
    const bool isWhole = isOfClass(array, NSArray::hostClass()) && isString(request["path"]);
    ASSERT_EQ(writes.size(), isWhole ? 1u : 0u);
    // There are values that no file can hold, and paths where none can be.
    if (isWhole && arePlainTexts(array) && isSharedFile(path)) EXPECT_TRUE(writes[0]);
    if (writes != std::vector{true}) return;
    const Ref<NSArray> saved = NSArray::contentsOfFile(path);
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->count(), array.count());
    EXPECT_EQ(saved->strings(), array.strings());
    for (NSUInteger i = 0; i < array.count(); ++i) {
      if (!isOfClass(array.objectAtIndex(i), classNamed<"NSDate">())) continue;
      EXPECT_EQ(secondsOf(saved->objectAtIndex(i)), std::floor(secondsOf(array.objectAtIndex(i))));
    }
    remove(path);
  }

 private:
  static double secondsOf(Object date) { return date.send<"timeIntervalSinceReferenceDate", double()>(); }
};

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<SavingTarget>(); }

}  // namespace velvault12
