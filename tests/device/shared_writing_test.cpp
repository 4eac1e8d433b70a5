// One file, several processes: no save is lost or overtaken, and only SpringBoard writes where the apps
// share.

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>

#include "host/app_support.hpp"
#include "host/springboard.hpp"
#include "startup/service_messages.hpp"
#include "tests/device/forked_process.hpp"
#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

using namespace std::string_literals;

class SharedWriting : public PhoneTest {
 protected:
  static constexpr int kSenders = 8;
  static constexpr int kSaves = 100;

  /// How many saves of each sender have been served.
  static inline int served_[kSenders] = {};

  static void noteSave(SpringBoard, Replaced<void(NSString, Object)> host, NSString name, Object userInfo) {
    host(name, userInfo);
    const Titles saved = userInfo.as<NSDictionary>()[key::kArray].as<NSArray>().strings();
    EXPECT_EQ(NSArray::contentsOfFile(kLockedAlbums)->strings(), saved);
    EXPECT_EQ(std::stoi(saved.at(1)), served_[std::stoi(saved.at(0))]++);
  }
  ForkedProcess::Life sender(int index) const {
    return [this, index](const ForkedProcess& test) {
      become("org.example.sender");
      const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
      // The others may take longer to begin than this one listens.
      while (test.hear().empty()) continue;
      for (int number = 0; number < kSaves; ++number) {
        const AutoreleasePool pool;
        const NSArray array = NSArray::from({std::to_string(index), std::to_string(number)});
        center.sendMessage(kSaveArrayMessage,
                           dictionaryOf({{key::kArray, array}, {key::kPath, NSString::from(kLockedAlbums)}}));
      }
    };
  }
};

TEST_F(SharedWriting, SavesOfManySendersAreServedInOrder) {
  std::deque<ForkedProcess> senders;
  for (int index = 0; index < kSenders; ++index) senders.emplace_back(sender(index));
  phone_.launchHere(device::kSpringBoard);
  installHook(replace<noteSave>("SpringBoard", "handleMessageNamed:withUserInfo:", "v@:@@"));
  for (const ForkedProcess& each : senders) each.say("save");
  EXPECT_TRUE(soon([] { return std::ranges::min(served_) == kSaves; }));
}

class Sandbox : public PhoneTest {
 protected:
  Sandbox() {
    writeStrings(kLockedAlbums, {"Holidays"});
    write("/var/mobile/Library/Caches/own", "its own");
    std::filesystem::create_directory_symlink(phone_.onDisk(kStateFolder),
                                              phone_.onDisk("/var/mobile/Library/Caches/link"));
  }

  /// In each way of Foundation that writes, moves or removes a file.
  static void expectToChange(const std::string& path, bool may) {
    SCOPED_TRACE(path);
    const AutoreleasePool pool;
    const NSString text = NSString::from("(written)");
    const Object data = text.send<"dataUsingEncoding:", Object(NSUInteger)>(4U);
    const NSArray array = NSArray::from({"written"});
    const NSFileManager files = NSFileManager::defaultManager();
    const NSString own = NSString::from("/var/mobile/Library/Caches/own");
    const NSString target = NSString::from(path);
    const NSString away = NSString::from(path + ".away");
    id* const noError = nullptr;
    EXPECT_EQ(array.writeToFile(target, true), may);
    EXPECT_EQ(array.writeToFile(target, false), may);
    EXPECT_EQ(dictionaryOf().writeToFile(target, true), may);
    EXPECT_EQ((ask<"writeToFile:atomically:", bool>(data, target, true)), may);
    EXPECT_EQ((ask<"writeToFile:atomically:", bool>(text, target, true)), may);
    EXPECT_EQ((ask<"createFileAtPath:contents:attributes:", bool>(files, target, data, Object())), may);
    EXPECT_EQ((ask<"removeItemAtPath:error:", bool>(files, target, noError)), may);
    EXPECT_EQ((ask<"copyItemAtPath:toPath:error:", bool>(files, own, target, noError)), may);
    EXPECT_EQ((ask<"moveItemAtPath:toPath:error:", bool>(files, target, away, noError)), may);
    EXPECT_EQ(files.createDirectoryAtPath(target), may);
  }
  /// The state folder, as somebody may spell it.
  Titles spellings() const {
    const std::string phone = phone_.folder().native();
    Titles all{"/var/mobile/Library/Caches/link", "/var/mobile/Library/Preferences/../velvault",
               ".//var//mobile/Library/./velvault/"};
    for (const std::string& root :
         {"/"s, "/private/"s, ""s, "../"s, "//private//"s, "/private/../private/var/../"s, "/proc/self/cwd/"s,
          phone + "/disk/", phone + "/disk/../disk/", phone + "/run/../disk/"}) {
      all.push_back(root + "var/mobile/Library/velvault");
    }
    return all;
  }
};

TEST_F(Sandbox, KeepsAnAppOutOfTheStateFolderByEverySpelling) {
  become(device::kPhotos);
  for (const std::string& folder : spellings()) {
    for (const char* const file : {"/lockedAlbums.plist", "/new.plist"}) {
      expectToChange(folder + file, false);
      EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"}) << folder;
    }
  }
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(phone_.onDisk(kStateFolder)), {}), 1);
  // What it may read and where it may write.
  EXPECT_EQ(NSArray::contentsOfFile(kLockedAlbums)->strings(), Titles{"Holidays"});
  for (const std::string_view path :
       {"/var/mobile/Library/Preferences/x", "/private/var/mobile/Library/Caches/x", "/var/mobile/Media/x"}) {
    EXPECT_TRUE(NSArray::from({"x"}).writeToFile(NSString::from(path), true)) << path;
    EXPECT_EQ(phone_.strings(path), Titles{"x"});
  }
}

TEST_F(Sandbox, LetsSpringBoardWriteThere) {
  become(device::kSpringBoard);
  expectToChange(std::string(kStateFolder) + "/new.plist", true);
}

}  // namespace
}  // namespace velvault12
