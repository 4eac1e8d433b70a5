// What the iPhone's library says of itself, as the tools that read such files see it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/packaging/command_output.hpp"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const std::string kLibrary = VELVAULT12_PHONE_LIBRARY;

std::vector<std::string> objdump(const std::string& options) {
  return linesOf(VELVAULT12_OBJDUMP " --macho " + options + " " + quoted(kLibrary));
}

std::string fileContent() {
  std::ifstream file(kLibrary, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

using LoadCommand = std::map<std::string, std::string>;

/// The load commands of that kind, each as the fields that it prints.
std::vector<LoadCommand> loadCommands(const std::string& kind) {
  std::vector<LoadCommand> found;
  LoadCommand command;
  const auto finish = [&] {
    if (command["cmd"] == kind) found.push_back(command);
    command.clear();
  };
  for (const std::string& line : objdump("--private-headers")) {
    if (line.starts_with("Load command")) finish();
    std::istringstream words(line);
    std::string field;
    words >> field;
    std::getline(words >> std::ws, command[field]);
  }
  finish();
  return found;
}

/// The libraries that load commands of that kind name, each with the version that it must at least be
/// compatible with.
std::vector<std::string> librariesIn(const std::string& kind) {
  std::vector<std::string> libraries;
  for (const LoadCommand& command : loadCommands(kind)) {
    const std::string& name = command.at("name");
    libraries.push_back(name.substr(0, name.find(" (offset")) + " " + command.at("compatibility"));
  }
  return libraries;
}

TEST(PhoneLibrary, IsForArm64PhonesFromIos11On) {
  const auto header = objdump("--private-headers").at(3);
  for (const auto* word : {"ARM64", "DYLIB", "NOUNDEFS", "TWOLEVEL"}) EXPECT_THAT(header, HasSubstr(word));
  const auto minimum = loadCommands("LC_VERSION_MIN_IPHONEOS");
  ASSERT_THAT(minimum, SizeIs(1));
  EXPECT_EQ(minimum[0].at("version"), "11.0");
  EXPECT_THAT(loadCommands("LC_BUILD_VERSION"), IsEmpty());
}

// A phone's loader refuses a library that calls itself compatible with less than is asked for; nothing is.
TEST(PhoneLibrary, LoadsWhatItNeedsAndFailsForNothingElse) {
  EXPECT_THAT(
      librariesIn("LC_ID_DYLIB"),
      ElementsAre("/Library/MobileSubstrate/DynamicLibraries/velvault12.dylib version " VELVAULT12_VERSION));
  EXPECT_THAT(librariesIn("LC_LOAD_DYLIB"),
              ElementsAre("/usr/lib/libobjc.A.dylib version 0.0.0",
                          "/usr/lib/libSystem.B.dylib version 0.0.0", "/usr/lib/libc++.1.dylib version 0.0.0",
                          "/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation version 0.0.0",
                          "/System/Library/Frameworks/Foundation.framework/Foundation version 0.0.0",
                          "/Library/Frameworks/CydiaSubstrate.framework/CydiaSubstrate version 0.0.0",
                          "/usr/lib/librocketbootstrap.dylib version 0.0.0"));
  EXPECT_THAT(
      librariesIn("LC_LOAD_WEAK_DYLIB"),
      ElementsAre(
          "/System/Library/Frameworks/LocalAuthentication.framework/LocalAuthentication version 0.0.0",
          "/System/Library/PrivateFrameworks/AppSupport.framework/AppSupport version 0.0.0"));
}

TEST(PhoneLibrary, TakesFromTheSystemWhatTheSystemHas) {
  std::ifstream file(VELVAULT12_SYSTEM);
  std::set<std::string> exported;
  for (std::string word; file >> word;) {
    std::erase_if(word, [](char character) { return character == ',' || character == '\''; });
    exported.insert(word);
  }
  // "(undefined) external _strlen (from libSystem)"
  const auto bound = linesOf(VELVAULT12_NM " -m --undefined-only " + quoted(kLibrary));
  EXPECT_GT(bound.size(), 20U);
  for (const std::string& line : bound) {
    std::istringstream words(line);
    std::string undefined, external, symbol;
    words >> undefined >> external >> symbol;
    EXPECT_EQ(line.ends_with("(from libSystem)"), exported.contains(symbol)) << line;
  }
}

TEST(PhoneLibrary, ShowsNothingAndKeepsNoNames) {
  EXPECT_EQ(objdump("--exports-trie").back(), "Exports trie:");
  EXPECT_THAT(linesOf(VELVAULT12_NM " --defined-only " + quoted(kLibrary) + " 2>/dev/null"), IsEmpty());
  EXPECT_EQ(fileContent().find(VELVAULT12_SOURCES), std::string::npos) << "the builder's folder";
}

TEST(PhoneLibrary, RunsOneInitializer) {
  std::string initializers;
  for (const std::string& line : objdump("--section-headers")) {
    EXPECT_THAT(line, Not(HasSubstr("__objc_")));
    EXPECT_THAT(line, Not(HasSubstr("__init_offsets")));
    if (line.find("__mod_init_func") != std::string::npos) initializers = line;
  }
  EXPECT_THAT(initializers, HasSubstr("__mod_init_func  00000008 ")) << "one pointer of eight bytes";
}

/// The file's bytes as a signature counts: big-endian.
std::uint64_t number(const std::string& bytes, std::size_t at, std::size_t size) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < size; ++i) value = value << 8 | static_cast<unsigned char>(bytes.at(at + i));
  return value;
}

TEST(PhoneLibrary, IsSignedAsItIs) {
  const auto signature = loadCommands("LC_CODE_SIGNATURE");
  ASSERT_THAT(signature, SizeIs(1));
  const std::string content = fileContent();
  const std::size_t start = std::stoul(signature[0].at("dataoff"));
  ASSERT_EQ(start + std::stoul(signature[0].at("datasize")), content.size()) << "the signature ends the file";

  constexpr std::uint32_t kSuperBlob = 0xfade0cc0;
  constexpr std::uint32_t kCodeDirectory = 0xfade0c02;
  constexpr std::uint32_t kAdHoc = 0x2;
  ASSERT_EQ(number(content, start, 4), kSuperBlob);
  const std::size_t directory = start + number(content, start + 16, 4);
  ASSERT_EQ(number(content, directory, 4), kCodeDirectory);
  EXPECT_TRUE(number(content, directory + 12, 4) & kAdHoc);
  EXPECT_STREQ(content.c_str() + directory + number(content, directory + 20, 4), "velvault12.dylib");
  EXPECT_EQ(number(content, directory + 32, 4), start) << "all that is before the signature is signed";

  std::vector<std::string> signedHashes;
  for (std::size_t page = 0; page < number(content, directory + 28, 4); ++page) {
    std::ostringstream hash;
    for (std::size_t i = 0; i < 32; ++i) {
      const std::size_t at = directory + number(content, directory + 16, 4) + 32 * page + i;
      hash << std::hex << number(content, at, 1) / 16 << number(content, at, 1) % 16;
    }
    signedHashes.push_back(hash.str() + "  -");
  }
  EXPECT_EQ(signedHashes, linesOf("head -c " + std::to_string(start) + " " + quoted(kLibrary) +
                                  " | split -b 4096 --filter=sha256sum"));
}

TEST(PhoneLibrary, IsSmall) { EXPECT_LT(std::filesystem::file_size(kLibrary), 200 * 1024U); }

}  // namespace
