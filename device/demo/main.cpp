#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "device/demo/chapters.hpp"
#include "device/demo/page.hpp"
#include "device/demo/phone.hpp"
#include "device/demo/story.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

void tellFirstLook(Story& story, Phone& phone) {
  story.chapter("A phone with three albums");
  story.step("The phone boots.", [&] {
    phone.open(kSpringBoard);
    expect(phone.hasFile(kStateFolder), "SpringBoard makes its folder");
    return "SpringBoard runs and has made " + std::string(kStateFolder) + ".";
  });
  story.step("You open Photos and all of its albums.", [&] {
    const User& photos = phone.open(kPhotos);
    photos.tap("See All");
    for (const std::string_view title : {"Holidays", "Pets", "Recipes"}) photos.waitToSee(title);
    return "It lists Camera Roll, Holidays, Pets and Recipes, with their counts.";
  });
}

/// Returns whether all of it passed.
bool tell(Story& story, Phone& phone) {
  try {
    tellFirstLook(story, phone);
    // Without a phone there is nothing to tell.
    if (!story.passed()) return false;
    for (const auto tellMore : {tellAlbumLock, tellCamera, tellPhotos, tellLibraryFilter, tellPresentation}) {
      tellMore(story, phone);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "Demo failed: %s\n", error.what());
    return false;
  }
  return story.passed();
}

int play(const std::filesystem::path& folder) {
  Phone phone(folder, VELVAULT12_LIBRARY, VELVAULT12_FILTER, VELVAULT12_IMAGES);
  Story story([&phone] { return phone.pictures(); });
  const bool passed = tell(story, phone);
  std::printf("\n%s. The phone's disk: %s\n", story.summary().c_str(), (folder / "disk").c_str());
  std::printf("The story with pictures: %s\n", writePage(folder, story).c_str());
  return passed ? 0 : 1;
}

}  // namespace
}  // namespace device

int main(int count, char** arguments) {
  try {
    return device::play(count > 1 ? arguments[1] : DEMO_FOLDER);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "Demo failed: %s\n", error.what());
    return 1;
  }
}
