// What the library does to each kind of host as it is loaded, with the switch on and off.

#include <gtest/gtest.h>

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

TEST_P(Constructor, DoesWhatTheHostIsToGetAndNothingElse) {
  const auto& [host, enabled] = GetParam();
  const bool isPhotos = host.bundleIdentifier == device::kPhotos;
  const bool isSpringBoard = host.bundleIdentifier == device::kSpringBoard;
  phone_.writePreferences({{"enabled", enabled}});
  phone_.launchHere(host.bundleIdentifier);
  device::User::here().screen();

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

constexpr HostCase kHosts[] = {
    {"SpringBoard", device::kSpringBoard}, {"Photos", device::kPhotos}, {"Gallery", device::kGallery}};

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
