// What the library does to each kind of host as it is loaded, with the switch on and off.

#include <gtest/gtest.h>

#include "device/frameworks/installed_hooks.hpp"
#include "device/system/loader.hpp"
#include "host/runtime.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

struct HostCase {
  const char* name;
  std::string_view bundleIdentifier;
};
void PrintTo(const HostCase& host, std::ostream* out) { *out << host.name; }

class Constructor : public PhoneTest, public ::testing::WithParamInterface<std::tuple<HostCase, bool>> {
 protected:
  bool hasMethod(const char* className, const char* selector) const {
    const Class type = objc_getClass(className);
    return type != nullptr && class_getInstanceMethod(type, sel_registerName(selector)) != nullptr;
  }
  /// Whether this process, the phone's only one, observes the notification.
  bool isObserved(std::string_view notification) const {
    const std::string_view name = notification.substr(notification.rfind('/') + 1);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(phone_.folder() / "run")) {
      if (entry.is_socket() && entry.path().native().find(name) != std::string::npos) return true;
    }
    return false;
  }
};

/// The methods that the library replaces in a host, in their order.
std::vector<std::string> replacedIn(std::string_view bundleIdentifier) {
  if (bundleIdentifier == device::kPhotos) {
    return {"PhotosApplication applicationDidEnterBackground:",
            "PUHorizontalAlbumListGadget viewWillAppear:",
            "PUHorizontalAlbumListGadget collectionView:cellForItemAtIndexPath:",
            "PUHorizontalAlbumListGadget collectionView:didSelectItemAtIndexPath:",
            "PUAlbumListViewController viewWillAppear:",
            "PUAlbumListViewController viewDidLayoutSubviews",
            "PUAlbumListViewController collectionView:cellForItemAtIndexPath:",
            "PUAlbumListViewController didSelectItemAtIndexPath:",
            "PUAlbumListViewController albumListCellContentView:performDeleteAction:"};
  }
  if (bundleIdentifier == device::kSpringBoard) return {"SpringBoard applicationDidFinishLaunching:"};
  return {};
}

TEST_P(Constructor, DoesWhatTheHostIsToGetAndNothingElse) {
  const auto& [host, enabled] = GetParam();
  const bool isPhotos = host.bundleIdentifier == device::kPhotos;
  const bool isSpringBoard = host.bundleIdentifier == device::kSpringBoard;
  phone_.writePreferences({{"enabled", enabled}});
  // As far as the loader brings it: before the app's own code.
  device::become({phone_.folder(), std::string(host.bundleIdentifier)});
  device::loadInjectedLibraries();

  std::vector<std::string> replaced;
  for (const auto& hook : device::installedHooks()) replaced.push_back(hook.className + " " + hook.selector);
  EXPECT_EQ(replaced, enabled ? replacedIn(host.bundleIdentifier) : std::vector<std::string>());
  for (const char* const type : {"PUHorizontalAlbumListGadget", "PUAlbumListViewController"}) {
    for (const char* const selector :
         {"handleLongPress:", "unlockAlbum:withAlbum:", "requestPassword:", "unlockAuthorised:"}) {
      EXPECT_EQ(hasMethod(type, selector), isPhotos && enabled) << type << " " << selector;
    }
  }
  EXPECT_EQ(hasMethod("PhotosApplication", "returnToMainView"), isPhotos && enabled);
  EXPECT_EQ(hasMethod("SpringBoard", "handleMessageNamed:withUserInfo:"), isSpringBoard && enabled);
  EXPECT_EQ(hasMethod("SpringBoard", "authenticate:withUserInfo:"), isSpringBoard && enabled);
  EXPECT_EQ(hasFile(kStateFolder), isSpringBoard);
  EXPECT_TRUE(isObserved(kReload));
  EXPECT_EQ(isObserved(kAnswered), isPhotos);
}

constexpr HostCase kHosts[] = {{"SpringBoard", device::kSpringBoard}, {"Photos", device::kPhotos},
                               {"Camera", "com.apple.camera"},        {"Shop", "com.apple.store.Jolly"},
                               {"Gallery", device::kGallery},         {"NoApp", ""}};

std::string nameOf(const ::testing::TestParamInfo<Constructor::ParamType>& test) {
  return std::get<0>(test.param).name + std::string(std::get<1>(test.param) ? "Enabled" : "Disabled");
}
INSTANTIATE_TEST_SUITE_P(Hosts, Constructor,
                         ::testing::Combine(::testing::ValuesIn(kHosts), ::testing::Bool()), nameOf);

class StateFolder : public PhoneTest {};

TEST_F(StateFolder, IsLeftAsItIsWhenItIsThere) {
  writeStrings(kLockedAlbums, {"Holidays"});
  phone_.launchHere(device::kSpringBoard);
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
}

TEST_F(StateFolder, AFileInItsPlaceStopsNobody) {
  write(kStateFolder, "in the way");
  phone_.launchHere(device::kSpringBoard);
  EXPECT_FALSE(device::User::here().screen().empty());
}

}  // namespace
}  // namespace velvault12
