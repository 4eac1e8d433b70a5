// What comes with the message that has SpringBoard save an array: an array is saved where a path says, so
// that it reads back as it was, and without either of them nothing is written.

#include "device/apps/app.hpp"
#include "device/system/loader.hpp"
#include "tests/fuzzing/fuzz_target.hpp"

namespace velvault12 {
namespace {

constexpr std::string_view kFolder = "/var/mobile/Library/velvault/";

int attempts = 0;
bool isSaved = false;

/// SpringBoard writes wherever it is told to; here, paths that may lead out of the phone's folder lead
/// nowhere.
bool writeOnPhone(NSArray, Replaced<bool(NSString, bool)> host, NSString path, bool atomically) {
  constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ.";
  const std::string name = path.utf8();
  const bool isPhones =
      name.starts_with(kFolder) && name.find_first_not_of(kPlain, kFolder.size()) == name.npos;
  ++attempts;
  return isSaved = isPhones && host(path, atomically);
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
    attempts = 0;
    isSaved = false;
    const Object userInfo = received(bytes);
    UIApplication::sharedApplication().send<"handleMessageNamed:withUserInfo:", Object(NSString, Object)>(
        NSString::from("savearray"), userInfo);

    const auto request = userInfo.as<NSDictionary>();
    const NSArray array(request["array"].get());
    const bool isWhole = isOfClass(array, NSArray::hostClass()) && isString(request["path"]);
    EXPECT_EQ(attempts, isWhole ? 1 : 0);
    if (isWhole && isPlain(array, stringOr("", request["path"]))) EXPECT_TRUE(isSaved);
    if (!isSaved) return;
    const std::string path = stringOr("", request["path"]);
    const Ref<NSArray> saved = NSArray::contentsOfFile(path);
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->count(), array.count());
    EXPECT_EQ(saved->strings(), array.strings());
    remove(path);
  }

 private:
  /// There are values that no file can hold, and paths where none can be.
  static bool isPlain(NSArray array, const std::string& path) {
    // A name with an extension, as those of the shared files.
    const auto dot = path.rfind('.');
    bool isIt = path.starts_with(kFolder) && dot != path.npos && dot > kFolder.size() &&
                isPlainText(NSString::from(path.substr(kFolder.size(), dot - kFolder.size()))) &&
                isPlainText(NSString::from(path.substr(dot + 1)));
    for (const Object each : array) isIt = isIt && isPlainText(each);
    return isIt;
  }
};

}  // namespace

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<SavingTarget>(); }

}  // namespace velvault12
