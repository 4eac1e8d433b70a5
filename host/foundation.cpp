#include "host/foundation.hpp"

#include "host/unicode.hpp"

namespace velvault12 {

namespace {

constexpr NSUInteger kUtf8Encoding = 4;

template <class View>
Ref<View> readFile(std::string_view path) {
  const auto allocated = View(sendToClass<"alloc", id()>(View::hostClass()));
  return Ref<View>::adopt(
      allocated.template send<"initWithContentsOfFile:", View(NSString)>(NSString::from(path)));
}

}  // namespace

NSString NSString::from(std::string_view utf8) {
  const std::u16string units = utf16FromUtf8(utf8);
  return sendToClass<"stringWithCharacters:length:", NSString(const char16_t*, NSUInteger)>(
      hostClass(), units.data(), units.size());
}

std::string NSString::utf8() const {
  struct Range {
    NSUInteger location;
    NSUInteger length;
  };
  // Through UTF-16, which every string has: asked for UTF-8, the host answers null or raises for some.
  std::u16string units(send<"length", NSUInteger()>(), u'\0');
  if (units.empty()) return {};
  send<"getCharacters:range:", void(char16_t*, Range)>(units.data(), Range{0, units.size()});
  return utf8FromUtf16(units);
}

std::optional<std::string> NSString::contentsOfFile(std::string_view path) {
  const auto allocated = NSString(sendToClass<"alloc", id()>(hostClass()));
  const auto text = Ref<NSString>::adopt(
      allocated.send<"initWithContentsOfFile:encoding:error:", NSString(NSString, NSUInteger, id*)>(
          from(path), kUtf8Encoding, nullptr));
  if (!text) return std::nullopt;
  return text->utf8();
}

NSNumber NSNumber::from(int value) {
  return sendToClass<"numberWithInt:", NSNumber(int)>(hostClass(), value);
}
NSNumber NSNumber::from(bool value) {
  return sendToClass<"numberWithBool:", NSNumber(bool)>(hostClass(), value);
}

std::optional<int> intValue(Object value) {
  if (!value.responds<"intValue">()) return std::nullopt;
  return value.send<"intValue", int()>();
}

std::optional<bool> boolValue(Object value) {
  if (!value.responds<"boolValue">()) return std::nullopt;
  return value.send<"boolValue", bool()>();
}

std::optional<std::string> stringValue(Object value) {
  const auto string = value.as<NSString>();
  if (!string) return std::nullopt;
  return string.utf8();
}

NSArray NSArray::from(const std::vector<std::string>& strings) {
  const auto array = sendToClass<"array", NSMutableArray()>(NSMutableArray::hostClass());
  for (const std::string& string : strings) array.addObject(NSString::from(string));
  return array;
}

std::vector<std::string> NSArray::strings() const {
  std::vector<std::string> texts;
  const NSUInteger size = count();
  texts.reserve(size);
  for (NSUInteger i = 0; i < size; ++i) {
    if (const auto string = objectAtIndex(i).as<NSString>()) texts.push_back(string.utf8());
  }
  return texts;
}

Ref<NSArray> NSArray::contentsOfFile(std::string_view path) { return readFile<NSArray>(path); }

NSDictionary NSDictionary::contentsOfFile(std::string_view path) {
  return sendToClass<"dictionaryWithContentsOfFile:", NSDictionary(NSString)>(hostClass(),
                                                                              NSString::from(path));
}

Ref<NSMutableDictionary> mutableCopy(NSDictionary dictionary) {
  if (!dictionary) return makeObject<NSMutableDictionary>();
  return Ref<NSMutableDictionary>::adopt(dictionary.send<"mutableCopy", NSMutableDictionary()>());
}

NSString NSBundle::localizedString(std::string_view key) const {
  return send<"localizedStringForKey:value:table:", NSString(NSString, NSString, NSString)>(
      NSString::from(key), NSString::from(""), NSString());
}

bool NSFileManager::createDirectoryAtPath(NSString path) const {
  return send<"createDirectoryAtPath:withIntermediateDirectories:attributes:error:",
              bool(NSString, bool, NSDictionary, id*)>(path, true, NSDictionary(), nullptr);
}

NSTimer NSTimer::scheduledOnce(double seconds, Object target, SEL action) {
  return sendToClass<"scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:",
                     NSTimer(double, Object, SEL, Object, bool)>(hostClass(), seconds, target, action,
                                                                 Object(), false);
}

}  // namespace velvault12
