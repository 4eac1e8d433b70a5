// The preferences, which Photos reads again at any time: what is no switch and no number is the default.

#include "tests/fuzzing/fuzzed_photos.hpp"
#include "tests/photo_library.hpp"

namespace velvault12 {
namespace {

class PreferencesTarget : public FuzzedPhotos {
 public:
  void take(std::string_view bytes) override {
    write(kPreferences, bytes);
    phone_.post(kReload);
    turn();
    albumList().send<"viewWillAppear:", void(bool)>(false);
    albumList().reloadContentView();
    me_.screen();

    const NSDictionary file = NSDictionary::contentsOfFile(kPreferences);
    const auto chosen = [file](std::string_view key, bool byDefault) {
      const Object value = file[key];
      return isStringOrNumber(value) ? value.send<"boolValue", bool()>() : byDefault;
    };
    const bool isEnabled = chosen("enabled", true);
    EXPECT_EQ((albumNamed("Pets").send<"startsAtEnd", bool()>()),
              isEnabled && chosen("startAtBottom", false));
    EXPECT_EQ((makeObject<PUDeletePhotosActionController>()->send<"shouldSkipDeleteConfirmation", bool()>()),
              isEnabled && chosen("skipDelete", false));
    if (const auto tile = tileOf("Holidays"); tile && isEnabled) {
      const bool showsTitle = chosen("layoutShowTitle", true);
      EXPECT_EQ(tile.title().utf8(), showsTitle ? "Holidays" : "");
      if (showsTitle) expectFontSize(tile, file["layoutFontSize"]);
    }
    useTheRest();
  }

 private:
  /// Nil for an album that is not listed.
  static PUAlbumListCellContentView tileOf(std::string_view title) {
    const UICollectionView view = albumList().collectionView();
    for (NSInteger item = 0; view.hasItemAtIndexPath(pathTo(item)); ++item) {
      if (albumList().collectionAtIndexPath(pathTo(item)).localizedTitle().utf8() == title)
        return albumList().tileAtIndexPath(pathTo(item));
    }
    return {};
  }

  static void expectFontSize(PUAlbumListCellContentView tile, Object chosen) {
    constexpr int kDefault = 14, kLeftToTheHost = 15;
    int size = isStringOrNumber(chosen) ? chosen.send<"intValue", int()>() : kDefault;
    if (size < 1) size = kDefault;
    const Object font = tile.titleTextField().send<"font", Object()>();
    if (size != kLeftToTheHost) EXPECT_EQ((font.send<"pointSize", double()>()), size);
  }

  /// Whatever it comes to: what is listed, which tabs there are, leaving the app.
  void useTheRest() const {
    membersOf(listOf(elementsOf(topLevel()).get()));
    PhotosApplication(UIApplication::sharedApplication().get())
        .tabbedLibraryViewController()
        .send<"excludedContentModes", Object()>();
    me_.leaveApp();
    me_.returnToApp();
    if (!albumList()) me_.tap("See All");
  }
};

}  // namespace

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<PreferencesTarget>(); }

}  // namespace velvault12
