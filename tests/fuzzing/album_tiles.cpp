// The list of locked albums as Photos' own list of albums reads it, and the file of their paths beside it.

#include "tests/fuzzing/fuzzed_photos.hpp"

namespace velvault12 {

class AlbumTilesTarget : public FuzzedPhotos {
 public:
  void take(std::string_view bytes) override {
    write(kLockedAlbums, bytes);
    write("/var/mobile/Library/velvault/lockedAlbumsPaths.plist", bytes);
    albumList().send<"viewWillAppear:", void(bool)>(false);
    tile(0).layoutSubviews();

    const bool isLocked = fileHolds(kLockedAlbums, "Holidays");
    constexpr NSInteger kOverlay = 200;
    EXPECT_EQ(static_cast<bool>(tile(0).viewWithTag(kOverlay)), isLocked);
    if (isLocked) albumList().select(placeOf(0));
    EXPECT_EQ(openAlbum(), "");
  }
};

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<AlbumTilesTarget>(); }

}  // namespace velvault12
