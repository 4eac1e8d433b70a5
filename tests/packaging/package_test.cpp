// The package as the phone's package manager reads it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include "tests/packaging/command_output.hpp"

namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

const std::string kPackage = VELVAULT12_PHONE_PACKAGE;

TEST(PhonePackage, TellsThePackageManagerWhatItIs) {
  auto fields = linesOf("dpkg-deb --field " + quoted(kPackage));
  const auto description =
      std::ranges::find_if(fields, [](const auto& line) { return line.starts_with("Desc"); });
  EXPECT_GT(std::distance(description, fields.end()), 2) << "a title, and what it is good for";
  fields.erase(description, fields.end());
  EXPECT_THAT(fields, UnorderedElementsAre(
                          "Package: com.qdx.velvault12", "Name: velvault12", "Version: " VELVAULT12_VERSION,
                          "Architecture: iphoneos-arm", "Section: Tweaks", "Priority: optional",
                          "Depends: mobilesubstrate, com.rpetrich.rocketbootstrap, firmware (>= 11.0)",
                          "Maintainer: the velvault12 authors", "Author: the velvault12 authors"));
}

TEST(PhonePackage, IsReadByOldPackageManagersAndRunsNothing) {
  EXPECT_THAT(linesOf("ar t " + quoted(kPackage)),
              ElementsAre("debian-binary", "control.tar.gz", "data.tar.gz"));
  EXPECT_THAT(linesOf("dpkg-deb --ctrl-tarfile " + quoted(kPackage) + " | tar -t"),
              ElementsAre("./", "./control"));
}

TEST(PhonePackage, HoldsTheLibraryItsFilterAndTheImages) {
  std::vector<std::string> entries;
  for (const auto& line :
       linesOf("dpkg-deb --fsys-tarfile " + quoted(kPackage) + " | tar --numeric-owner -tv")) {
    static const std::regex sizeAndTime(R"( +\d+ \d{4}-\d\d-\d\d \d\d:\d\d \.)");
    entries.push_back(std::regex_replace(line, sizeAndTime, " "));
  }
  const std::string folder = "drwxr-xr-x 0/0 /";
  const std::string file = "-rw-r--r-- 0/0 /";
  const std::string images = "Library/Application Support/velvault12/";
  const std::string loader = "Library/MobileSubstrate/DynamicLibraries/";
  std::vector<std::string> expected{folder,
                                    folder + "Library/",
                                    folder + "Library/Application Support/",
                                    folder + images,
                                    folder + "Library/MobileSubstrate/",
                                    folder + loader,
                                    "-rwxr-xr-x 0/0 /" + loader + "velvault12.dylib",
                                    file + loader + "velvault12.plist"};
  for (const auto* name : {"album", "greenlock", "move", "whitelock"}) {
    for (const auto* scale : {".png", "@2x.png", "@3x.png"}) expected.push_back(file + images + name + scale);
  }
  EXPECT_THAT(entries, UnorderedElementsAreArray(expected));
}

TEST(PhonePackage, HoldsWhatWasBuilt) {
  const auto content = [](const std::string& path) {
    return "dpkg-deb --fsys-tarfile " + quoted(kPackage) + " | tar -xO " + quoted(path) + " | cmp - ";
  };
  const std::string loader = "./Library/MobileSubstrate/DynamicLibraries/";
  EXPECT_NO_THROW(linesOf(content(loader + "velvault12.dylib") + quoted(VELVAULT12_PHONE_LIBRARY)));
  EXPECT_NO_THROW(linesOf(content(loader + "velvault12.plist") + quoted(VELVAULT12_FILTER)));
  for (const auto& image : std::filesystem::directory_iterator(VELVAULT12_RESOURCES)) {
    if (image.path().extension() != ".png") continue;
    const std::string name = image.path().filename().string();
    EXPECT_NO_THROW(
        linesOf(content("./Library/Application Support/velvault12/" + name) + quoted(image.path().string())));
  }
}

}  // namespace
