// The album that captures go into, as the Camera finds it when it starts: the file's first element if that is
// a string, or none.

#include "camera/capture_album.hpp"

#include "device/apps/app.hpp"
#include "host/camera_ui.hpp"
#include "startup/hook_table.hpp"
#include "startup/settings.hpp"
#include "tests/fuzzing/fuzz_target.hpp"

namespace velvault12 {

/// An app reads the file once. So the library is not loaded here but linked, to be started for each input.
class CaptureAlbumTarget : public Fuzzed<PhoneTest> {
 public:
  CaptureAlbumTarget() {
    library_.addAsset({});
    become(device::kCamera);
    phone_.writePreferences({{"rememberDefault", true}});
    loadSettings();
    installHooks(hooksOf(HookGroup::camera));
    installHooks(libraryFilterHooks());
    device::startApp(device::kCamera);
  }

  void take(std::string_view bytes) override {
    constexpr std::string_view kPath = "/var/mobile/Library/velvault/album.tct";
    write(kPath, bytes);
    captureAlbum().readAtStart();
    const Ref<NSArray> list = NSArray::contentsOfFile(kPath);
    const std::string title = stringOr(kCameraRoll, list->count() > 0 ? list->objectAtIndex(0) : Object());

    const auto viewfinder =
        UIApplication::sharedApplication().keyWindow().send<"rootViewController", UIViewController()>();
    const auto bar = viewfinder.send<"_bottomBar", CAMBottomBar()>();
    bar.layoutSubviews();
    constexpr NSInteger kCaption = 78;
    EXPECT_EQ((bar.viewWithTag(kCaption).send<"text", NSString()>().utf8()), title);
    viewfinder.send<"_captureEngine", Object()>().send<"movePhoto", void()>();
    settleLibrary();
    const auto albums = library_.allAlbums();
    ASSERT_EQ(albums.size(), title == kCameraRoll ? 0u : 1u);
    for (const auto& album : albums) {
      const auto captures = library_.assetsInAlbum(album.identifier);
      ASSERT_EQ(captures.size(), 1u);
      library_.setHidden(captures.front().identifier, false);
      library_.removeCollection(album.identifier);
    }
  }

 private:
  device::PhotoDatabase library_ = phone_.photoLibrary();
};

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<CaptureAlbumTarget>(); }

}  // namespace velvault12
