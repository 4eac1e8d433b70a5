#include "device/device.hpp"

#import <Foundation/Foundation.h>

#include <stdexcept>

#include "device/frameworks/Foundation/property_list.hpp"
#include "device/system/disk.hpp"

namespace device {
namespace {

constexpr std::string_view kPreferences = "/var/mobile/Library/Preferences/com.qdx.velvault12prefs.plist";

// For callers that know of no Objective-C.
class Pool {
 public:
  Pool() : pool_([NSAutoreleasePool new]) {}
  ~Pool() { [pool_ drain]; }
  Pool(const Pool&) = delete;
  Pool& operator=(const Pool&) = delete;

 private:
  NSAutoreleasePool* pool_;
};

struct ObjectOf {
  id operator()(bool value) const { return [NSNumber numberWithBool:value]; }
  id operator()(int value) const { return [NSNumber numberWithInt:value]; }
  id operator()(const std::string& value) const { return stringOf(value); }
};

std::optional<std::string> textOf(id value) {
  if ([value isKindOfClass:[NSString class]]) return utf8(value);
  if ([value isKindOfClass:[NSNumber class]]) return utf8([value stringValue]);
  return std::nullopt;
}

}  // namespace

void Device::writePreferences(const std::map<std::string, Preference>& preferences) const {
  const Pool pool;
  NSMutableDictionary* values = [NSMutableDictionary dictionary];
  for (const auto& [key, value] : preferences) {
    [values setObject:std::visit(ObjectOf(), value) forKey:stringOf(key)];
  }
  const std::optional<std::string> text = xmlPropertyListOf(values);
  if (!text || !replaceFile(onDisk(kPreferences), *text)) throw std::runtime_error("preferences not written");
}

std::optional<std::vector<std::string>> Device::strings(std::string_view phonePath) const {
  const Pool pool;
  NSArray* items = propertyListInFile(onDisk(phonePath), [NSArray class]);
  if (!items) return std::nullopt;
  std::vector<std::string> texts;
  for (id item in items) {
    if (![item isKindOfClass:[NSString class]]) return std::nullopt;
    texts.push_back(utf8(item));
  }
  return texts;
}

std::optional<std::map<std::string, std::string>> Device::dictionary(std::string_view phonePath) const {
  const Pool pool;
  NSDictionary* entries = propertyListInFile(onDisk(phonePath), [NSDictionary class]);
  if (!entries) return std::nullopt;
  std::map<std::string, std::string> texts;
  for (id key in entries) {
    const std::optional<std::string> text = textOf([entries objectForKey:key]);
    if (!text) return std::nullopt;
    texts.emplace(utf8(key), *text);
  }
  return texts;
}

}  // namespace device
