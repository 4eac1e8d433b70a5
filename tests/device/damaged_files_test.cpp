// Files that another process left damaged: nobody who reads them breaks, and everybody goes on without them.

#include <gtest/gtest.h>

#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

using DamagedFiles = PhoneTest;

TEST_F(DamagedFiles, CutOffOrWithOneBitFlipped) {
  become("org.example.reader");
  const auto entries = NSString::from("{on = <*BY>; size = <*I2>; titles = (Pets, \"\\U2603\");}")
                           .send<"propertyList", Object()>();
  const auto isRead = [&](const std::string& bytes) {
    const AutoreleasePool pool;
    write(kPreferences, bytes);
    // Writing goes through all of it.
    return NSDictionary::contentsOfFile(kPreferences)
        .writeToFile(NSString::from("/var/mobile/Media/copy.plist"), true);
  };
  EXPECT_FALSE(isRead(std::string(1 << 20, '('))) << "deep";
  constexpr NSUInteger kXml = 100, kBinary = 200;
  for (const NSUInteger form : {kXml, kBinary}) {
    const auto data = sendToClass<"dataWithPropertyList:format:options:error:",
                                  Object(Object, NSUInteger, NSUInteger, id*)>(
        classNamed<"NSPropertyListSerialization">(), entries, form, 0U, nullptr);
    const std::string sound(data.send<"bytes", const char*()>(), data.send<"length", NSUInteger()>());
    EXPECT_TRUE(isRead(sound));
    // The line's end after the last tag is no loss.
    for (std::size_t length = 0; length + 2 < sound.size(); ++length)
      EXPECT_FALSE(isRead(sound.substr(0, length))) << length << " of " << sound;
    // In text, one bit of each character: most are alike to a reader.
    for (std::size_t bit = 0; bit < 8 * sound.size(); bit += form == kXml ? 9 : 1) {
      std::string flipped = sound;
      flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ 1 << bit % 8);
      isRead(flipped);
    }
  }
}

TEST_F(DamagedFiles, LeaveEveryProcessWithDefaults) {
  for (const char* const title : {"Holidays", "Pets"}) phone_.photoLibrary().addAlbum(title);
  const std::string_view folder = "a folder";
  const std::string_view noise = "\1\xFF";
  const std::string_view none = "()";
  const std::string_view odd = "(<00>, (), {x = x;})";
  const std::string_view oddSettings = "{enabled = (); passOption = {x = x;}; rememberDefault = <00>;}";
  const std::string_view captures = "/var/mobile/Library/velvault/album.tct";
  for (const std::string_view damage : {folder, noise, none, odd, oddSettings}) {
    SCOPED_TRACE(damage);
    for (const std::string_view file : {kPreferences, kLockedAlbums, captures}) {
      remove(file);
      write(std::string(file) + (damage == folder ? "/file" : ""), damage);
    }
    const device::App springBoard = phone_.launch(device::kSpringBoard);
    const device::App photos = phone_.launch(device::kPhotos);
    const device::User& user = photos.user();
    user.tap("See All");
    user.tap("Holidays");
    EXPECT_FALSE(user.sees("Pets")) << "it is open";
    EXPECT_TRUE(phone_.launch(device::kGallery).user().sees("Holidays"));
    EXPECT_TRUE(phone_.launch(device::kCamera).user().sees("Camera Roll"));
    user.back();
    user.longPress("Holidays");
    user.tap("Holidays");
    springBoard.user().waitForOwnerRequest();
    if (damage != folder) EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  }
}

}  // namespace
}  // namespace velvault12
