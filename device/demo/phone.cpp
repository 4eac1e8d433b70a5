#include "device/demo/phone.hpp"

#include <algorithm>
#include <chrono>
#include <ctime>

#include "device/demo/story.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

constexpr std::string_view kReloadNotification = "com.qdx.velvault12prefs/reloadPrefs";

void fillLibrary(PhotoDatabase library) {
  constexpr double kDay = 86'400;
  constexpr std::uint32_t kColors[] = {0x3A86FF, 0x8338EC, 0xFF006E, 0xFB5607, 0xFFBE0B,
                                       0x2A9D8F, 0xE63946, 0x06D6A0, 0x6D597A};
  double date = 1'700'000'000;
  std::size_t next = 0;
  for (const std::string_view title : {"Holidays", "Pets", "Recipes"}) {
    const std::int64_t album = library.addAlbum(title);
    for (int i = 0; i < 3; ++i) {
      const std::int64_t asset = library.addAsset({.creationDate = date += kDay, .color = kColors[next++]});
      library.addToAlbum(asset, album);
    }
  }
}

}  // namespace

std::string joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + text;
  return "[" + all + "]";
}

std::string describe(const AlertText& alert) {
  std::vector<std::string> rest = alert.fields;
  rest.insert(rest.end(), alert.buttons.begin(), alert.buttons.end());
  return alert.title + ": " + alert.message + " " + joined(rest);
}

std::string describe(const AssetRow& photo) {
  const auto date = static_cast<std::time_t>(photo.creationDate);
  char text[64];
  std::strftime(text, sizeof text, "Photo, %Y-%m-%d %H:%M:%S", std::gmtime(&date));
  return text;
}

Phone::Phone(const std::filesystem::path& folder, const std::filesystem::path& library,
             const std::filesystem::path& filter, const std::filesystem::path& images)
    : device_(folder) {
  device_.install(library, filter, images);
  fillLibrary(device_.photoLibrary());
}

const User& Phone::open(std::string_view app) {
  apps_.erase(app);
  apps_.emplace(app, device_.launch(app));
  return in(app);
}

const User& Phone::in(std::string_view app) const {
  if (app != kSpringBoard) inFront_ = app;
  return apps_.at(app).user();
}

std::vector<Picture> Phone::pictures() const {
  // What does not run, or has crashed, shows nothing.
  const auto tryTo = [](const std::function<void()>& look) {
    try {
      look();
    } catch (const std::exception&) {
    }
  };
  std::string ownerRequest;
  tryTo([&] { ownerRequest = in(kSpringBoard).ownerRequest(); });
  std::vector<Picture> all;
  const auto add = [&](std::string_view app, std::string_view caption) {
    tryTo([&] {
      const User& user = apps_.at(app).user();
      all.push_back({std::string(caption), user.picture(ownerRequest), user.screen()});
    });
  };
  if (compared_.empty()) add(inFront_, "");
  for (const auto& [app, caption] : compared_) add(app, caption);
  return all;
}

void Phone::changeSettings(const std::map<std::string, Device::Preference>& preferences) const {
  inFront_ = {};
  device_.writePreferences(preferences);
  device_.post(kReloadNotification);
  letAppsRun();
}

std::string Phone::waitForOwnerRequest() const {
  in(kSpringBoard).waitForOwnerRequest();
  return in(kSpringBoard).ownerRequest();
}

void Phone::authenticate() const {
  waitForOwnerRequest();
  in(kSpringBoard).answerOwnerRequest(OwnerAnswer::success);
}

std::vector<AssetRow> Phone::inAlbum(std::string_view title) const {
  const PhotoDatabase library = device_.photoLibrary();
  const std::vector<CollectionRow> albums = library.allAlbums();
  const auto album = std::ranges::find(albums, title, &CollectionRow::title);
  return album == albums.end() ? std::vector<AssetRow>() : library.assetsInAlbum(album->identifier);
}

std::size_t Phone::hiddenIn(std::string_view title) const {
  return static_cast<std::size_t>(std::ranges::count(inAlbum(title), true, &AssetRow::isHidden));
}

std::vector<AssetRow> Phone::inCameraRoll() const {
  std::vector<AssetRow> assets = device_.photoLibrary().allAssets();
  std::erase_if(assets, [](const AssetRow& asset) { return asset.isHidden; });
  return assets;
}

std::string Phone::waitForFile(std::string_view path, const std::vector<std::string>& strings) const {
  std::string result = std::filesystem::path(path).filename().native() + " holds " + joined(strings);
  waitUntil(result, [&] { return device_.strings(path) == strings; });
  return result;
}

void Phone::waitUntil(std::string_view expectation, const std::function<bool()>& condition) const {
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (!condition()) {
    expect(std::chrono::steady_clock::now() < deadline, expectation);
    letAppsRun();
  }
}

void Phone::letAppsRun() const {
  // An app that replies has handled what came before.
  for (const auto& [name, app] : apps_) app.user().screen();
}

}  // namespace device
