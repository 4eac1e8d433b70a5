// Files that another process left damaged: nobody who reads them breaks, and everybody goes on without them.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <regex>

#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

using namespace std::string_literals;

enum class Form : NSUInteger { xml = 100, binary = 200 };

/// A property list of the value, which is written in the old form.
std::string propertyList(const std::string& value, Form form) {
  const auto object = NSString::from(value).send<"propertyList", Object()>();
  const auto data =
      sendToClass<"dataWithPropertyList:format:options:error:", Object(Object, Form, NSUInteger, id*)>(
          classNamed<"NSPropertyListSerialization">(), object, form, 0U, nullptr);
  return {data.send<"bytes", const char*()>(), data.send<"length", NSUInteger()>()};
}
const std::string kDictionary = "{enabled = <*BY>; passOption = <*I2>; controller = PUSomeController;}";

std::string noise() {
  std::string bytes(1 << 20, '\0');
  std::generate(bytes.begin(), bytes.end(), std::mt19937(12));
  return bytes;
}

/// What a file holds; nothing when a folder is in its place.
using Contents = std::optional<std::string>;

/// What holds neither titles nor settings, by a name of its own.
std::map<std::string, Contents> damages() {
  std::map<std::string, Contents> all{
      {"empty", ""}, {"folder", std::nullopt}, {"noise", noise()}, {"deep", std::string(10'000, '(')}};
  std::vector<std::string> values{"x", "<*I1>"};
  for (const std::string odd : {"<00>", "<*D2001-09-09 01:46:40 +0000>", "()", "{x = x;}"}) {
    const std::string settings = "{enabled = ?; passOption = ?; returnToMainDefault = ?; albumNamePets = ?;}";
    values.insert(values.end(), {odd, "(" + odd + ")", std::regex_replace(settings, std::regex("\\?"), odd)});
  }
  for (const Form form : {Form::xml, Form::binary}) {
    const std::string in = form == Form::xml ? " in XML" : " in binary";
    for (const std::string& value : values) all[value + in] = propertyList(value, form);
    for (const std::string& sound : {"(Holidays, Pets)"s, kDictionary}) {
      const std::string bytes = propertyList(sound, form);
      all["half of " + sound] = sound.substr(0, sound.size() / 2);
      all["half of " + sound + in] = bytes.substr(0, bytes.size() / 2);
      all["half of " + sound + in + " and noise"] = bytes.substr(0, bytes.size() / 2) + noise();
    }
  }
  return all;
}

class DamagedFiles : public PhoneTest {
 protected:
  DamagedFiles() {
    for (const std::string_view title : {"Holidays", "Pets"}) phone_.photoLibrary().addAlbum(title);
  }

  void put(const Contents& contents, std::string_view phonePath) const {
    remove(phonePath);
    if (contents) return write(phonePath, *contents);
    std::filesystem::create_directories(phone_.onDisk(phonePath));
  }
};

/// As how many kinds of property list a reader takes the file, having gone through all of it.
int kindsOf(std::string_view path) {
  const AutoreleasePool pool;
  const Ref<NSArray> array = NSArray::contentsOfFile(path);
  const NSDictionary dictionary = NSDictionary::contentsOfFile(path);
  array->send<"description", NSString()>().utf8();
  dictionary.send<"description", NSString()>().utf8();
  return (array ? 1 : 0) + (dictionary ? 1 : 0);
}

TEST_F(DamagedFiles, CutOffAnywhereOrWithAnyBitFlippedReadAsAbsentOrAsAWhole) {
  become("org.example.reader");
  for (const std::string& sound : {"(Holidays, \"\\U2603\")"s, kDictionary}) {
    for (const Form form : {Form::xml, Form::binary}) {
      const std::string bytes = propertyList(sound, form);
      // The line's end after the last tag is no loss.
      for (std::size_t length = 0; length + 2 < bytes.size(); ++length) {
        write(kLockedAlbums, bytes.substr(0, length));
        ASSERT_EQ(kindsOf(kLockedAlbums), 0) << length << " of " << bytes;
      }
      // In text, one bit of each character: most are alike to a reader.
      for (std::size_t bit = 0; bit < 8 * bytes.size(); bit += form == Form::xml ? 9 : 1) {
        std::string flipped = bytes;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ 1 << bit % 8);
        write(kLockedAlbums, flipped);
        ASSERT_LE(kindsOf(kLockedAlbums), 1);
      }
      write(kLockedAlbums, bytes);
      ASSERT_EQ(kindsOf(kLockedAlbums), 1);
    }
  }
}

TEST_F(DamagedFiles, TextIsReadByteForByteAndWhatIsNoUtf8AsAbsent) {
  become("org.example.reader");
  for (const std::string& sound : {""s, "guess\0"s, "snow \u2603"s, std::string(1 << 20, 'g')}) {
    put(sound, kPassword);
    EXPECT_EQ(NSString::contentsOfFile(kPassword), sound);
  }
  // A lone continuation, too long or too large for their point, half a pair, cut off, UTF-16.
  for (const Contents& odd :
       {Contents("\x80"), Contents("\xC0\xAF"), Contents("\xF5\x80\x80\x80"), Contents("\xED\xA0\x80"),
        Contents("snow \xE2\x98"), Contents("\xFF\xFEg\0"s), Contents(noise()), Contents()}) {
    put(odd, kPassword);
    EXPECT_FALSE(NSString::contentsOfFile(kPassword)) << odd.value_or("a folder").substr(0, 40);
  }
}

TEST_F(DamagedFiles, EveryProcessStartsAndGoesOnWithDefaultsAndWithoutLocks) {
  springBoard_.emplace(phone_.launch(device::kSpringBoard));
  const device::User& owner = springBoard_->user();
  phone_.launchHere(device::kPhotos);
  me_.tap("See All");
  const auto leaveAlbumAfterReload = [&] {
    phone_.post(kReload);
    settle();
    me_.tap("Pets");
    me_.leaveApp();
    me_.returnToApp();
  };
  const auto ownerIsAsked = [&] {
    me_.tap("Holidays");
    EXPECT_TRUE(me_.sees("Pets")) << "nothing has opened";
    owner.waitForOwnerRequest();
    owner.answerOwnerRequest(device::OwnerAnswer::cancel);
  };
  for (const auto& [name, damage] : damages()) {
    SCOPED_TRACE(name);
    put("(Holidays)", kLockedAlbums);
    remove(kPreferences);
    phone_.writePreferences({{"passOption", 2}, {"returnToMainDefault", true}});
    leaveAlbumAfterReload();
    me_.tap("See All");

    put(damage, kPreferences);
    leaveAlbumAfterReload();
    EXPECT_FALSE(me_.sees("Holidays")) << "it stays in the album that was left";
    me_.back();
    ownerIsAsked();

    for (const char* const file : {"lockedAlbums.plist", "lockedAlbumsPaths.plist", "album.tct"})
      put(damage, std::string(kStateFolder) + "/" + file);
    me_.back();
    tap({"See All", "Holidays"});
    EXPECT_FALSE(me_.sees("Pets")) << "it is open";
    me_.back();
    EXPECT_TRUE(phone_.launch(device::kGallery).user().sees("Holidays"));
    put("{rememberDefault = YES;}", kPreferences);
    EXPECT_TRUE(phone_.launch(device::kCamera).user().sees("Camera Roll"));
    me_.longPress("Holidays");
    ownerIsAsked();
    if (damage) EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  }
}

}  // namespace
}  // namespace velvault12
