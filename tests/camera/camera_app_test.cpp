// The Camera on the simulated device: this process is the app, and the test its user.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cmath>

#include "device/apps/app.hpp"
#include "device/system/loader.hpp"
#include "host/camera_ui.hpp"
#include "host/class_pair.hpp"
#include "host/hook.hpp"
#include "host/photos.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {

/// A class that the library does not find in this host.
std::string_view absentClass;
/// Found before the runtime's own, which asks it as well.
extern "C" Class objc_getClass(const char* name) {
  static const auto host = reinterpret_cast<Class (*)(const char*)>(dlsym(RTLD_NEXT, "objc_getClass"));
  Dl_info caller{};
  dladdr(__builtin_return_address(0), &caller);
  const bool isLibrary = std::string_view(caller.dli_fname).ends_with("velvault12.dylib");
  return isLibrary && absentClass == name ? nullptr : host(name);
}

namespace {

using device::MediaType;
using Numbers = std::vector<std::int64_t>;

constexpr NSInteger kButton = 77, kCaption = 78;
constexpr std::string_view kCaptureAlbum = "/var/mobile/Library/velvault/album.tct";
constexpr std::string_view kNewAlbum = "- Create new album -";

/// What the host's own implementation of the capture callback was called with.
std::vector<std::optional<std::string>> captured;
void hostCaptured(CAMCaptureEngine, Replaced<void(Object, Object, Object)> host, Object output,
                  Object settings, Object error) {
  captured = {stringValue(output), stringValue(settings), stringValue(error)};
  host(output, settings, error);
}
/// Where the library last had an array saved.
std::string savedPath;
bool sendMessage(Object, Replaced<bool(NSString, NSDictionary)> host, NSString name, NSDictionary userInfo) {
  savedPath = stringValue(userInfo["path"]).value_or("");
  return host(name, userInfo);
}
/// How long the host was last asked to wait before a move.
double secondsToMove = 0;
NSTimer schedule(Object, Replaced<NSTimer(double, Object, SEL, Object, bool)> host, double seconds,
                 Object target, SEL action, Object info, bool repeats) {
  if (action == selector<"movePhoto">()) secondsToMove = seconds;
  return host(seconds, target, action, info, repeats);
}

class CameraApp : public PhoneTest {
 protected:
  /// Boots the phone and opens the Camera with these settings, and "Pets" as the album last chosen.
  void open(Preferences preferences = {}) {
    springBoard_.emplace(phone_.launch(device::kSpringBoard));
    if (!hasFile(kCaptureAlbum)) writeStrings(kCaptureAlbum, {"Pets"});
    phone_.writePreferences(preferences);
    become(device::kCamera);
    // Replaced before the library comes, so that this is what the library calls as the host's own.
    const HookRow rows[] = {
        replace<hostCaptured>("CAMCaptureEngine",
                              "captureOutput:didFinishCaptureForResolvedSettings:error:", "v@:@@@"),
        replaceClassMethod<schedule>(
            "NSTimer", "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:", "@@:d@:@B"),
        replace<sendMessage>("CPDistributedMessagingCenter", "sendMessageName:userInfo:", "B@:@@")};
    installHooks(rows);
    device::loadInjectedLibraries();
    device::startApp(device::kCamera);
  }
  /// Opens it with that album chosen.
  void openWith(std::string_view album, Preferences preferences = {}) {
    writeStrings(kCaptureAlbum, {std::string(album)});
    preferences["rememberDefault"] = true;
    open(preferences);
  }
  static UIViewController viewfinder() {
    return UIApplication::sharedApplication().keyWindow().send<"rootViewController", UIViewController()>();
  }
  static CAMBottomBar bottomBar() { return viewfinder().send<"_bottomBar", CAMBottomBar()>(); }
  static CAMCaptureEngine engine() { return viewfinder().send<"_captureEngine", CAMCaptureEngine()>(); }
  static UIView rootView() { return viewfinder().send<"view", UIView()>(); }
  static std::string caption(UIView bar = bottomBar()) {
    return bar.viewWithTag(kCaption).send<"text", NSString()>().utf8();
  }
  static int tagged(UIView view, NSInteger tag) {
    int count = view.send<"tag", NSInteger()>() == tag;
    for (const Object each : view.subviews()) count += tagged(UIView(each.get()), tag);
    return count;
  }
  static UIView parentOfButton(UIView bar) { return bar.viewWithTag(kButton).send<"superview", UIView()>(); }
  static void layOut(UIView view) {
    view.send<"setNeedsLayout", void()>();
    view.send<"layoutIfNeeded", void()>();
  }
  /// A bar of the other layout, on the screen.
  static Ref<CAMMetalView> metalView(CGRect frame) {
    const auto view = makeObject<CAMMetalView>();
    view->setFrame(frame);
    rootView().addSubview(view.get());
    return view;
  }

  std::int64_t addPhoto(double date = 1, MediaType type = MediaType::image) {
    return library_.addAsset({.mediaType = type, .creationDate = date});
  }
  static Numbers numbersOf(const std::vector<device::AssetRow>& rows) {
    Numbers all;
    for (const auto& row : rows) all.push_back(row.identifier);
    return all;
  }
  Numbers album(std::string_view title) const { return numbersOf(assetsIn(title)); }
  Numbers cameraRoll() const {
    auto all = library_.allAssets();
    std::erase_if(all, [](const auto& row) { return row.isHidden; });
    return numbersOf(all);
  }

  static void move() { engine().send<"movePhoto", void()>(); }
  /// Waits as long as the moves do of captures whose callback has been handled.
  static void waitForMoves() {
    const Ref<NSTimer> timer(NSTimer::scheduledOnce(1.5, NSString::from("x"), selector<"length">()));
    ASSERT_TRUE(soon([&] { return !timer->send<"isValid", bool()>(); }));
  }
  /// The callback of a capture, on this thread, as often as said.
  static void finishCapture(int times = 1) {
    for (int i = 0; i < times; ++i) {
      engine().send<"captureOutput:didFinishCaptureForResolvedSettings:error:", void(Object, Object, Object)>(
          NSString::from("output"), NSString::from("settings"), NSString::from("error"));
    }
  }

  device::PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(CameraApp, APictureGoesIntoANewAlbumAndOutOfTheCameraRoll) {
  constexpr std::string_view kParty = "O'Hara's %@ \u5bb6";
  const auto old = addPhoto();
  openWith(kParty);
  me_.tap("Take Picture");
  const FolderEvents events(phone_.onDisk("/var/mobile/Media/PhotoData"));
  ASSERT_TRUE(soon([&] { return cameraRoll().size() == 2; })) << "the capture itself is the host's";
  const auto photo = cameraRoll().back();
  EXPECT_EQ(albums(), Titles());
  EXPECT_TRUE(soon([&] { return album(kParty) == Numbers{photo}; }));
  EXPECT_TRUE(soon([&] { return cameraRoll() == Numbers{old}; }));

  me_.tap("Video");
  me_.tap("Record Video");
  EXPECT_TRUE(soon([&] {
    return album(kParty) == (Numbers{old, photo});
  })) << "the newest photo there is, whatever the capture was";
  settleLibrary();
  EXPECT_EQ(cameraRoll().size(), 1u) << "the video stays";
  EXPECT_EQ(albums().size(), 1u);
}

TEST_F(CameraApp, ACaptureReachesTheHostUnchangedAndWaitsOnWhateverThread) {
  const auto photo = addPhoto();
  library_.addAlbum("Pets");
  writeStrings(kLockedAlbums, {"Pets"});
  openWith("Pets");
  finishCapture();
  EXPECT_EQ(captured, (decltype(captured){"output", "settings", "error"}));
  EXPECT_EQ(secondsToMove, 1.5);
  waitForMoves();
  settleLibrary();
  EXPECT_EQ(album("Pets"), Numbers{photo}) << "locked as it is";
}

TEST_F(CameraApp, EachMoveTakesWhatIsNewestThenAndTwoAtOnceMakeOneAlbum) {
  const auto first = addPhoto(1), second = addPhoto(2);
  std::int64_t third = 0;
  library_.addSyncedAlbum("Pets");
  openWith("Pets");
  {
    const HeldLibrary held;
    move();
    third = addPhoto(3);
    move();
  }
  settleLibrary();
  EXPECT_EQ(albums(), (Titles{"Pets", "Pets"})) << "a computer's own takes none";
  EXPECT_EQ(album("Pets"), (Numbers{second, third}));
  {
    const HeldLibrary held;
    finishCapture(2);
    waitForMoves();
  }
  settleLibrary();
  EXPECT_EQ(album("Pets"), (Numbers{first, second, third})) << "both moved what was not hidden yet";
  EXPECT_EQ(cameraRoll(), Numbers());
}

TEST_F(CameraApp, TheSettingsOfTheMomentDecideWhatACaptureDoes) {
  const Numbers photos{addPhoto(1), addPhoto(2)};
  library_.addAlbum("Pets", library_.addFolder("Animals"));
  openWith("Pets", {{"pickerMovePhotos", false}});
  move();
  settleLibrary();
  EXPECT_EQ(album("Pets"), Numbers{photos[1]});
  EXPECT_EQ(albums(), Titles{"Pets"}) << "the one in a folder";
  EXPECT_EQ(cameraRoll(), photos) << "copied";

  for (const std::string_view off : {"enabled", "enableCameraPicker"}) {
    reload({{std::string(off), false}});
    finishCapture();
    layOut(bottomBar());
    EXPECT_EQ(tagged(bottomBar(), kButton) + tagged(bottomBar(), kCaption), 0) << off;
  }
  waitForMoves();
  settleLibrary();
  EXPECT_EQ(cameraRoll(), photos);
  reload({});
  layOut(bottomBar());
  EXPECT_EQ(caption(), "Pets");
  tap({"album", "Camera Roll"});
  move();
  settleLibrary();
  EXPECT_EQ(cameraRoll(), photos);
  EXPECT_EQ(album("Pets").size(), 1u);
}

TEST_F(CameraApp, WithoutAPhotoTheAlbumIsMadeAndWithoutTheAlbumThePhotoIsHidden) {
  const auto video = addPhoto(1, MediaType::video);
  openWith("Pets");
  move();
  settleLibrary();
  EXPECT_EQ(albums(), Titles{"Pets"});
  EXPECT_EQ(album("Pets"), Numbers());
  addPhoto(2);
  {
    const HeldLibrary held;
    move();
    library_.removeCollection(library_.allAlbums().front().identifier);
  }
  settleLibrary();
  EXPECT_EQ(albums(), Titles());
  EXPECT_EQ(cameraRoll(), Numbers{video});
}

TEST_F(CameraApp, AHostWithoutTheHidingHelperStillAdds) {
  absentClass = "PUAssetHidingHelper";
  const auto photo = addPhoto();
  openWith("Pets");
  move();
  settleLibrary();
  EXPECT_EQ(album("Pets"), Numbers{photo});
  EXPECT_EQ(cameraRoll(), Numbers{photo});
}

TEST_F(CameraApp, AThousandCapturesLeaveNothingBehind) {
  openWith("Pets");
  const auto captureAndMove = [&](int captures) {
    const AutoreleasePool inner;
    for (int i = 0; i < captures; ++i) {
      addPhoto(i);
      if (i % 2) library_.removeCollection(library_.allAlbums().front().identifier);
      move();
      settleLibrary();
    }
    finishCapture(captures);
    waitForMoves();
    settleLibrary();
  };
  captureAndMove(2);
  const char* const kinds[] = {"PHAsset",
                               "PHAssetCollection",
                               "PHFetchResult",
                               "PHFetchOptions",
                               "NSTimer",
                               "PHAssetCollectionChangeRequest",
                               "PUAssetHidingHelper"};
  const auto living = [&] {
    std::map<std::string_view, int> counts;
    for (const char* kind : kinds) counts[kind] = GSDebugAllocationCount(objc_getClass(kind));
    counts["the engine"] = static_cast<int>(references(engine()));
    return counts;
  };
  GSDebugAllocationActive(1);
  const auto before = living();
  captureAndMove(500);
  turn();
  EXPECT_EQ(living(), before);
  EXPECT_EQ(cameraRoll(), Numbers());
}

TEST_F(CameraApp, TheSheetOffersTheUsersAlbumsInTheirOrder) {
  open();
  EXPECT_EQ(caption(), "Camera Roll") << "the last choice is not to be remembered";
  me_.tap("album");
  EXPECT_EQ(textsOf(me_.alert()), (Titles{"Choose Album", "Choose the album to save the photo to.",
                                          "Camera Roll", "Cancel", std::string(kNewAlbum)}));
  me_.tap("Cancel");
  EXPECT_EQ(caption(), "Camera Roll");

  library_.addAlbum("Zoo");
  library_.addAlbum("Pets", library_.addFolder("Animals"));
  library_.addSyncedAlbum("Synced");
  library_.addAlbum("Zoo");
  writeStrings(kLockedAlbums, {"Pets"});
  me_.tap("album");
  EXPECT_EQ(me_.alert().buttons,
            (Titles{"Camera Roll", "Zoo", "Pets", "Zoo", "Cancel", std::string(kNewAlbum)}));
  me_.tap("Pets");
  EXPECT_EQ(caption(), "Pets") << "locked ones as well";
}

TEST_F(CameraApp, EachChoiceIsShownAndSaved) {
  library_.addAlbum("Pets");
  open();
  const FolderEvents events(phone_.onDisk(kStateFolder));
  const auto soonSaved = [&](std::string_view title) {
    return soon([&] { return phone_.strings(kCaptureAlbum) == Titles{std::string(title)}; });
  };
  // Twelve points, a line's height, its middle 28 points below the button's.
  const auto isPlacedFor = [](std::string_view text) {
    const auto letters = static_cast<double>(text.size());
    const CGRect frame = bottomBar().viewWithTag(kCaption).frame();
    const CGPoint button = bottomBar().viewWithTag(kButton).center();
    return frame.size.width == std::ceil(12 * 0.55 * letters) && frame.size.height == 15 &&
           frame.origin.x + frame.size.width / 2 == button.x &&
           frame.origin.y + frame.size.height / 2 == button.y + 28;
  };
  EXPECT_TRUE(isPlacedFor("Camera Roll"));
  for (const std::string_view title : {"Pets", "Camera Roll"}) {
    tap({"album", title});
    EXPECT_TRUE(me_.sees(title));
    EXPECT_TRUE(isPlacedFor(title)) << title;
    EXPECT_TRUE(soonSaved(title)) << title;
    EXPECT_EQ(savedPath, "/private/var/mobile/Library/velvault/album.tct");
  }

  const auto typed = [&](std::string_view title, std::string_view button) {
    tap({"album", kNewAlbum});
    const device::Alert alert = me_.alert();
    EXPECT_EQ(textsOf(alert), (Titles{"New Album", "Enter new album title", "Title", "Cancel", "Create"}));
    alert.type(title).tap(button);
    return caption();
  };
  EXPECT_EQ(typed("Party", "Cancel"), "Camera Roll");
  EXPECT_EQ(typed(" \u3000", "Create"), "Camera Roll");
  EXPECT_EQ(typed(" Party ", "Create"), " Party ");
  EXPECT_TRUE(soonSaved(" Party "));
  EXPECT_EQ(albums(), Titles{"Pets"}) << "the first capture makes it";

  springBoard_->kill();
  EXPECT_EQ(typed("Unsaved", "Create"), "Unsaved") << "nobody is there to save it";
  EXPECT_EQ(phone_.strings(kCaptureAlbum), Titles{" Party "});
}

TEST_F(CameraApp, RepeatedLayoutsMakeButtonAndCaptionOnceInEitherBar) {
  openWith("Pets");
  const Ref<CAMMetalView> metal = metalView({{0, 100}, {350, 140}});
  for (const UIView& bar : {UIView(bottomBar()), UIView(metal.get())}) {
    for (int pass = 0; pass < 3; ++pass) {
      layOut(bar);
      EXPECT_EQ(std::pair(tagged(bar, kButton), tagged(bar, kCaption)), std::pair(1, 1));
    }
    const CGSize size = bar.viewWithTag(kButton).frame().size;
    EXPECT_EQ(std::pair(size.width, size.height), std::pair(28.0, 28.0));
  }
  EXPECT_EQ(parentOfButton(bottomBar()), bottomBar().background());
  EXPECT_EQ(parentOfButton(metal.get()), metal.get());
  EXPECT_EQ(metal->viewWithTag(kButton).center().x, 100);
  const Object label = metal->viewWithTag(kCaption);
  EXPECT_TRUE((label.send<"textColor", Object()>().send<"isEqual:", bool(Object)>(UIColor::whiteColor())));
  EXPECT_EQ((label.send<"textAlignment", NSInteger()>()), 1);
  EXPECT_EQ((label.send<"numberOfLines", NSInteger()>()), 1);
  EXPECT_EQ((label.send<"minimumScaleFactor", double()>()), 0.5);

  metal->send<"chooseAlbum", void()>();
  me_.tap("Camera Roll");
  EXPECT_EQ(caption(metal.get()), "Camera Roll");
  EXPECT_EQ(caption(), "Pets");
  const double width = bottomBar().viewWithTag(kCaption).frame().size.width;
  layOut(bottomBar());
  EXPECT_EQ(caption(), "Camera Roll") << "the other bar follows at its next layout";
  EXPECT_EQ(bottomBar().viewWithTag(kCaption).frame().size.width, width) << "with its text alone";
}

TEST_F(CameraApp, AShutterOfMetalLeavesTheButtonToItsBar) {
  open();
  const Ref<CAMMetalView> metal = metalView({{0, 0}, {66, 66}});
  bottomBar().send<"shutterButton", UIView()>().addSubview(metal.get());
  for (const bool isOn : {true, false, true}) {
    reload({{"enableCameraPicker", isOn}});
    layOut(metal.get());
    layOut(bottomBar());
    EXPECT_EQ(tagged(metal.get(), kButton), 0);
    EXPECT_EQ(tagged(bottomBar(), kButton), isOn ? 1 : 0);
  }
}

TEST_F(CameraApp, BesideADrawingButtonThereIsLittleRoom) {
  const Class type = ClassPair(UIView::hostClass(), "CustomDrawButton").registered();
  openWith(std::string(40, 'm'));
  const Ref<CAMMetalView> metal = metalView({{0, 100}, {350, 140}});
  metal->addSubview(UIView(Ref<Object>::adopt(Object(sendToClass<"new", id()>(type))).autorelease().get()));
  layOut(metal.get());
  EXPECT_EQ(metal->viewWithTag(kButton).center().x, 128);
  const UIView label = metal->viewWithTag(kCaption);
  EXPECT_EQ((label.send<"font", Object()>().send<"pointSize", double()>()), 8);
  EXPECT_EQ(label.frame().size.width, 100);
  metal->send<"createNewAlbum", void()>();
  me_.alert().type(std::string(40, 'n')).tap("Create");
  EXPECT_EQ(label.frame().size.width, 12 * 0.55 * 40) << "another album has all the room";
}

TEST_F(CameraApp, OnAPadTheSheetHasASource) {
  UIDevice::currentDevice().send<"_setUserInterfaceIdiom:", void(NSInteger)>(1);
  open();
  EXPECT_EQ(bottomBar().viewWithTag(kButton).center().y, 30);
  me_.tap("album");
  EXPECT_EQ(me_.alert().title, "Choose Album");
}

TEST_F(CameraApp, TheButtonStandsUprightHoweverThePhoneIsHeld) {
  open();
  const auto held = [](NSInteger orientation, CGSize size) {
    UIDevice::currentDevice().send<"_setOrientation:", void(NSInteger)>(orientation);
    bottomBar().send<"adjustRotationToSize:", void(CGSize)>(size);
    const auto transform = bottomBar().viewWithTag(kButton).send<"transform", CGAffineTransform()>();
    return std::vector{transform.a, transform.b, transform.c, transform.d};
  };
  const std::vector<double> upright{1, 0, 0, 1}, clockwise{0, 1, -1, 0}, counterClockwise{0, -1, 1, 0};
  constexpr CGSize kWide{812, 375}, kHigh{375, 812};
  EXPECT_EQ(held(3, kWide), clockwise);
  EXPECT_EQ(held(4, kWide), counterClockwise);
  EXPECT_EQ(held(4, kHigh), upright);
}

TEST_F(CameraApp, TheWellShowsTheNewestPhotoThatIsNotHidden) {
  addPhoto(1'600'000'000, MediaType::video);
  open();
  const auto shown = [&] {
    const CAMImageWell well = bottomBar().send<"imageWell", CAMImageWell()>();
    layOut(well);
    return well.send<"thumbnailImage", UIImage()>();
  };
  const auto name = [](UIImage image) { return image.send<"_name", NSString()>().utf8(); };
  EXPECT_EQ(name(shown()), "Video, 2020-09-13 12:26:40") << "the host's own";
  addPhoto(1'500'000'000);
  const auto newest = addPhoto(1'550'000'000);
  EXPECT_EQ(name(shown()), "Photo, 2019-02-12 19:33:20");
  const auto size = shown().send<"size", CGSize()>();
  EXPECT_EQ(size.height, 175);
  EXPECT_LT(size.width, 175);
  library_.setHidden(newest, true);
  EXPECT_EQ(name(shown()), "Photo, 2017-07-14 02:40:00");
}

}  // namespace
}  // namespace velvault12
