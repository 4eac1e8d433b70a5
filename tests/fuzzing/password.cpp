// The stored password, which Photos compares with what is entered: text opens for the same text alone, and
// what is no text is no password.

#include "tests/fuzzing/fuzzed_photos.hpp"

namespace velvault12 {
namespace {

class PasswordTarget : public FuzzedPhotos {
 public:
  PasswordTarget() : FuzzedPhotos({"Holidays"}, kWithPassword) {}

  void take(std::string_view bytes) override {
    write(kPassword, bytes);
    constexpr NSUInteger kUtf8 = 4;
    const auto stored =
        makeObject<NSString, "initWithBytes:length:encoding:">(bytes.data(), bytes.size(), kUtf8);
    const NSString guess = NSString::from("guess");
    expectToOpen(guess, !stored || stored->isEqualToString(guess));
    if (stored) expectToOpen(stored.get(), true);
  }

 private:
  void expectToOpen(NSString entered, bool opens) const {
    albumList().select(placeOf(0));
    ASSERT_EQ(openAlbum(), "");
    albumList().send<"requestPassword:", void(int)>(0);
    const auto alert = albumList().send<"presentedViewController", UIAlertController()>();
    alert.firstTextField().send<"setText:", void(NSString)>(entered);
    me_.tap("OK");
    EXPECT_EQ(openAlbum(), opens ? "Holidays" : "");
    returnToList();
  }
};

}  // namespace

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<PasswordTarget>(); }

}  // namespace velvault12
