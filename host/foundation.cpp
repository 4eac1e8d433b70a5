#include "host/foundation.hpp"

#include <iterator>
#include <memory>

#include "host/unicode.hpp"

namespace velvault12 {

namespace {

constexpr NSUInteger kUtf8Encoding = 4;

/// What a loop over a collection keeps between its steps: the host's structure, and after it the room that it
/// may use. Not for the stack, which the phone's compiler would guard for the arrays' sake.
struct FastEnumeration {
  unsigned long state = 0;
  id* items = nullptr;
  unsigned long* mutations = nullptr;
  unsigned long extra[5] = {};
  id buffer[16] = {};
};

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
  constexpr id* kNoError = nullptr;
  const auto text =
      makeObject<NSString, "initWithContentsOfFile:encoding:error:">(from(path), kUtf8Encoding, kNoError);
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

NSNumber NSNumber::from(NSUInteger value) {
  return sendToClass<"numberWithUnsignedInteger:", NSNumber(NSUInteger)>(hostClass(), value);
}

bool isNumber(NSString text) {
  if (!text) return false;
  const auto scanner = sendToClass<"scannerWithString:", Object(NSString)>(classNamed<"NSScanner">(), text);
  float number = 0;
  return scanner.send<"scanFloat:", bool(float*)>(&number) && scanner.send<"isAtEnd", bool()>();
}

Ref<NSArray> elementsOf(Object collection) {
  const Ref<NSMutableArray> elements = makeObject<NSMutableArray>();
  const auto walk = std::make_unique<FastEnumeration>();
  const auto nextItems = [&] {
    return collection
        .trySend<"countByEnumeratingWithState:objects:count:", NSUInteger(FastEnumeration*, id*, NSUInteger)>(
            walk.get(), walk->buffer, std::size(walk->buffer));
  };
  while (const NSUInteger count = nextItems()) {
    for (NSUInteger i = 0; i < count; ++i) elements->addObject(Object(walk->items[i]));
  }
  return Ref<NSArray>(elements.get());
}

NSArray NSArray::from(const std::vector<std::string>& strings) {
  const auto array = sendToClass<"array", NSMutableArray()>(NSMutableArray::hostClass());
  for (const std::string& string : strings) array.addObject(NSString::from(string));
  return array;
}

NSArray NSArray::of(Object object) {
  const auto array = sendToClass<"array", NSMutableArray()>(NSMutableArray::hostClass());
  array.addObject(object);
  return array;
}

std::vector<std::string> NSArray::strings() const {
  std::vector<std::string> texts;
  texts.reserve(count());
  for (const Object element : *this) {
    if (const auto string = element.as<NSString>()) texts.push_back(string.utf8());
  }
  return texts;
}

Ref<NSArray> NSArray::contentsOfFile(std::string_view path) {
  return makeObject<NSArray, "initWithContentsOfFile:">(NSString::from(path));
}

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

NSPredicate NSPredicate::make(std::string_view format, NSString argument) {
  // Not the variadic one: its arguments travel elsewhere than those of any other method.
  return sendToClass<"predicateWithFormat:argumentArray:", NSPredicate(NSString, NSArray)>(
      hostClass(), NSString::from(format), NSArray::of(argument));
}

NSSortDescriptor NSSortDescriptor::make(std::string_view key, bool ascending) {
  return sendToClass<"sortDescriptorWithKey:ascending:", NSSortDescriptor(NSString, bool)>(
      hostClass(), NSString::from(key), ascending);
}

NSTimer NSTimer::scheduledOnce(double seconds, Object target, SEL action) {
  return sendToClass<"scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:",
                     NSTimer(double, Object, SEL, Object, bool)>(hostClass(), seconds, target, action,
                                                                 Object(), false);
}

}  // namespace velvault12
