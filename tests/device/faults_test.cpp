// What a phone goes through: SpringBoard is killed, the disk is full or read-only, and answers go astray.

#include <gtest/gtest.h>
#include <linux/capability.h>
#include <poll.h>
#include <signal.h>
#include <sys/inotify.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include <cstring>
#include <iostream>
#include <random>

#include "host/app_support.hpp"
#include "startup/service_messages.hpp"
#include "tests/device/forked_process.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

/// The steps in which the files of a folder are written: made, filled, and renamed.
class FolderSteps {
 public:
  explicit FolderSteps(const std::filesystem::path& folder) {
    inotify_add_watch(events_.get(), folder.c_str(), IN_CREATE | IN_MODIFY | IN_MOVED_TO);
  }
  /// Until there have been so many.
  void wait(int steps) {
    char buffer[4096];
    pollfd ready{.fd = events_.get(), .events = POLLIN, .revents = 0};
    while (steps > 0) {
      ASSERT_EQ(poll(&ready, 1, static_cast<int>(device::kPatience.count())), 1);
      const ssize_t length = read(events_.get(), buffer, sizeof buffer);
      for (ssize_t at = 0; at < length; --steps) {
        inotify_event event{};
        std::memcpy(&event, buffer + at, sizeof event);
        at += static_cast<ssize_t>(sizeof event + event.len);
      }
    }
  }

 private:
  device::Descriptor events_{inotify_init1(IN_CLOEXEC)};
};

class KilledSpringBoard : public PhoneTest {
 protected:
  static constexpr int kSaves = 1000;
  static constexpr int kSavesALife = 10;

  /// What is saved each time: long enough that a kill can fall into its writing.
  static Titles arrayOf(int save) { return Titles(100, std::to_string(save) + std::string(1000, ' ')); }

  ForkedProcess::Life springBoard() const {
    return [this](const ForkedProcess& test) {
      phone_.launchHere(device::kSpringBoard);
      test.say("ready");
      device::runForever();
    };
  }
  /// At each word of the test, saves some more, until SpringBoard is gone, and says how many were taken by
  /// now.
  ForkedProcess::Life app() const {
    return [this](const ForkedProcess& test) {
      become("org.example.app");
      const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
      const auto save = [&](int number) {
        const AutoreleasePool pool;
        return center.send<"sendMessageName:userInfo:", bool(NSString, Object)>(
            NSString::from(kSaveArrayMessage), dictionaryOf({{key::kArray, NSArray::from(arrayOf(number))},
                                                             {key::kPath, NSString::from(kLockedAlbums)}}));
      };
      for (int saves = 0; true; test.say(std::to_string(saves))) {
        // A life may take longer to begin than anybody listens.
        while (test.hear().empty()) continue;
        for (const int end = saves + kSavesALife; saves < end && save(saves); ++saves) continue;
      }
    };
  }
  /// Reads the whole file, which must be no older than it has been.
  void look() {
    const auto array = phone_.strings(kLockedAlbums);
    ASSERT_TRUE(array) << "after save " << newest_;
    const int save = *array == Titles{"Holidays"} ? -1 : std::stoi(array->at(0));
    if (save >= 0) ASSERT_EQ(*array, arrayOf(save));
    ASSERT_GE(save, newest_);
    newest_ = save;
  }
  std::ptrdiff_t drafts() const {
    return std::distance(std::filesystem::directory_iterator(phone_.onDisk(kStateFolder)), {}) - 1;
  }

  int newest_ = -1;
};

TEST_F(KilledSpringBoard, LeavesTheListWholeAndNoOlderThanItWas) {
  writeStrings(kLockedAlbums, {"Holidays"});
  const ForkedProcess app(this->app());
  std::mt19937 random(12);
  int saves = 0, kills = 0, amidSaves = 0, lost = 0;
  while (saves < kSaves) {
    const int newestBefore = newest_;
    {
      const ForkedProcess alive(springBoard());
      ASSERT_EQ(alive.hear(), "ready");
      FolderSteps steps(phone_.onDisk(kStateFolder));
      app.say("save");
      ASSERT_NO_FATAL_FAILURE(steps.wait(std::uniform_int_distribution<>(0, 2 * kSavesALife)(random)));
    }
    ++kills;
    saves = std::stoi(app.hear());
    ASSERT_NO_FATAL_FAILURE(look()) << "kill " << kills;
    amidSaves += newest_ > newestBefore && newest_ < saves - 1;
    lost += saves - 1 - newest_;
  }
  std::cout << kills << " kills, " << amidSaves << " amid the saves of a life, " << drafts()
            << " amid the writing of a file; " << lost << " saves lost\n";
  EXPECT_GT(amidSaves, 0);

  // Nothing of all that is in the way of the next life.
  const ForkedProcess alive(springBoard());
  ASSERT_EQ(alive.hear(), "ready");
  FolderSteps steps(phone_.onDisk(kStateFolder));
  app.say("save");
  for (const int last = std::stoi(app.hear()) - 1; newest_ < last;) {
    ASSERT_NO_FATAL_FAILURE(steps.wait(1));
    ASSERT_NO_FATAL_FAILURE(look());
  }
}

class Faults : public PhotosApp {
 protected:
  Faults() {
    // Both are handed on to the apps that are launched: a file that grows too long is only refused, and root
    // is kept out by a folder's permissions, as anybody is.
    signal(SIGXFSZ, SIG_IGN);
    prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
  }
  /// What SpringBoard can write to a file from now on.
  void leaveRoom(rlim_t bytes) const {
    const rlimit limit{.rlim_cur = bytes, .rlim_max = RLIM_INFINITY};
    ASSERT_EQ(prlimit(springBoard_->process(), RLIMIT_FSIZE, &limit, nullptr), 0);
  }
  void restartSpringBoard() {
    springBoard_->kill();
    springBoard_.emplace(phone_.launch(device::kSpringBoard));
  }
  std::ptrdiff_t files() const {
    return std::distance(std::filesystem::directory_iterator(phone_.onDisk(kStateFolder)), {});
  }
};

TEST_F(Faults, AFullDiskKeepsWhatWasThereUntilThereIsRoomAgain) {
  open(From::list, {"Holidays"});
  leaveRoom(10);
  me_.longPress("Pets");
  settle();
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  EXPECT_EQ(files(), 1) << "no draft is left";
  // What cannot be written leaves no answer to be read, or a former one: the album opens for its owner alone.
  for (const bool hasFormer : {false, true}) {
    leaveRoom(10);
    tapAs(OwnerAnswer::cancel, {"Holidays"});
    EXPECT_EQ(openAlbum(), "");
    tapAs(OwnerAnswer::success, {"Holidays"});
    EXPECT_TRUE(soonOpen("Holidays"));
    EXPECT_EQ(hasFile(kAnswer), hasFormer);
    me_.back();
    leaveRoom(RLIM_INFINITY);
    tapAs(OwnerAnswer::success, {"Holidays"});
    EXPECT_TRUE(soonOpen("Holidays"));
    EXPECT_TRUE(hasFile(kAnswer));
    me_.back();
  }
  me_.longPress("Recipes");
  EXPECT_TRUE(soonLocked({"Holidays", "Pets", "Recipes"})) << "with what could not be saved before";
}

TEST_F(Faults, WithoutAFolderToWriteInEverythingGoesOnAndNothingIsKept) {
  const std::filesystem::path folder = phone_.onDisk(kStateFolder);
  using std::filesystem::perms;
  open(From::list, {"Holidays"});
  for (const std::string_view fault : {"read-only", "missing", "a file in its place"}) {
    SCOPED_TRACE(fault);
    const bool hasList = fault == "read-only";
    if (hasList) {
      permissions(folder, perms::owner_read | perms::owner_exec);
    } else {
      remove(kStateFolder);
    }
    if (fault == "a file in its place") write(kStateFolder, "no folder");

    me_.longPress("Pets");
    settle();
    EXPECT_EQ(phone_.strings(kLockedAlbums), hasList ? std::optional(Titles{"Holidays"}) : std::nullopt);
    tapAs(OwnerAnswer::cancel, {"Pets"});
    EXPECT_EQ(openAlbum(), "") << "locked as long as Photos runs";
    tapAs(OwnerAnswer::success, {"Pets"});
    EXPECT_TRUE(soonOpen("Pets"));
    me_.back();
    EXPECT_EQ(tapped("Holidays"), hasList ? "" : "Holidays") << "without a list, without locks";
    hasList ? ownerIs(OwnerAnswer::cancel) : me_.back();
    EXPECT_TRUE(phone_.launch(device::kPhotos).user().sees("Pets"));
    EXPECT_TRUE(phone_.launch(device::kCamera).user().sees("Camera Roll"));
    EXPECT_TRUE(phone_.launch(device::kGallery).user().sees("Pets"));

    // A folder that is missing is made by the next SpringBoard.
    EXPECT_EQ(is_directory(folder), hasList);
    restartSpringBoard();
    EXPECT_EQ(is_directory(folder), fault != "a file in its place");
    if (fault == "a file in its place") {
      remove(kStateFolder);
      restartSpringBoard();
    }
    permissions(folder, perms::owner_all);
    me_.longPress("Recipes");
    EXPECT_TRUE(soonLocked(hasList ? Titles{"Holidays", "Pets", "Recipes"} : Titles{"Pets", "Recipes"}));
    me_.back();
    writeStrings(kLockedAlbums, {"Holidays"});
    me_.tap("See All");
  }
}

TEST_F(Faults, AnAnswerOpensOnceHoweverOftenItIsSaidAndOnlyWhatItWasAskedFor) {
  open(From::list, {"Holidays", "Recipes"});
  tapAs(OwnerAnswer::success, {"Holidays"});
  EXPECT_TRUE(soonOpen("Holidays"));
  me_.back();
  for (int time = 0; time < 2; ++time) {
    phone_.post(kAnswered);
    settle();
    EXPECT_EQ(openAlbum(), "");
  }
  EXPECT_EQ(tapped("Recipes"), "") << "said again, it leaves no pass";
  // To a question about the same album that nobody has asked.
  write(kAnswer, "{success = 1; method = 1; albumName = Recipes; controller = PUAlbumListViewController;}");
  phone_.post(kAnswered);
  settle();
  settleLibrary();
  EXPECT_EQ(openAlbum(), "");
  EXPECT_EQ(albums().size(), 3u);
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soonOpen("Recipes"));
}

TEST_F(Faults, WhoAskedMayBeGoneWhenTheAnswerComes) {
  GSDebugAllocationActive(1);
  open(From::strip, {"Holidays", "Pets", "Recipes"});
  const auto controllers = [] {
    return GSDebugAllocationCount(classNamed<"PUAlbumListViewController">()) +
           GSDebugAllocationCount(classNamed<"PUHorizontalAlbumListGadget">());
  };
  const int atFirst = controllers();
  const auto leaveAndAgree = [&](const std::function<void()>& ask) {
    const AutoreleasePool pool;
    me_.tap("See All");
    ask();
    owner().waitForOwnerRequest();
    me_.back();
    ownerIs(OwnerAnswer::success);
    EXPECT_TRUE(strip()) << "nothing has opened";
  };
  leaveAndAgree([&] { me_.tap("Holidays"); });
  EXPECT_EQ(tapped("Holidays"), "") << "no pass is left";
  ownerIs(OwnerAnswer::cancel);
  leaveAndAgree([&] { me_.longPress("Holidays"); });
  EXPECT_TRUE(soonLocked({"Pets", "Recipes"})) << "as its owner wanted";
  leaveAndAgree([&] { tile(1).send<"lockAlbum", void()>(); });
  EXPECT_TRUE(soonLocked({"Recipes"}));
  leaveAndAgree([&] { tap({"Edit", "Delete Recipes"}); });
  settleLibrary();
  EXPECT_EQ(albums(), (Titles{"Holidays", "Pets"}));
  {
    const AutoreleasePool pool;
    const auto other = makeObject<PUHorizontalAlbumListGadget>();
    other->send<"unlockAlbum:withAlbum:", void(int, NSString)>(0, NSString::from("Holidays"));
  }
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(strip());
  me_.tap("See All");
  me_.back();
  EXPECT_EQ(controllers(), atFirst + 1) << "only the latest list is kept";
}

TEST_F(Faults, SettingsMayChangeBetweenAQuestionAndItsAnswer) {
  open(From::list, {"Holidays"});
  const std::optional<Preferences> changes[] = {
      kWithPassword, {{{"passOption", 2}}}, {{{"enabled", false}}}, std::nullopt};
  for (const auto& change : changes) {
    for (const OwnerAnswer answer : {OwnerAnswer::cancel, OwnerAnswer::success}) {
      SCOPED_TRACE(&change - changes);
      reload({});
      tapUntilAsked({"Holidays"});
      change ? phone_.writePreferences(*change) : remove(kPreferences);
      phone_.post(kReload);
      settle();
      EXPECT_EQ(openAlbum(), "");
      ownerIs(answer);
      EXPECT_FALSE(me_.hasAlert());
      EXPECT_EQ(openAlbum(), answer == OwnerAnswer::success ? "Holidays" : "");
    }
    me_.back();
  }
}

}  // namespace
}  // namespace velvault12
