// The list of locked albums, which any app reads with each question: a string in it locks the albums of that
// title, whatever else it holds.

#include "tests/fuzzing/fuzz_target.hpp"
#include "tests/photo_library.hpp"

namespace velvault12 {

constexpr std::string_view kAlbums[] = {"Pets", "\u2603", "\U0001F408", ""};

class LockedAlbumsTarget : public Fuzzed<PhoneTest> {
 public:
  LockedAlbumsTarget() {
    auto library = phone_.photoLibrary();
    for (const std::string_view title : kAlbums) {
      library.addToAlbum(library.addAsset({}), library.addAlbum(title));
      library.addToAlbum(library.addAsset({}), library.addAlbum(title, library.addFolder("Folder")));
    }
    phone_.launchHere(device::kGallery);
  }

  void take(std::string_view bytes) override {
    write(kLockedAlbums, bytes);
    const Titles listed = titlesOf(membersOf(listOf(elementsOf(topLevel()).get())));
    for (const std::string_view title : kAlbums) {
      const NSUInteger open = fileHolds(kLockedAlbums, title) ? 0 : 1;
      const PHAssetCollection album = albumNamed(title);
      EXPECT_EQ(PHAsset::fetchAllInAssetCollection(album).count(), open) << title;
      EXPECT_EQ(keyAssetsOf(album).count(), open) << title;
      EXPECT_EQ(estimateOf(album), open) << title;
      // The one at the top level, and the one of the folder.
      EXPECT_EQ(std::ranges::count(listed, title), 2 * open) << title;
    }
  }
};

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<LockedAlbumsTarget>(); }

}  // namespace velvault12
