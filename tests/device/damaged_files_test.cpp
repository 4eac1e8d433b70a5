// Files that another process left damaged: nobody who reads them breaks, and everybody goes on without them.

#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "host/foundation.hpp"
#include "tests/device/forked_process.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

using device::OwnerAnswer;

enum class Form : NSUInteger { xml = 100, binary = 200 };

std::string propertyList(Object value, Form form) {
  const auto data =
      sendToClass<"dataWithPropertyList:format:options:error:", Object(Object, Form, NSUInteger, id*)>(
          classNamed<"NSPropertyListSerialization">(), value, form, 0U, nullptr);
  const auto bytes = data.send<"bytes", const char*()>();
  return std::string(bytes, data.send<"length", NSUInteger()>());
}

std::string noise() {
  std::mt19937 random(12);
  std::string bytes(1 << 20, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

/// What a file holds, or that a folder is in its place.
struct Damage {
  std::string name;
  std::optional<std::string> bytes;
};
using Damages = std::vector<Damage>;

class DamagedFiles : public PhoneTest {
 protected:
  static constexpr std::string_view kPreferences =
      "/var/mobile/Library/Preferences/com.qdx.velvault12prefs.plist";
  static constexpr std::string_view kLockedAlbumsPaths =
      "/var/mobile/Library/velvault/lockedAlbumsPaths.plist";
  static constexpr std::string_view kCaptureAlbum = "/var/mobile/Library/velvault/album.tct";

  DamagedFiles() {
    auto library = phone_.photoLibrary();
    for (const std::string_view title : {"Holidays", "Pets"}) {
      library.addToAlbum(library.addAsset({}), library.addAlbum(title));
    }
  }

  static constexpr NSUInteger kOddValues = 4;
  /// Every kind of value that a property list can hold and that no reader asks for.
  static NSMutableArray oddValues() {
    const auto values = sendToClass<"array", NSMutableArray()>(NSMutableArray::hostClass());
    values.addObject(sendToClass<"data", Object()>(classNamed<"NSData">()));
    values.addObject(
        sendToClass<"dateWithTimeIntervalSince1970:", Object(double)>(classNamed<"NSDate">(), 1e9));
    values.addObject(NSArray::from({"Holidays"}));
    const auto dictionary = makeObject<NSMutableDictionary>();
    dictionary->set("Holidays", NSString::from("Holidays"));
    values.addObject(dictionary.get());
    return values;
  }
  static NSDictionary soundDictionary() {
    auto dictionary = makeObject<NSMutableDictionary>();
    dictionary->set("enabled", NSNumber::from(true));
    dictionary->set("passOption", NSNumber::from(2));
    dictionary->set("controller", NSString::from("PUAlbumListViewController"));
    return std::move(dictionary).autorelease();
  }
  static NSDictionary oddDictionary() {
    auto dictionary = makeObject<NSMutableDictionary>();
    const NSMutableArray odd = oddValues();
    NSUInteger next = 0;
    for (const std::string_view name :
         {"enabled", "passOption", "returnToMainDefault", "layoutFontSize", "Holidays_albumName", "",
          "method", "controller", "success", "id", "type", "albumName"}) {
      dictionary->set(name, odd.objectAtIndex(next++ % kOddValues));
    }
    dictionary->set(std::string(1 << 20, 'k'), NSString::from(std::string(1 << 20, 'v')));
    return std::move(dictionary).autorelease();
  }

  enum class Kind { array, dictionary };
  /// What holds no array of titles, or no dictionary of settings, to those who ask for one; for each kind as
  /// many, in the same order.
  static Damages damagesOf(Kind kind) {
    const bool asArray = kind == Kind::array;
    const Object array = NSArray::from({"Holidays", "Pets"});
    const Object dictionary = soundDictionary();
    const Object other = asArray ? dictionary : array;
    const std::string xml = propertyList(asArray ? array : dictionary, Form::xml);
    const std::string binary = propertyList(asArray ? array : dictionary, Form::binary);
    const NSMutableArray odd = oddValues();
    const Object strange = asArray ? Object(odd) : Object(oddDictionary());
    Damages all{{"empty", ""},
                {"folder", std::nullopt},
                {"noise", noise()},
                {"noise in binary", "bplist00" + noise()},
                {"noise in XML", xml.substr(0, xml.size() / 2) + noise()},
                {"old form cut off", asArray ? "(Holidays, Pets" : "{ passOption = 2;"},
                {"10,000 arrays in each other", std::string(10'000, '(')},
                {"other kind, XML", propertyList(other, Form::xml)},
                {"other kind, binary", propertyList(other, Form::binary)},
                {"a string", propertyList(NSString::from("Holidays"), Form::xml)},
                {"a number", propertyList(NSNumber::from(1), Form::binary)},
                {"data", propertyList(odd.objectAtIndex(0), Form::binary)},
                {"a date", propertyList(odd.objectAtIndex(1), Form::xml)},
                {"odd values, XML", propertyList(strange, Form::xml)},
                {"odd values, binary", propertyList(strange, Form::binary)}};
    for (std::size_t part = 1; part < 6; ++part) {
      all.push_back({"XML cut off", xml.substr(0, xml.size() * part / 6)});
      all.push_back({"binary cut off", binary.substr(0, binary.size() * part / 6)});
    }
    return all;
  }

  void put(const Damage& damage, std::string_view phonePath) const {
    remove(phonePath);
    if (damage.bytes) return write(phonePath, *damage.bytes);
    std::filesystem::create_directories(phone_.onDisk(phonePath));
  }

  static bool isAlbumOpen(const device::User& user) {
    return user.screen().find("PUPhotosGridCell") != std::string::npos;
  }
  /// Taps the album; if that opens it, goes back.
  static bool opens(const device::User& user, std::string_view title) {
    user.tap(title);
    const bool isOpen = isAlbumOpen(user);
    if (isOpen) user.back();
    return isOpen;
  }

  device::User me_ = device::User::here();
  AutoreleasePool pool_;
};

TEST_F(DamagedFiles, CutOffAnywhereOrWithAnyBitFlippedReadAsAbsentOrAsAWhole) {
  device::become({phone_.folder(), "org.example.reader"});
  const auto put = [&](const std::string& bytes) { write(kLockedAlbums, bytes); };
  const auto array = [] { return NSArray::contentsOfFile(kLockedAlbums); };
  const auto dictionary = [] { return NSDictionary::contentsOfFile(kLockedAlbums); };
  for (const Object sound : {Object(NSArray::from({"Holidays", "\u2603"})), Object(soundDictionary())}) {
    for (const Form form : {Form::xml, Form::binary}) {
      const std::string bytes = propertyList(sound, form);
      // The line's end after the last tag is no loss.
      for (std::size_t length = 0; length + 2 < bytes.size(); ++length) {
        const AutoreleasePool pool;
        put(bytes.substr(0, length));
        ASSERT_FALSE(array()) << length << " of " << bytes;
        ASSERT_FALSE(dictionary()) << length << " of " << bytes;
      }
      // In text, one bit of each character: most are alike to a reader.
      for (std::size_t bit = 0; bit < 8 * bytes.size(); bit += form == Form::xml ? 9 : 1) {
        const AutoreleasePool pool;
        std::string flipped = bytes;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ 1 << bit % 8);
        put(flipped);
        if (const auto read = array()) read->strings();
        if (const auto read = dictionary()) read.send<"description", NSString()>().utf8();
      }
      put(bytes);
      ASSERT_NE(static_cast<bool>(array()), static_cast<bool>(dictionary()));
    }
  }
}

TEST_F(DamagedFiles, WithoutAReadableListNoAlbumIsLocked) {
  phone_.launchHere(device::kPhotos);
  const auto appear = [&] {
    if (!me_.sees("See All")) me_.back();
    me_.tap("See All");
  };
  const auto sound = [&] {
    remove(kLockedAlbums);
    writeStrings(kLockedAlbums, {"Holidays"});
    appear();
    ASSERT_FALSE(opens(me_, "Holidays"));
  };
  me_.tap("See All");
  for (const Damage& damage : damagesOf(Kind::array)) {
    sound();
    put(damage, kLockedAlbums);
    appear();
    EXPECT_TRUE(opens(me_, "Holidays")) << damage.name;
  }
  // What is no title is left out, and the titles beside it count.
  const NSMutableArray mixed = oddValues();
  mixed.addObject(NSString::from(""));
  mixed.addObject(NSString::from(std::string(1 << 20, 'x')));
  mixed.addObject(NSString::from("Pets"));
  for (const Form form : {Form::xml, Form::binary}) {
    sound();
    put({"mixed", propertyList(mixed, form)}, kLockedAlbums);
    appear();
    EXPECT_TRUE(opens(me_, "Holidays"));
    EXPECT_FALSE(opens(me_, "Pets"));
  }
}

TEST_F(DamagedFiles, AnUnreadableAnswerAsksForThePasswordOfNothingInParticular) {
  phone_.writePreferences({{"passOption", 1}});
  phone_.launchHere(device::kPhotos);
  for (const Damage& damage : damagesOf(Kind::dictionary)) {
    put(damage, kAnswer);
    phone_.post(kAnswered);
    me_.waitToSee("Unlock album");
    me_.tap("OK");
    EXPECT_TRUE(me_.sees("See All")) << damage.name;
    EXPECT_FALSE(me_.hasAlert()) << damage.name;
  }
}

TEST_F(DamagedFiles, APasswordThatIsNoTextIsNone) {
  phone_.writePreferences({{"passOption", 1}});
  const device::App springBoard = phone_.launch(device::kSpringBoard);
  writeStrings(kLockedAlbums, {"Holidays"});
  phone_.launchHere(device::kPhotos);
  me_.tap("See All");
  const auto enter = [&](const Damage& password, std::string_view notice) {
    put(password, kPassword);
    me_.tap("Holidays");
    me_.waitToSee("Unlock album");
    me_.type("guess");
    me_.tap("OK");
    EXPECT_TRUE(me_.sees(notice)) << password.name;
    return isAlbumOpen(me_);
  };
  for (const Damage& damage : Damages{{"folder", std::nullopt},
                                      {"noise", noise()},
                                      {"lone continuation", "\x80"},
                                      {"overlong", "\xC0\xAF"},
                                      {"half a pair", "\xED\xA0\x80"},
                                      {"too large", "\xF5\x80\x80\x80"},
                                      {"cut off", "snow \xE2\x98"},
                                      {"UTF-16", std::string("\xFF\xFEg\0", 4)}}) {
    EXPECT_TRUE(enter(damage, "No password set")) << damage.name;
    me_.back();
    EXPECT_FALSE(enter({"a sound one", "other"}, "Incorrect password"));
  }
  EXPECT_FALSE(
      enter({"a property list", propertyList(NSString::from("guess"), Form::xml)}, "Incorrect password"));
  EXPECT_FALSE(enter({"a zero byte", std::string("guess\0", 6)}, "Incorrect password"));
  EXPECT_FALSE(enter({"long", std::string(1 << 20, 'g')}, "Incorrect password"));
}

TEST_F(DamagedFiles, UnreadablePreferencesAreTheDefaultsInEveryRunningProcess) {
  const device::App springBoard = phone_.launch(device::kSpringBoard);
  const device::App gallery = phone_.launch(device::kGallery);
  const device::User& owner = springBoard.user();
  writeStrings(kLockedAlbums, {"Holidays"});
  phone_.launchHere(device::kPhotos);
  me_.tap("See All");
  const auto settle = [&] {
    owner.screen();
    me_.screen();
    EXPECT_TRUE(gallery.user().sees("Gallery"));
  };
  for (const Damage& damage : damagesOf(Kind::dictionary)) {
    remove(kPreferences);
    phone_.writePreferences({{"passOption", 2}, {"returnToMainDefault", true}});
    phone_.post(kReload);
    settle();
    me_.tap("Pets");
    me_.leaveApp();
    me_.returnToApp();
    me_.tap("See All");

    put(damage, kPreferences);
    phone_.post(kReload);
    settle();
    me_.tap("Pets");
    me_.leaveApp();
    me_.returnToApp();
    EXPECT_TRUE(isAlbumOpen(me_)) << damage.name;
    me_.back();
    EXPECT_FALSE(opens(me_, "Holidays")) << damage.name;
    owner.waitForOwnerRequest();
    owner.answerOwnerRequest(OwnerAnswer::cancel);
  }
}

TEST_F(DamagedFiles, APhoneWithAllFilesDamagedStartsAndLocksAndOpensItsAlbums) {
  const Damages arrays = damagesOf(Kind::array);
  const Damages dictionaries = damagesOf(Kind::dictionary);
  for (std::size_t i = 0; i < arrays.size(); i += 2) {
    SCOPED_TRACE(arrays[i].name);
    for (const std::string_view array : {kLockedAlbums, kCaptureAlbum}) put(arrays[i], array);
    for (const std::string_view other : {kPreferences, kLockedAlbumsPaths, kAnswer, kPassword}) {
      put(dictionaries[i], other);
    }
    const device::App gallery = phone_.launch(device::kGallery);
    EXPECT_TRUE(gallery.user().sees("Holidays"));
    const device::App photos = phone_.launch(device::kPhotos);
    photos.user().tap("See All");
    EXPECT_TRUE(opens(photos.user(), "Holidays"));
    // Not before: it would have put the list in order.
    const device::App springBoard = phone_.launch(device::kSpringBoard);
    photos.user().longPress("Holidays");
    EXPECT_FALSE(opens(photos.user(), "Holidays"));
    springBoard.user().waitForOwnerRequest();
    springBoard.user().answerOwnerRequest(OwnerAnswer::success);
    photos.user().waitUntilGone("Pets");
    EXPECT_TRUE(isAlbumOpen(photos.user()));
    if (arrays[i].bytes) EXPECT_EQ(phone_.strings(kLockedAlbums), Titles{"Holidays"});
  }
}

TEST_F(DamagedFiles, TheCameraStartsWithoutItsAlbum) {
  phone_.writePreferences({{"rememberDefault", true}});
  for (const Damage& damage : damagesOf(Kind::array)) {
    put(damage, kCaptureAlbum);
    const ForkedProcess camera([&](const Line& test) {
      try {
        phone_.launchHere("com.apple.camera");
      } catch (const std::runtime_error& error) {
        // The library is in it, even where the phone has no Camera to show.
        if (!std::string_view(error.what()).starts_with("no app ")) throw;
      }
      test.say("runs");
    });
    EXPECT_EQ(camera.hear(), "runs") << damage.name;
  }
}

}  // namespace
}  // namespace velvault12
