#include "startup/settings.hpp"

#include "host/foundation.hpp"
#include "host/process_wide.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

Preferences readPreferences() {
  Preferences preferences;
  const NSDictionary file = NSDictionary::contentsOfFile(kPreferencesFile);
  for (const Object each : file.allKeys()) {
    const auto key = each.as<NSString>();
    if (!key) continue;
    const Object value = file.objectForKey(key);
    preferences[key.utf8()] = {boolValue(value), intValue(value)};
  }
  return preferences;
}

}  // namespace

Settings& settings() { return processWide<Settings>(); }

void loadSettings() { applyPreferences(settings(), readPreferences()); }

}  // namespace velvault12
