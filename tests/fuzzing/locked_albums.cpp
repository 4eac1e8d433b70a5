// The list of locked albums, which any app reads with each question: a string in it locks the albums of that
// title, whatever else it holds.

#include "tests/fuzzing/fuzz_target.hpp"
#include "tests/photo_library.hpp"

namespace velvault12 {
namespace {

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
    Titles open;
    for (const std::string_view title : kAlbums) {
      const bool isLocked = fileHolds(kLockedAlbums, title);
      if (!isLocked) open.emplace_back(title);
      const PHAssetCollection album = albumNamed(title);
      EXPECT_EQ(PHAsset::fetchAllInAssetCollection(album).count(), isLocked ? 0u : 1u) << title;
      EXPECT_EQ(keyAssetsOf(album).count(), isLocked ? 0u : 1u) << title;
      EXPECT_EQ(estimateOf(album), isLocked ? 0u : 1u) << title;
    }
    Titles listed = titlesOf(membersOf(listOf(elementsOf(topLevel()).get())));
    std::erase(listed, "Folder");
    // Those at the top level, and behind them those of the folders.
    const Titles twice = open;
    open.insert(open.end(), twice.begin(), twice.end());
    EXPECT_EQ(listed, open);
  }
};

}  // namespace

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<LockedAlbumsTarget>(); }

}  // namespace velvault12
