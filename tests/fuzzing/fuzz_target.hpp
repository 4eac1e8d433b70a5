#pragma once

#include <algorithm>
#include <cctype>
#include <memory>
#include <string_view>

#include "tests/phone_test.hpp"

namespace velvault12 {

/// An app of the phone, and what strangers write for it. One of them lives through all inputs of a run, as an
/// app lives through all that is written meanwhile.
class FuzzTarget {
 public:
  virtual ~FuzzTarget() = default;
  /// Puts the bytes where the app finds them, has it act on them, and expects of it what holds for any bytes.
  virtual void take(std::string_view bytes) = 0;
};

/// Each program has its own.
std::unique_ptr<FuzzTarget> makeTarget();

/// A target made of a test's fixture, for what that can do and expect.
template <class Fixture>
class Fuzzed : public FuzzTarget, public Fixture {
 protected:
  void TestBody() override {}

  /// What a message of these bytes brings: a dictionary, an array, or nil.
  Object received(std::string_view bytes) const {
    constexpr std::string_view kPath = "/var/mobile/Media/received.plist";
    this->write(kPath, bytes);
    const NSDictionary entries = NSDictionary::contentsOfFile(kPath);
    return entries ? Object(entries) : NSArray::contentsOfFile(kPath).autorelease();
  }
};

// What a value of a property list is, asked in another way than the library asks.

inline bool isOfClass(Object value, Class type) { return value.send<"isKindOfClass:", bool(Class)>(type); }
inline bool isString(Object value) { return isOfClass(value, NSString::hostClass()); }
inline bool isStringOrNumber(Object value) {
  return isString(value) || isOfClass(value, NSNumber::hostClass());
}
inline std::string stringOr(std::string_view otherwise, Object value) {
  return isString(value) ? NSString(value.get()).utf8() : std::string(otherwise);
}
/// Letters alone, which every file and every form of a property list can hold.
inline bool isPlainText(Object value) {
  const std::string text = stringOr("", value);
  return !text.empty() && std::ranges::all_of(text, [](unsigned char c) { return std::isalpha(c) != 0; });
}
/// Whether a file of the phone is an array with that text among its elements.
inline bool fileHolds(std::string_view path, std::string_view text) {
  const Ref<NSArray> list = NSArray::contentsOfFile(path);
  for (const Object each : list.get()) {
    if (isString(each) && NSString(each.get()).utf8() == text) return true;
  }
  return false;
}

}  // namespace velvault12
