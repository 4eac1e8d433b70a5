// What the library does to each kind of host as it is loaded, with the switch on and off.

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "device/frameworks/installed_hooks.hpp"
#include "device/system/loader.hpp"
#include "tests/host/host_methods.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

void nothing() {}

using Host = std::tuple<std::string_view, bool>;
class Constructor : public PhoneTest, public ::testing::WithParamInterface<Host> {};
const std::string_view kHosts[] = {device::kSpringBoard, device::kPhotos,  device::kCamera,
                                   device::kShopDemo,    device::kGallery, ""};
INSTANTIATE_TEST_SUITE_P(On, Constructor, ::testing::Combine(::testing::ValuesIn(kHosts), ::testing::Bool()));

TEST_P(Constructor, DoesWhatTheHostIsToGetAndNothingElse) {
  const auto& [host, enabled] = GetParam();
  phone_.writePreferences({{"enabled", enabled}});
  std::vector<HostMethod> methods = hostMethods(host);
  if (!host.empty() && host != device::kShopDemo)
    std::ranges::copy(hostMethods(""), std::back_inserter(methods));
  std::vector<device::InstalledHook> expected;
  for (const HostMethod& each : methods) {
    if (each.isOnlySent) continue;
    using enum device::InstalledHook::Kind;
    if (enabled) {
      expected.push_back({each.className, each.selector, plainEncoding(each.encoding),
                          each.isAdded ? added : replaced, each.isClassMethod});
    }
    // An app that has them all: no version does.
    if (each.isInNoVersion) {
      ASSERT_TRUE(class_addMethod(objc_getClass(each.className.c_str()),
                                  sel_registerName(each.selector.c_str()), nothing, each.encoding.c_str()));
    }
  }

  // As far as the loader brings it: before the app's own code.
  become(host);
  device::loadInjectedLibraries();
  std::vector<device::InstalledHook> installed = device::installedHooks();
  ASSERT_EQ(installed.size(), expected.size());
  for (std::size_t i = 0; i < installed.size(); ++i) {
    installed[i].encoding = plainEncoding(installed[i].encoding);
    EXPECT_EQ(installed[i], expected[i]) << expected[i].className << " " << expected[i].selector;
  }
  EXPECT_EQ(hasFile(kStateFolder), host == device::kSpringBoard);
  EXPECT_EQ(observers(kReload), 1);
  EXPECT_EQ(observers(kAnswered), host == device::kPhotos ? 1 : 0);
}

using StateFolder = PhoneTest;

TEST_F(StateFolder, IsLeftAsItIsAndAFileInItsPlaceStopsNobody) {
  writeStrings(kLockedAlbums, {"Holidays"});
  EXPECT_NO_THROW(phone_.launch(device::kSpringBoard));
  EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  remove(kStateFolder);
  write(kStateFolder, "in the way");
  EXPECT_NO_THROW(phone_.launch(device::kSpringBoard));
}

}  // namespace
}  // namespace velvault12
