// The Camera on the simulated device: this process is the app, and the test its user.

#include <gtest/gtest.h>

#include <cmath>
#include <thread>

#include "host/camera_ui.hpp"
#include "host/class_pair.hpp"
#include "host/hook.hpp"
#include "host/photos.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {

namespace {

using device::MediaType;

constexpr NSInteger kButton = 77, kCaption = 78;
constexpr std::string_view kCaptureAlbum = "/var/mobile/Library/velvault/album.tct";
constexpr std::string_view kNewAlbum = "- Create new album -";

/// What the host's own implementation of the capture callback was called with, and how often the engine was
/// held when that returned.
std::vector<std::optional<std::string>> captured;
NSUInteger heldByHost = 0;
void hostCaptured(CAMCaptureEngine engine, Replaced<void(Object, Object, Object)> host, Object output,
                  Object settings, Object error) {
  captured = {stringValue(output), stringValue(settings), stringValue(error)};
  host(output, settings, error);
  heldByHost = engine.send<"retainCount", NSUInteger()>();
}
/// How long the host was last asked to wait before a move, which comes at the next turn here.
double secondsToMove = 0;
NSTimer schedule(Object, Replaced<NSTimer(double, Object, SEL, Object, bool)> host, double seconds,
                 Object target, SEL action, Object info, bool repeats) {
  if (action != selector<"movePhoto">()) return host(seconds, target, action, info, repeats);
  secondsToMove = seconds;
  return host(0, target, action, info, repeats);
}

class CameraApp : public PhoneTest {
 protected:
  /// Boots the phone and opens the Camera, which remembers that album.
  void open(std::string_view remembered, Preferences preferences = {}) {
    springBoard_.emplace(phone_.launch(device::kSpringBoard));
    writeStrings(kCaptureAlbum, {std::string(remembered)});
    preferences.insert({"rememberDefault", true});
    phone_.writePreferences(preferences);
    // Replaced before the library comes, so that this is what the library calls as the host's own.
    const HookRow rows[] = {
        replace<hostCaptured>("CAMCaptureEngine",
                              "captureOutput:didFinishCaptureForResolvedSettings:error:", "v@:@@@"),
        replaceClassMethod<schedule>(
            "NSTimer", "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:", "@@:d@:@B")};
    installHooks(rows);
    phone_.launchHere(device::kCamera);
  }
  static UIViewController viewfinder() {
    return UIApplication::sharedApplication().keyWindow().send<"rootViewController", UIViewController()>();
  }
  static CAMBottomBar bottomBar() { return viewfinder().send<"_bottomBar", CAMBottomBar()>(); }
  static CAMCaptureEngine engine() { return viewfinder().send<"_captureEngine", CAMCaptureEngine()>(); }
  static std::string caption(UIView bar = bottomBar()) {
    return bar.viewWithTag(kCaption).send<"text", NSString()>().utf8();
  }
  static int tagged(UIView view, NSInteger tag) {
    int count = view.send<"tag", NSInteger()>() == tag;
    for (const Object each : view.subviews()) count += tagged(UIView(each.get()), tag);
    return count;
  }
  static double xOfButton(UIView bar) { return bar.viewWithTag(kButton).center().x; }
  static void layOut(UIView view) {
    view.send<"setNeedsLayout", void()>();
    view.send<"layoutIfNeeded", void()>();
  }
  static Ref<CAMMetalView> metalView(CGRect frame) {
    const auto view = makeObject<CAMMetalView>();
    view->setFrame(frame);
    viewfinder().view().addSubview(view.get());
    return view;
  }

  std::int64_t addPhoto(int minute, MediaType type = MediaType::image) {
    return library_.addAsset({.mediaType = type, .creationDate = 60.0 * minute});
  }

  static void move() { engine().send<"movePhoto", void()>(); }
  /// Waits until the moves have begun of all captures so far.
  static void waitForMoves() {
    turn();
    waitForTimers();
  }
  static void finishCapture() {
    engine().send<"captureOutput:didFinishCaptureForResolvedSettings:error:", void(Object, Object, Object)>(
        NSString::from("output"), NSString::from("settings"), NSString::from("error"));
  }

  device::PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(CameraApp, PictureGoesIntoANewAlbum) {
  constexpr std::string_view kParty = "O'Hara's %@ \u5bb6";
  addPhoto(1);
  writeStrings(kLockedAlbums, {std::string(kParty)});
  open(kParty);
  const FolderEvents events(phone_.onDisk("/var/mobile/Media/PhotoData"));
  me_.tap("Take Picture");
  const auto moved = [&] { return assetsIn(kParty); };
  EXPECT_TRUE(soon([&] { return moved().size() == 1 && moved()[0].isHidden; }));
  EXPECT_TRUE(allPhotos().starts_with("1 "));

  tap({"Video", "Record Video"});
  EXPECT_TRUE(soon([&] { return moved().size() == 2; }));
  EXPECT_TRUE(allPhotos().starts_with("1* ")) << "the newest photo there is, whatever the capture was";
  EXPECT_FALSE(library_.allAssets().back().isHidden) << "the video stays";
  EXPECT_EQ(albums().size(), 1u);
}

TEST_F(CameraApp, CaptureOnAnyThreadIsMoved) {
  addPhoto(1);
  open("Pets");
  const auto capture = [] {
    const AutoreleasePool pool;
    finishCapture();
  };
  // Comes before what the capture leaves to the main queue.
  runOnMainQueue([&] {
    phone_.writePreferences({{"enabled", false}});
    phone_.post(kReload);
    EXPECT_TRUE(soon([] {
      layOut(bottomBar());
      return tagged(bottomBar(), kButton) == 0;
    }));
  });
  std::jthread(capture).join();
  EXPECT_EQ(references(engine()), heldByHost + 1) << "kept until its move is scheduled";
  waitForMoves();
  EXPECT_EQ(secondsToMove, 0) << "switched off by then";
  reload({});
  std::jthread(capture).join();
  EXPECT_EQ(captured, (decltype(captured){"output", "settings", "error"}));
  waitForMoves();
  EXPECT_EQ(secondsToMove, 1.5);
  EXPECT_EQ(photosIn("Pets"), "1*");
}

TEST_F(CameraApp, EachMoveTakesWhatIsNewestThen) {
  for (const int minute : {1, 2}) addPhoto(minute);
  library_.addSyncedAlbum("Pets");
  open("Pets");
  {
    const HeldLibrary held;
    move();
    addPhoto(3);
    move();
  }
  EXPECT_EQ(photosIn("Pets"), "2* 3*");
  EXPECT_EQ(albums(), (Titles{"Pets", "Pets"})) << "one for both; a synced one takes none";
  {
    const HeldLibrary held;
    for (int capture = 0; capture < 2; ++capture) move();
  }
  EXPECT_EQ(photosIn("Pets"), "1* 2* 3*") << "both moved what was not hidden yet";
}

TEST_F(CameraApp, SettingsOfTheMomentDecide) {
  for (const int minute : {1, 2}) addPhoto(minute);
  library_.addAlbum("Pets", library_.addFolder("Animals"));
  open("Pets", {{"pickerMovePhotos", false}});
  move();
  EXPECT_EQ(photosIn("Pets"), "2") << "copied";
  EXPECT_EQ(albums(), Titles{"Pets"}) << "the one in a folder";

  for (const std::string_view off : {"enableCameraPicker", "enabled"}) {
    reload({{std::string(off), false}});
    finishCapture();
    layOut(bottomBar());
    EXPECT_EQ(tagged(bottomBar(), kButton) + tagged(bottomBar(), kCaption), 0) << off;
  }
  waitForMoves();
  EXPECT_EQ(allPhotos(), "1 2");
  move();
  EXPECT_EQ(allPhotos(), "1 2*") << "what was captured before is moved all the same";
  reload({});
  layOut(bottomBar());
  EXPECT_EQ(caption(), "Pets");
  tap({"album", "Camera Roll"});
  move();
  EXPECT_EQ(allPhotos(), "1 2*");
}

TEST_F(CameraApp, MovesWithoutPhotoOrAlbum) {
  addPhoto(1, MediaType::video);
  open("Pets");
  move();
  EXPECT_EQ(photosIn("Pets"), "");
  EXPECT_EQ(albums(), Titles{"Pets"});
  addPhoto(2);
  {
    const HeldLibrary held;
    move();
    library_.removeCollection(library_.allAlbums().front().identifier);
  }
  EXPECT_EQ(allPhotos(), "1 2*") << "hidden all the same";
  EXPECT_EQ(albums(), Titles());
}

TEST_F(CameraApp, ChoiceIsShownAndSaved) {
  open("Pets", {{"rememberDefault", false}});
  library_.addAlbum("Zoo");
  library_.addAlbum("Pets", library_.addFolder("Animals"));
  library_.addSyncedAlbum("Synced");
  library_.addAlbum("Zoo");
  writeStrings(kLockedAlbums, {"Pets"});
  me_.tap("album");
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Choose Album", "Choose the album to save the photo to.", "Camera Roll", "Zoo", "Pets",
                    "Zoo", "Cancel", std::string(kNewAlbum)}));
  me_.tap("Cancel");

  const FolderEvents events(phone_.onDisk(kStateFolder));
  const auto soonSaved = [&](std::string_view title) {
    return soon([&] { return phone_.strings(kCaptureAlbum) == Titles{std::string(title)}; });
  };
  const auto place = [] { return frameText(bottomBar().viewWithTag(kCaption)); };
  EXPECT_EQ(caption(), "Camera Roll") << "the last choice is not to be remembered";
  EXPECT_EQ(place(), "70 96 73 15");
  for (const std::string_view title : {"Pets", "Camera Roll"}) {
    tap({"album", title});
    EXPECT_TRUE(me_.sees(title));
    EXPECT_EQ(place(), title == "Pets" ? "93 96 27 15" : "70 96 73 15") << "its middle is below the button's";
    EXPECT_TRUE(soonSaved(title)) << title;
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
  GSDebugAllocationActive(1);
  {
    const AutoreleasePool alert;
    EXPECT_EQ(typed(" Party ", "Create"), " Party ");
  }
  EXPECT_EQ(GSDebugAllocationCount(classNamed<"UIAlertController">()), 0) << "its actions do not keep it";
  EXPECT_TRUE(soonSaved(" Party "));
  EXPECT_EQ(albums().size(), 4u) << "the first capture makes it";
  springBoard_->kill();
  EXPECT_EQ(typed("Unsaved", "Create"), "Unsaved") << "nobody is there to save it";
  EXPECT_EQ(phone_.strings(kCaptureAlbum), Titles{" Party "});
}

TEST_F(CameraApp, RepeatedLayoutsMakeOneButtonInEitherBar) {
  const std::string title(40, 'm');
  open(title);
  const Ref<CAMMetalView> metal = metalView({{0, 100}, {350, 140}}), drawing = metalView(metal->frame());
  const Class drawButton = ClassPair(UIView::hostClass(), "CustomDrawButton").registered();
  const auto button = Ref<Object>::adopt(Object(sendToClass<"new", id()>(drawButton)));
  drawing->addSubview(UIView(button.get().get()));
  for (const UIView& bar : {UIView(bottomBar()), UIView(metal.get()), UIView(drawing.get())}) {
    for (int pass = 0; pass < 3; ++pass) {
      layOut(bar);
      EXPECT_EQ(std::pair(tagged(bar, kButton), tagged(bar, kCaption)), std::pair(1, 1));
    }
    const CGSize size = bar.viewWithTag(kButton).frame().size;
    EXPECT_EQ(std::pair(size.width, size.height), std::pair(28.0, 28.0));
    EXPECT_EQ(caption(bar), title);
  }
  EXPECT_EQ(bottomBar().viewWithTag(kButton).superview(), bottomBar().background());
  EXPECT_EQ(metal->viewWithTag(kButton).superview(), metal.get());
  EXPECT_DOUBLE_EQ(xOfButton(bottomBar()), 375 * 2.0 / 7) << "of a bar that its host has laid out";
  EXPECT_EQ(xOfButton(metal.get()), 100);
  EXPECT_EQ(xOfButton(drawing.get()), 128);
  const UIView label = drawing->viewWithTag(kCaption);
  EXPECT_TRUE((label.send<"textColor", Object()>().send<"isEqual:", bool(Object)>(UIColor::whiteColor())));
  EXPECT_EQ((label.send<"textAlignment", NSInteger()>()), 1);
  EXPECT_EQ((label.send<"minimumScaleFactor", double()>()), 0.5);
  EXPECT_EQ((label.send<"font", Object()>().send<"pointSize", double()>()), 8);
  EXPECT_EQ(label.frame().size.width, 100) << "there is little room";
  drawing->send<"createNewAlbum", void()>();
  me_.alert().type(std::string(39, 'n')).tap("Create");
  EXPECT_EQ(label.frame().size.width, std::ceil(12 * 0.55 * 39)) << "another album has all the room";

  metal->send<"chooseAlbum", void()>();
  me_.tap("Camera Roll");
  EXPECT_EQ(caption(metal.get()), "Camera Roll");
  EXPECT_EQ(caption(), title);
  const double width = bottomBar().viewWithTag(kCaption).frame().size.width;
  layOut(bottomBar());
  EXPECT_EQ(caption(), "Camera Roll") << "the other bar follows at its next layout";
  EXPECT_EQ(bottomBar().viewWithTag(kCaption).frame().size.width, width) << "with its text alone";

  const Ref<CAMMetalView> shutter = metalView({{0, 0}, {66, 66}});
  bottomBar().send<"shutterButton", UIView()>().addSubview(shutter.get());
  layOut(shutter.get());
  EXPECT_EQ(tagged(bottomBar(), kButton), 1) << "a shutter leaves the button to its bar";
}

TEST_F(CameraApp, ButtonOnAPadStandsUpright) {
  UIDevice::currentDevice().send<"_setUserInterfaceIdiom:", void(NSInteger)>(1);
  open("Camera Roll");
  EXPECT_EQ(bottomBar().viewWithTag(kButton).center().y, 30);
  me_.tap("album");
  EXPECT_EQ(me_.alert().title, "Choose Album") << "which has a source";
  const auto turned = [](NSInteger orientation, CGSize size) {
    UIDevice::currentDevice().send<"_setOrientation:", void(NSInteger)>(orientation);
    bottomBar().send<"adjustRotationToSize:", void(CGSize)>(size);
    const auto [a, b, c, d, x, y] = bottomBar().viewWithTag(kButton).send<"transform", CGAffineTransform()>();
    return std::vector{a, b, c, d};
  };
  constexpr CGSize kWide{812, 375}, kHigh{375, 812};
  EXPECT_EQ(turned(3, kWide), (std::vector<double>{0, 1, -1, 0})) << "clockwise";
  EXPECT_EQ(turned(4, kWide), (std::vector<double>{0, -1, 1, 0}));
  EXPECT_EQ(turned(4, kHigh), (std::vector<double>{1, 0, 0, 1})) << "upright";
}

TEST_F(CameraApp, WellShowsTheNewestPhoto) {
  addPhoto(9, MediaType::video);
  open("Camera Roll");
  const auto shown = [&] {
    const CAMImageWell well = bottomBar().send<"imageWell", CAMImageWell()>();
    layOut(well);
    return well.send<"thumbnailImage", UIImage()>();
  };
  const auto name = [&] { return shown().send<"_name", NSString()>().utf8(); };
  EXPECT_EQ(name(), "Video, 1970-01-01 00:09:00") << "the host's own";
  const auto newest = addPhoto(8);
  addPhoto(7);
  EXPECT_EQ(name(), "Photo, 1970-01-01 00:08:00");
  const auto size = shown().send<"size", CGSize()>();
  EXPECT_EQ(size.height, 175);
  EXPECT_LT(size.width, 175);
  library_.setHidden(newest, true);
  EXPECT_EQ(name(), "Photo, 1970-01-01 00:07:00");
}

}  // namespace
}  // namespace velvault12
