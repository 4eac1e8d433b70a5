// The preferences, which Photos reads again at any time: what is no switch and no number is the default.

#include "tests/fuzzing/fuzzed_photos.hpp"
#include "tests/photo_library.hpp"

namespace velvault12 {

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
    constexpr int kDefaultSize = 14, kLeftToTheHost = 15;
    const Object size = file["layoutFontSize"];
    const int chosenSize = isStringOrNumber(size) ? size.send<"intValue", int()>() : kDefaultSize;
    const bool showsTitle = chosen("layoutShowTitle", true);
    const UICollectionView list = albumList().collectionView();
    for (NSInteger item = 0; isEnabled && list.hasItemAtIndexPath(pathTo(item)); ++item) {
      const auto tile = albumList().tileAtIndexPath(pathTo(item));
      const auto title = albumList().collectionAtIndexPath(pathTo(item)).localizedTitle();
      EXPECT_EQ(tile.title().utf8(), showsTitle ? title.utf8() : "");
      const auto font = tile.titleTextField().send<"font", Object()>();
      if (showsTitle && chosenSize != kLeftToTheHost)
        EXPECT_EQ((font.send<"pointSize", double()>()), chosenSize < 1 ? kDefaultSize : chosenSize);
    }

    // Whatever it comes to: what is listed, which tabs there are, leaving the app.
    membersOf(listOf(elementsOf(topLevel()).get()));
    PhotosApplication(UIApplication::sharedApplication().get())
        .tabbedLibraryViewController()
        .send<"excludedContentModes", Object()>();
    me_.leaveApp();
    me_.returnToApp();
    if (!albumList()) me_.tap("See All");
  }
};

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<PreferencesTarget>(); }

}  // namespace velvault12
