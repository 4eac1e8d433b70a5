// One file, several processes: whole arrays or nothing, and only SpringBoard writes where the apps share.

#include <gtest/gtest.h>

#include <map>

#include "host/app_support.hpp"
#include "startup/service_messages.hpp"
#include "tests/device/forked_process.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

constexpr int kRounds = 1000;

class SharedWriting : public PhoneTest {
 protected:
  /// The array of one writer's one round: the same text all over, in another length for each writer.
  static std::vector<std::string> arrayOf(char writer, int round) {
    const std::string text = writer + std::to_string(round) + ' ';
    return std::vector<std::string>(writer == 'A' ? 60 : 80, text + std::string(200, writer));
  }
  static void save(const std::vector<std::string>& array, std::string_view path) {
    const AutoreleasePool pool;
    const Ref<NSMutableDictionary> request = makeObject<NSMutableDictionary>();
    request->set(key::kSender, NSBundle::mainBundle().bundleIdentifier());
    request->set(key::kArray, NSArray::from(array));
    request->set(key::kPath, NSString::from(path));
    CPDistributedMessagingCenter::centerNamed(kServiceName).sendMessage(kSaveArrayMessage, request.get());
  }
  static std::string doneFile(char writer) { return std::string(kStateFolder) + "/done" + writer; }

  ForkedProcess::Life writer(char name) {
    return [this, name](const Line& test) {
      device::become({phone_.folder(), std::string("org.example.writer") + name});
      test.say("ready");
      test.hear();
      for (int round = 0; round < kRounds; ++round) save(arrayOf(name, round), kLockedAlbums);
      save({}, doneFile(name));
      test.hear();
    };
  }
};

TEST_F(SharedWriting, EveryReadIsOneWholeArrayAndTheLastWriteStays) {
  const device::App springBoard = phone_.launch(device::kSpringBoard);
  const ForkedProcess a(writer('A'));
  const ForkedProcess b(writer('B'));
  device::become({phone_.folder(), "org.example.reader"});
  for (const ForkedProcess* process : {&a, &b}) ASSERT_EQ(process->hear(), "ready");
  for (const ForkedProcess* process : {&a, &b}) process->say("go");

  std::map<char, int> newest;
  int reads = 0;
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  bool isDone = false;
  while (!isDone) {
    const AutoreleasePool pool;
    // Asked first: what is read then is what stays.
    isDone = hasFile(doneFile('A')) && hasFile(doneFile('B'));
    const Ref<NSArray> file = NSArray::contentsOfFile(kLockedAlbums);
    ASSERT_TRUE(file || reads == 0) << "after " << reads << " whole reads";
    ASSERT_LT(std::chrono::steady_clock::now(), deadline);
    if (!file) continue;
    ++reads;
    const auto array = file->strings();
    ASSERT_FALSE(array.empty());
    const char writer = array.front().front();
    const int round = std::stoi(array.front().substr(1));
    ASSERT_EQ(array, arrayOf(writer, round));
    ASSERT_GE(round, newest[writer]) << "an older array came back";
    newest[writer] = round;
    if (isDone) EXPECT_EQ(round, kRounds - 1);
  }
  EXPECT_GT(reads, 100);
  EXPECT_GT(std::filesystem::file_size(phone_.onDisk(kLockedAlbums)), 3 * 4096U);
  const std::filesystem::directory_iterator files(phone_.onDisk(kStateFolder));
  EXPECT_EQ(std::distance(begin(files), end(files)), 3) << "no draft is left";
}

class Sandbox : public PhoneTest {
 protected:
  Sandbox() {
    writeStrings(kLockedAlbums, {"Holidays"});
    write("/var/mobile/Library/Caches/own", "its own");
    std::filesystem::create_directory_symlink(phone_.onDisk(kStateFolder),
                                              phone_.onDisk("/var/mobile/Library/Caches/link"));
  }

  /// The names of the ways of Foundation that wrote, or removed, the file.
  static Titles waysThatChange(const std::string& path) {
    const AutoreleasePool pool;
    const NSString target = NSString::from(path);
    const NSArray array = NSArray::from({"written"});
    const Ref<NSMutableDictionary> dictionary = makeObject<NSMutableDictionary>();
    const Object data = NSString::from("(written)").send<"dataUsingEncoding:", Object(NSUInteger)>(4U);
    const NSFileManager files = NSFileManager::defaultManager();
    const NSString own = NSString::from("/var/mobile/Library/Caches/own");
    Titles ways;
    const auto note = [&](bool changed, const char* way) {
      if (changed) ways.emplace_back(way);
    };
    note(array.writeToFile(target, true), "array");
    note(array.writeToFile(target, false), "array in place");
    note(dictionary->writeToFile(target, true), "dictionary");
    note(data.send<"writeToFile:atomically:", bool(NSString, bool)>(target, true), "data");
    note(NSString::from("text").send<"writeToFile:atomically:", bool(NSString, bool)>(target, true), "text");
    note(files.send<"createFileAtPath:contents:attributes:", bool(NSString, Object, Object)>(target, data,
                                                                                             Object()),
         "file");
    note(files.send<"removeItemAtPath:error:", bool(NSString, id*)>(target, nullptr), "remove");
    note(files.send<"copyItemAtPath:toPath:error:", bool(NSString, NSString, id*)>(own, target, nullptr),
         "copy");
    note(files.send<"moveItemAtPath:toPath:error:", bool(NSString, NSString, id*)>(
             target, NSString::from(path + ".away"), nullptr),
         "move away");
    note(files.createDirectoryAtPath(target), "folder");
    return ways;
  }
  std::vector<std::string> spellings(std::string_view name) const {
    const std::string phone = phone_.folder().native();
    std::vector<std::string> all{"/var/mobile/Library/velvault",
                                 "/private/var/mobile/Library/velvault",
                                 "var/mobile/Library/velvault",
                                 "../var/mobile/Library/velvault",
                                 ".//var//mobile/Library/./velvault/",
                                 "//private//var/mobile/Library/velvault",
                                 "/var/mobile/Library/Preferences/../velvault",
                                 "/private/../private/var/mobile/../mobile/Library/velvault",
                                 "/var/mobile/Library/Caches/link",
                                 "/proc/self/cwd/var/mobile/Library/velvault",
                                 phone + "/disk/var/mobile/Library/velvault",
                                 phone + "/disk/../disk/var/mobile/Library/velvault",
                                 phone + "/run/../disk/var/mobile/Library/velvault"};
    for (std::string& folder : all) folder.append("/").append(name);
    return all;
  }
};

TEST_F(Sandbox, KeepsAnAppOutOfTheStateFolderByEverySpelling) {
  device::become({phone_.folder(), std::string(device::kPhotos)});
  for (const std::string_view name : {"lockedAlbums.plist", "new.plist"}) {
    for (const std::string& path : spellings(name)) {
      EXPECT_EQ(waysThatChange(path), Titles{}) << path;
      EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"}) << path;
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

TEST_F(Sandbox, LetsSpringBoardWriteByEverySpellingOfThePhone) {
  device::become({phone_.folder(), std::string(device::kSpringBoard)});
  for (const std::string& path : spellings("lockedAlbums.plist")) {
    EXPECT_TRUE(NSArray::from({path}).writeToFile(NSString::from(path), true)) << path;
    EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{path});
  }
  EXPECT_EQ(waysThatChange(std::string(kStateFolder) + "/new.plist").size(), 10U);
}

}  // namespace
}  // namespace velvault12
