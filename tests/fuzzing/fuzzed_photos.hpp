#pragma once

#include "tests/fuzzing/fuzz_target.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {

/// Photos with its list of albums on screen, on a phone without SpringBoard.
class FuzzedPhotos : public Fuzzed<PhotosApp> {
 protected:
  explicit FuzzedPhotos(const Titles& locked = {}, const Preferences& preferences = {}) {
    writeStrings(kLockedAlbums, locked);
    phone_.writePreferences(preferences);
    phone_.launchHere(device::kPhotos);
    me_.tap("See All");
  }

  /// From an alert or an album.
  static void returnToList() {
    navigation().send<"dismissViewControllerAnimated:completion:", void(bool, Block<void()>)>(
        false, Block<void()>());
    if (!albumList()) navigation().send<"popViewControllerAnimated:", Object(bool)>(false);
  }
};

}  // namespace velvault12
