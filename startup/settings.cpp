#include "startup/settings.hpp"

#include <mutex>
#include <utility>

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

class SettingsInForce {
 public:
  std::shared_ptr<const Settings> get() const {
    const std::lock_guard lock(mutex_);
    return settings_;
  }
  void set(std::shared_ptr<const Settings> read) {
    // The old settings are freed with the parameter, after the lock.
    const std::lock_guard lock(mutex_);
    settings_.swap(read);
  }

 private:
  mutable std::mutex mutex_;
  std::shared_ptr<const Settings> settings_ = std::make_shared<Settings>();
};

}  // namespace

std::shared_ptr<const Settings> settings() { return processWide<SettingsInForce>().get(); }

bool isEnabled() { return settings()->enabled; }

bool isChosen(bool Settings::*choice) {
  const auto chosen = settings();
  return chosen->enabled && (*chosen).*choice;
}

void loadSettings() {
  auto read = std::make_shared<Settings>(*settings());
  applyPreferences(*read, readPreferences());
  processWide<SettingsInForce>().set(std::move(read));
}

}  // namespace velvault12
