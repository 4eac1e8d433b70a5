// One file, several processes: whole arrays or nothing, and only SpringBoard writes where the apps share.

#include <gtest/gtest.h>

#include <map>

#include "host/app_support.hpp"
#include "startup/service_messages.hpp"
#include "tests/device/forked_process.hpp"
#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

using namespace std::string_literals;

class SharedWriting : public PhoneTest {
 protected:
  static constexpr int kRounds = 1000;

  /// The array of one writer's one round: the same text all over, in another length for each writer.
  static Titles arrayOf(char writer, int round) {
    return Titles(writer == 'A' ? 60 : 80, writer + std::to_string(round) + ' ' + std::string(200, writer));
  }
  static std::string doneFile(char writer) { return std::string(kStateFolder) + "/done" + writer; }
  ForkedProcess::Life writer(char name) const {
    return [this, name](const ForkedProcess& test) {
      become("org.example.writer");
      const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
      const auto save = [&](const Titles& array, std::string_view path) {
        const AutoreleasePool pool;
        center.sendMessage(kSaveArrayMessage, dictionaryOf({{key::kArray, NSArray::from(array)},
                                                            {key::kPath, NSString::from(path)}}));
      };
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
  become("org.example.reader");

  std::map<char, int> newest;
  int reads = 0;
  for (bool isLast = false; !isLast;) {
    const AutoreleasePool pool;
    // Asked first: what is read then is what stays.
    isLast = hasFile(doneFile('A')) && hasFile(doneFile('B'));
    const Ref<NSArray> file = NSArray::contentsOfFile(kLockedAlbums);
    ASSERT_TRUE(file || reads == 0) << "after " << reads << " whole reads";
    if (!file) continue;
    ++reads;
    const Titles array = file->strings();
    const char writer = array.at(0).at(0);
    const int round = std::stoi(array[0].substr(1));
    ASSERT_EQ(array, arrayOf(writer, round));
    ASSERT_GE(round, newest[writer]) << "an older array came back";
    newest[writer] = round;
    if (isLast) EXPECT_EQ(round, kRounds - 1);
  }
  EXPECT_GT(reads, 100);
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
