#pragma once

#include <algorithm>
#include <memory>
#include <regex>
#include <string_view>

#include "tests/phone_test.hpp"

namespace velvault12 {

/// An app of the phone and its untrusted input. One instance lives through all inputs of a run, as an app
/// lives through all that is written meanwhile.
class FuzzTarget {
 public:
  virtual ~FuzzTarget() = default;
  /// Puts the bytes where the app finds them, has it act on them, and expects of it what holds for any bytes.
  virtual void take(std::string_view bytes) = 0;
};

/// Each program defines its own.
std::unique_ptr<FuzzTarget> makeTarget();

/// A target made of a test's fixture.
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
/// Whether all are strings of letters alone, which every file and every form of a property list can hold.
inline bool arePlainTexts(NSArray values) {
  static const std::regex letters("[A-Za-z]{1,99}");
  const auto isPlain = [](const std::string& text) { return std::regex_match(text, letters); };
  const auto texts = values.strings();
  return texts.size() == values.count() && std::ranges::all_of(texts, isPlain);
}
/// Whether a file of the phone is an array with that text among its elements.
inline bool fileHolds(std::string_view path, std::string_view text) {
  return NSArray::contentsOfFile(path)->containsObject(NSString::from(text));
}

}  // namespace velvault12
