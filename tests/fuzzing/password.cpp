// The stored password, which Photos compares with what is entered: text opens for the same text alone, and
// what is no text is no password.

#include "tests/fuzzing/fuzzed_photos.hpp"

namespace velvault12 {

class PasswordTarget : public FuzzedPhotos {
 public:
  PasswordTarget() : FuzzedPhotos({"Holidays"}, kWithPassword) {}

  void take(std::string_view bytes) override {
    write(kPassword, bytes);
    constexpr NSUInteger kUtf8 = 4;
    const auto stored =
        makeObject<NSString, "initWithBytes:length:encoding:">(bytes.data(), bytes.size(), kUtf8);
    const NSString guess = NSString::from("guess");
    for (const NSString entered : {guess, stored ? stored.get() : guess}) {
      albumList().select(placeOf(0));
      ASSERT_EQ(openAlbum(), "");
      albumList().send<"requestPassword:", void(int)>(0);
      const auto alert = albumList().send<"presentedViewController", UIAlertController()>();
      alert.firstTextField().send<"setText:", void(NSString)>(entered);
      me_.tap("OK");
      EXPECT_EQ(openAlbum(), !stored || stored->isEqualToString(entered) ? "Holidays" : "");
      returnToList();
    }
  }
};

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<PasswordTarget>(); }

}  // namespace velvault12
