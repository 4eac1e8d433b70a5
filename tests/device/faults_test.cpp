// What a phone goes through: SpringBoard is killed, the disk is full or read-only, and answers go astray.

#include <gtest/gtest.h>
#include <linux/capability.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include "device/system/control.hpp"
#include "host/app_support.hpp"
#include "startup/service_messages.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

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

TEST_F(Faults, KilledSpringBoardLeavesTheListWhole) {
  // A file that grows too long kills SpringBoard while it writes.
  signal(SIGXFSZ, SIG_DFL);
  Titles saved{"Holidays"};
  writeStrings(kLockedAlbums, saved);
  become("org.example.app");
  const auto center = CPDistributedMessagingCenter::centerNamed(kServiceName);
  const auto save = [&](const Titles& array) {
    return center.send<"sendMessageName:userInfo:", bool(NSString, NSDictionary)>(
        NSString::from(kSaveArrayMessage),
        dictionaryOf({{key::kArray, NSArray::from(array)}, {key::kPath, NSString::from(kLockedAlbums)}}));
  };
  for (const rlim_t room : {4'096, 50'000, 100'000}) {
    springBoard_.emplace(phone_.launch(device::kSpringBoard));
    leaveRoom(room);
    EXPECT_TRUE(save(Titles(100, std::string(1000, 'x'))));
    EXPECT_EQ(device::endOf(springBoard_->process()), "its process has ended with signal 25");
    EXPECT_EQ(phone_.strings(kLockedAlbums), saved);

    springBoard_.emplace(phone_.launch(device::kSpringBoard));
    saved = {std::to_string(room)};
    EXPECT_TRUE(save(saved));
    EXPECT_TRUE(soonLocked(saved));
    springBoard_->kill();
    EXPECT_EQ(phone_.strings(kLockedAlbums), saved);
  }
  EXPECT_EQ(files(), 4) << "a draft of each";
}

TEST_F(Faults, AFullDiskKeepsTheOldList) {
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

TEST_F(Faults, WithoutAFolderToWriteInNothingIsKept) {
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
    if (hasList) {
      ownerIs(OwnerAnswer::cancel);
    } else {
      me_.back();
    }
    for (const std::string_view app : {device::kPhotos, device::kGallery})
      EXPECT_TRUE(phone_.launch(app).user().sees("Pets"));
    EXPECT_TRUE(phone_.launch(device::kCamera).user().sees("Camera Roll"));

    // A folder that is missing is made by the next SpringBoard; a file must be removed by hand.
    restartSpringBoard();
    EXPECT_EQ(is_directory(folder), fault != "a file in its place");
    if (!is_directory(folder)) break;
    permissions(folder, perms::owner_all);
    me_.longPress("Recipes");
    EXPECT_TRUE(soonLocked(hasList ? Titles{"Holidays", "Pets", "Recipes"} : Titles{"Pets", "Recipes"}));
    me_.back();
    writeStrings(kLockedAlbums, {"Holidays"});
    me_.tap("See All");
  }
}

TEST_F(Faults, AnAnswerOpensOnceAndOnlyWhatItWasAskedFor) {
  open(From::list, {"Holidays", "Recipes"});
  tapAs(OwnerAnswer::success, {"Holidays"});
  EXPECT_TRUE(soonOpen("Holidays"));
  me_.back();
  phone_.post(kAnswered);
  settle();
  EXPECT_EQ(openAlbum(), "");
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
      if (change) {
        phone_.writePreferences(*change);
      } else {
        remove(kPreferences);
      }
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
