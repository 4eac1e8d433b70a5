#include "startup/shared_files.hpp"

#include "host/foundation.hpp"
#include "startup/service_messages.hpp"

namespace velvault12 {

std::optional<std::vector<std::string>> readStrings(std::string_view path) {
  const Ref<NSArray> file = NSArray::contentsOfFile(path);
  if (!file) return std::nullopt;
  return file->strings();
}

std::optional<std::string> readFirstString(std::string_view path) {
  const Ref<NSArray> file = NSArray::contentsOfFile(path);
  if (file->count() == 0) return std::nullopt;
  return stringValue(file->objectAtIndex(0));
}

void saveArray(const std::vector<std::string>& strings, std::string_view path) {
  const Ref<NSMutableDictionary> request = makeObject<NSMutableDictionary>();
  request->set(key::kSender, NSBundle::mainBundle().bundleIdentifier());
  request->set(key::kArray, NSArray::from(strings));
  request->set(key::kPath, NSString::from(path));
  sendToService(kSaveArrayMessage, request.get());
}

}  // namespace velvault12
