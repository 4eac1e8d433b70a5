#include <thread>

#include "benchmarks/heap_growth/heap_growth.hpp"
#include "host/camera_ui.hpp"
#include "tests/phone_test.hpp"

extern "C" {
velvault12::ObjcBool GSRegisterCurrentThread();
void GSUnregisterCurrentThread();
}

namespace velvault12 {
namespace {

constexpr std::string_view kCaptureAlbum = "/var/mobile/Library/velvault/album.tct";

class Camera : public PhoneTest {
 public:
  bool keepsNothing(Effort effort) {
    for (const std::string_view title : {"Open", "Locked", "Empty"}) library_.addAlbum(title);
    photo_ = library_.addAsset({});
    captures_ = library_.addAlbum("Captures");
    writeStrings(kLockedAlbums, {"Locked"});
    writeStrings(kCaptureAlbum, {"Captures"});
    phone_.writePreferences({{"rememberDefault", true}});
    springBoard_.emplace(phone_.launch(device::kSpringBoard));
    phone_.launchHere(device::kCamera);
    const auto hooks = letTimePass();
    const auto metal = makeObject<CAMMetalView>();
    metal->setFrame({{0, 100}, {350, 140}});
    viewfinder().view().addSubview(metal.get());
    Drivers drivers{.all = {}, .receivers = {{"CAMCaptureEngine", engine}}};
    addLibraryFilter(drivers);
    addCaptures(drivers);
    addDialogs(drivers, "CAMBottomBar", viewfinder().send<"_bottomBar", CameraBar()>());
    addDialogs(drivers, "CAMMetalView", metal.get());
    return measure(effort, hooks, drivers);
  }

 private:
  void TestBody() override {}

  static UIViewController viewfinder() {
    return UIApplication::sharedApplication().keyWindow().send<"rootViewController", UIViewController()>();
  }
  static Object engine() { return viewfinder().send<"_captureEngine", Object()>(); }

  static void finishCapture() {
    engine().send<"captureOutput:didFinishCaptureForResolvedSettings:error:", void(Object, Object, Object)>(
        Object(), Object(), Object());
  }
  static void finishCaptureElsewhere() {
    std::thread([] {
      GSRegisterCurrentThread();
      {
        const AutoreleasePool pool;
        finishCapture();
      }
      GSUnregisterCurrentThread();
    }).join();
  }
  /// Waits until the photo has gone where it was to go, and brings it back.
  void putBack() {
    for (int step = 0; step < 2; ++step) rest();
    const auto albums = library_.albumsContaining(photo_);
    if (albums.empty()) throw std::runtime_error("the photo was not moved");
    captures_ = albums.front().identifier;
    library_.removeFromAlbum(photo_, captures_);
    library_.setHidden(photo_, false);
  }

  void addCaptures(Drivers& drivers) {
    constexpr std::string_view kFinished = "captureOutput:didFinishCaptureForResolvedSettings:error:";
    const auto move = [] { engine().send<"movePhoto", void()>(); };
    const Driver all[] = {{"CAMCaptureEngine", kFinished,
                           [this] {
                             finishCapture();
                             putBack();
                           }},
                          {"CAMCaptureEngine", kFinished,
                           [this] {
                             finishCaptureElsewhere();
                             putBack();
                           },
                           "on another thread"},
                          {"CAMCaptureEngine", "movePhoto",
                           [this, move] {
                             move();
                             putBack();
                           }},
                          {"CAMCaptureEngine", "movePhoto",
                           [this, move] {
                             library_.removeCollection(captures_);
                             move();
                             putBack();
                           },
                           "into a new album"}};
    drivers.all.insert(drivers.all.end(), std::begin(all), std::end(all));
  }

  static void addDialogs(Drivers& drivers, std::string_view className, CameraBar bar) {
    const Ref<CameraBar> kept(bar);
    const auto chooses = [=](std::string_view button) {
      return [=] {
        kept->send<"chooseAlbum", void()>();
        press(button);
      };
    };
    const auto creates = [=] {
      kept->send<"createNewAlbum", void()>();
      typeIn("Captures");
      press("Create");
    };
    const Driver all[] = {{className, "chooseAlbum", chooses("Captures")},
                          {className, "chooseAlbum", chooses("Cancel"), "cancelled"},
                          {className, "createNewAlbum", creates},
                          {className, "adjustRotationToSize:", [=] {
                             kept->send<"adjustRotationToSize:", void(CGSize)>(CGSize{350, 140});
                           }}};
    drivers.all.insert(drivers.all.end(), std::begin(all), std::end(all));
  }

  device::PhotoDatabase library_ = phone_.photoLibrary();
  std::int64_t photo_ = 0;
  std::int64_t captures_ = 0;
};

}  // namespace

bool cameraKeepsNothing(Effort effort) { return Camera().keepsNothing(effort); }

}  // namespace velvault12
