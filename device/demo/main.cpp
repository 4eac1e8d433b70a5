#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "device/demo/album_lock_chapters.hpp"
#include "device/demo/camera_chapters.hpp"
#include "device/demo/library_chapters.hpp"
#include "device/demo/page.hpp"
#include "device/demo/phone.hpp"
#include "device/demo/photo_chapters.hpp"
#include "device/demo/presentation_chapters.hpp"
#include "device/demo/story.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

constexpr std::string_view kStateFolder = "/var/mobile/Library/velvault";

/// Answers whether there is a phone to go on with.
bool bootAndLook(Story& story, Phone& phone) {
  story.chapter("A phone with three albums");
  story.step("The phone boots.", [&] {
    phone.open(kSpringBoard);
    expect(phone.hasFile(kStateFolder), "SpringBoard makes its folder");
    return "SpringBoard runs and has made " + std::string(kStateFolder);
  });
  story.step("You open Photos and all of its albums.", [&] {
    const User& photos = phone.open(kPhotos);
    photos.tap("See All");
    for (const std::string_view title : {"Holidays", "Pets", "Recipes"}) photos.waitToSee(title);
    return "on screen:\n" + photos.screen();
  });
  return story.failures() == 0;
}

int play(const std::filesystem::path& folder) {
  Phone phone(folder, VELVAULT12_LIBRARY, VELVAULT12_FILTER, VELVAULT12_IMAGES);
  Story story([&phone] { return phone.pictures(); });
  if (bootAndLook(story, phone)) {
    tellAlbumLock(story, phone);
    tellCamera(story, phone);
    tellPhotos(story, phone);
    tellLibraryFilter(story, phone);
    tellPresentation(story, phone);
  }
  std::printf("\n%d of %d steps went as told. The phone's disk is left in %s.\n",
              story.steps() - story.failures(), story.steps(), folder.c_str());
  std::printf("The whole story with pictures of the phone: %s\n",
              writePage(folder, "A story on a simulated iPhone", story.chapters()).c_str());
  return story.failures() == 0 ? 0 : 1;
}

}  // namespace
}  // namespace device

int main(int count, char** arguments) {
  try {
    return device::play(count > 1 ? arguments[1] : DEMO_FOLDER);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "The story broke off: %s\n", error.what());
    return 1;
  }
}
