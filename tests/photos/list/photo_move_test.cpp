// Photos on their way between albums and the camera roll.

#include <algorithm>

#include "host/hook.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {

namespace {

class PhotoMove : public PhotosApp {
 protected:
  PhotoMove() {
    auto library = phone_.photoLibrary();
    holidays_ = library.allAlbums()[0].identifier;
    for (int minute = 1; minute <= 3; ++minute) {
      photos_.push_back(library.addAsset({.creationDate = 60.0 * minute}));
      library.addToAlbum(photos_.back(), holidays_);
    }
  }

  static std::string photo(int number) { return "Photo, 1970-01-01 00:0" + std::to_string(number) + ":00"; }

  /// What the user sees in the grid in front is selected there and taken to the picker.
  void pick(std::initializer_list<int> numbers) const {
    me_.tap("Select");
    for (const int number : numbers) me_.tap(photo(number));
    me_.tap("Add To");
  }
  void pickIn(std::string_view grid, std::initializer_list<int> numbers) {
    open(From::strip);
    me_.tap(grid);
    pick(numbers);
  }
  /// Chooses in the picker, and what its sheet offers.
  void moveTo(std::string_view album, std::string_view how) const {
    me_.tap(album);
    me_.alert().tap(how);
  }
  static UIViewController presented(UIViewController controller) {
    return controller.send<"presentedViewController", UIViewController()>();
  }
  static PUAlbumListViewController picker() {
    return presented(top())
        .trySend<"topViewController", UIViewController()>()
        .as<PUAlbumListViewController>();
  }

  /// Which of the numbered photos there are in an album or at all, and which are hidden, such as "1 2* 3".
  std::string in(std::string_view title) const { return numbersOf(assetsIn(title)); }
  std::string all() const { return numbersOf(phone_.photoLibrary().allAssets()); }
  std::string numbersOf(const std::vector<device::AssetRow>& assets) const {
    std::string text;
    for (const auto& asset : assets) {
      const auto known = std::ranges::find(photos_, asset.identifier);
      if (known == photos_.end()) continue;
      const auto number = std::to_string(known - photos_.begin() + 1);
      text += (text.empty() ? "" : " ") + number + (asset.isHidden ? "*" : "");
    }
    return text;
  }
  /// What is in the album once the photo library has made the changes that were asked of it.
  std::string soonIn(std::string_view title) const {
    settleLibrary();
    return in(title);
  }
  /// The lines of the app's log that hold the text.
  Titles logged(std::string_view text) const {
    std::ifstream log(phone_.folder() / "log" / (std::string(device::kPhotos) + ".log"));
    Titles lines;
    for (std::string line; std::getline(log, line);) {
      if (line.find(text) != std::string::npos) lines.push_back(line);
    }
    return lines;
  }
  void hide(int number, bool hidden = true) const {
    phone_.photoLibrary().setHidden(photos_.at(static_cast<std::size_t>(number) - 1), hidden);
  }

  std::int64_t holidays_ = 0;
  std::vector<std::int64_t> photos_;
};

TEST_F(PhotoMove, MovingTakesThePhotosOutOfTheirAlbumAndTheCameraRoll) {
  pickIn("Holidays", {1, 3});
  me_.tap("Pets");
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Add photos to album", "Move or copy photos to the album?", "Move", "Copy", "Cancel"}));
  me_.tap("Cancel");
  EXPECT_TRUE(me_.sees("Add 2 Photos to an album"));
  EXPECT_EQ(soonIn("Pets"), "");
  moveTo("Pets", "Move");
  EXPECT_EQ(soonIn("Pets"), "1* 3*");
  EXPECT_EQ(in("Holidays"), "2");
  EXPECT_EQ(logged("> reloadCameraRollWithMove:1]: reloading camera roll").size(), 1u);
  EXPECT_EQ(logged("Finished removing asset from the album. Success").size(), 1u);
  EXPECT_FALSE(picker());
}

TEST_F(PhotoMove, CopyingOnlyAddsThem) {
  pickIn("Holidays", {2});
  moveTo("Pets", "Copy");
  EXPECT_EQ(soonIn("Pets"), "2");
  EXPECT_EQ(in("Holidays"), "1 2 3");
  EXPECT_EQ(logged("-[<PUAlbumListViewController: 0x").size(), 1u);
  EXPECT_EQ(logged("> reloadCameraRollWithMove:0]: reloading camera roll").size(), 1u);
}

TEST_F(PhotoMove, FromTheCameraRollTheyAreHiddenAndStayInTheirAlbums) {
  // An album that was opened before has nothing to say here.
  open(From::strip);
  tap({"Holidays", "Photos"});
  pick({1, 2});
  moveTo("Pets", "Move");
  EXPECT_EQ(soonIn("Pets"), "1* 2*");
  EXPECT_EQ(in("Holidays"), "1* 2* 3");
  EXPECT_EQ(logged("Finished removing").size(), 0u);

  // Back to the album, which is still open: its selection counts again, as nothing is selected elsewhere.
  me_.tap("Albums");
  pick({3});
  moveTo("Recipes", "Move");
  EXPECT_EQ(soonIn("Recipes"), "3*");
  EXPECT_EQ(in("Holidays"), "1* 2*");
}

bool isPlaceholder = false;
bool placeholder(PUAlbumListViewController, Replaced<bool(NSIndexPath)> host, NSIndexPath path) {
  return isPlaceholder || host(path);
}

TEST_F(PhotoMove, WhatTakesNoPhotosIsTheHostsOwnAffair) {
  installHook(replace<placeholder>("PUAlbumListViewController", "isPlaceholderAtIndexPath:", "B@:@"));
  auto library = phone_.photoLibrary();
  library.addAlbum("Inside", library.addFolder("Folder"));
  library.addSyncedAlbum("Synced");
  library.addAlbum("Camera Roll");
  pickIn("Holidays", {1});
  // The phone's own camera roll, and an album of that name.
  for (const int album : {3, -1, 4, 5}) {
    picker().select(placeOf(album));
    EXPECT_FALSE(me_.hasAlert()) << album;
    if (album == 3) me_.back();
  }
  EXPECT_EQ(soonIn("Camera Roll"), "1");
  pick({1});
  isPlaceholder = true;
  me_.tap("Pets");
  EXPECT_FALSE(me_.hasAlert()) << "an album that is yet to be made";
  EXPECT_EQ(soonIn("Holidays"), "1 2 3");
}

TEST_F(PhotoMove, SwitchedOffThePickerIsTheHostsOwn) {
  open(From::strip);
  me_.tap("Holidays");
  reload({{"enabled", false}});
  pick({1});
  EXPECT_FALSE(me_.sees("Camera"));
  me_.tap("Pets");
  EXPECT_FALSE(me_.hasAlert());
  EXPECT_EQ(soonIn("Pets"), "1");
}

TEST_F(PhotoMove, IntoALockedAlbumOnlyItsOwnerMoves) {
  open(From::list);
  const Ref<PUAlbumListViewController> below(albumList());
  me_.tap("Holidays");
  pick({1});
  writeStrings(kLockedAlbums, {"Pets"});
  tap({"Cancel", "Add To"});
  below->send<"viewDidLayoutSubviews", void()>();
  tapUntilAsked({"Pets"});
  EXPECT_FALSE(me_.hasAlert());
  ownerIs(OwnerAnswer::success);
  me_.waitToSee("Add photos to album");
  me_.tap("Move");
  EXPECT_EQ(soonIn("Pets"), "1*");
}

TEST_F(PhotoMove, OnAPadTheSheetsPointToWhatWasTouched) {
  pickIn("Holidays", {1});
  UIDevice::currentDevice().send<"_setUserInterfaceIdiom:", void(NSInteger)>(1);
  me_.tap("Pets");
  const UIView content = picker().collectionView().cellForItemAtIndexPath(placeOf(1)).contentView();
  const auto popover = presented(presented(top())).send<"popoverPresentationController", Object()>();
  EXPECT_EQ((popover.send<"sourceView", UIView()>()), content);
  EXPECT_EQ((popover.send<"sourceRect", CGRect()>().size.width), content.bounds().size.width);
  tap({"Cancel", "Camera"});
  const auto sheet = presented(presented(top()));
  EXPECT_TRUE((sheet.send<"popoverPresentationController", Object()>().send<"barButtonItem", Object()>()));
  me_.alert().tap("Cancel");
  picker().send<"handleCameraTap:", void(Object)>(Object());
  EXPECT_EQ(me_.alert().title, "Move photos");
}

bool isPicking = true;
UIView banner(PUAlbumListViewController, Replaced<UIView()> host) { return isPicking ? host() : UIView(); }

TEST_F(PhotoMove, TheCameraButtonBringsPhotosBack) {
  pickIn("Holidays", {1, 2});
  installHook(replace<banner>("PUAlbumListViewController", "_pickerBannerView", "@@:"));
  for (const bool now : {true, false, true, true}) {
    isPicking = now;
    picker().send<"viewDidLayoutSubviews", void()>();
    EXPECT_EQ(picker().navigationItem().rightBarButtonItems().count(), now ? 2u : 1u);
  }
  EXPECT_TRUE(me_.sees("Camera"));
  for (const int number : {1, 2}) hide(number);
  me_.tap("Camera");
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Move photos", "Move photos back to camera roll?", "Move", "Copy", "Cancel"}));
  me_.tap("Copy");
  EXPECT_EQ(soonIn("Holidays"), "1 2 3");
  EXPECT_FALSE(picker());
  EXPECT_TRUE(me_.sees("Select")) << "the selection has ended";

  pick({3});
  hide(3);
  tap({"Camera", "Move"});
  EXPECT_EQ(soonIn("Holidays"), "1 2");
  EXPECT_EQ(all(), "1 2 3");
  me_.back();
  EXPECT_FALSE(me_.sees("Camera"));
  me_.tap("See All");
  EXPECT_FALSE(me_.sees("Camera")) << "nobody picks";
}

TEST_F(PhotoMove, BeforeAnAlbumWasOpenedThereIsNoCameraButton) {
  pickIn("Photos", {1});
  EXPECT_TRUE(me_.sees("Add 1 Photo to an album"));
  EXPECT_FALSE(me_.sees("Camera"));
  picker().send<"handleCameraTap:", void(Object)>(Object());
  EXPECT_FALSE(me_.hasAlert());
}

TEST_F(PhotoMove, AnAlbumThatAComputerKeepsLosesNothing) {
  auto library = phone_.photoLibrary();
  library.addToAlbum(photos_[0], library.addSyncedAlbum("Synced"));
  open(From::strip);
  me_.tap("Synced");
  pick({1});
  moveTo("Pets", "Move");
  EXPECT_EQ(soonIn("Pets"), "1*");
  EXPECT_EQ(in("Synced"), "1*");
}

TEST_F(PhotoMove, WithoutASelectionNothingHappens) {
  open(From::list);
  for (const bool move : {true, false}) albumList().send<"returnSelectedPhotos:", void(bool)>(move);
  albumList().send<"reloadCameraRollWithMove:", void(bool)>(true);
  me_.back();
  strip().send<"reloadCameraRollWithMove:", void(bool)>(true);
  EXPECT_EQ(soonIn("Holidays"), "1 2 3");
  EXPECT_EQ(logged("> reloadCameraRollWithMove:1]: reloading camera roll").size(), 2u);
  EXPECT_EQ(logged("-[<PUHorizontalAlbumListGadget: 0x").size(), 1u);
}

/// A later system's controller with these photos selected in it, brought on screen.
template <Name ClassName>
Ref<Object> shown(NSArray photos) {
  const auto controller = makeObject<HostClass<ClassName>>();
  const Object provider = controller->template trySend<"viewProvider", Object()>();
  (provider ? provider : controller.get())
      .template send<"viewModel", Object()>()
      .template send<"selectionManager", Object()>()
      .template send<"_selectObjects:", void(NSArray)>(photos);
  controller->template trySend<"viewWillAppear:", void(bool)>(false);
  return Ref<Object>(controller.get());
}

TEST_F(PhotoMove, LaterSystemsAreAskedInTheirOwnWayAndTheLastOneShownCounts) {
  open(From::strip);
  const auto assets = PHAsset::fetchWithMediaType(PHAsset::MediaType::image, PHFetchOptions());
  const auto number = [&](NSUInteger n) { return NSArray::of(assets.objectAtIndex(assets.count() - 4 + n)); };
  /// What is left in the album, and hidden, once the strip has moved what is selected.
  const Ref<PUHorizontalAlbumListGadget> mover(strip());
  const auto moved = [&] {
    mover->send<"reloadCameraRollWithMove:", void(bool)>(true);
    std::string after = soonIn("Holidays");
    for (const int each : {1, 2, 3}) hide(each, false);
    return after;
  };
  const auto showGrid = [] {
    makeObject<PUZoomableGridViewController>()->send<"viewWillAppear:", void(bool)>(false);
  };
  tap({"Photos", "Select", photo(3)});
  EXPECT_EQ(moved(), "1 2 3*");
  const auto content = shown<"PXPhotosUIViewController">(number(1));
  EXPECT_EQ(moved(), "1* 2 3") << "not the grid that was there before";
  const auto curated = shown<"PXCuratedLibraryUIViewController">(number(2));
  EXPECT_EQ(moved(), "1 2* 3") << "one of them at a time";
  showGrid();
  EXPECT_EQ(moved(), "1 2 3");

  // An album's own selection comes first, until a grid is shown.
  const auto latest = shown<"PXCuratedLibraryUIViewController">(number(2));
  tap({"Albums", "Holidays", "Select", photo(3)});
  EXPECT_EQ(moved(), "1 2");
  showGrid();
  const auto again = shown<"PXCuratedLibraryUIViewController">(number(2));
  EXPECT_EQ(moved(), "1 2*");
}

TEST_F(PhotoMove, DeletingAnAlbumShowsWhatIsInNoOther) {
  auto library = phone_.photoLibrary();
  library.addToAlbum(photos_[1], library.allAlbums()[1].identifier);
  for (const int number : {1, 2, 3}) hide(number);
  open(From::list);
  tap({"Edit", "Delete Holidays"});
  EXPECT_TRUE(soon([&] { return albums() == Titles{"Pets", "Recipes"}; }));
  EXPECT_EQ(all(), "1 2* 3") << "one is in Pets as well";
  const Titles lines = logged(" performDeleteAction:<PXUIButton");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_NE(lines[0].find("-[<PUAlbumListViewController: 0x"), std::string::npos) << lines[0];
  EXPECT_NE(lines[0].find("> albumListCellContentView:<PUAlbumListCellContentView"), std::string::npos)
      << lines[0];
}

TEST_F(PhotoMove, DeletingAFolderIsDeletingItsAlbums) {
  auto library = phone_.photoLibrary();
  const auto folder = library.addFolder("Old");
  for (const auto album :
       {library.addAlbum("One", folder), library.addAlbum("Two", library.addFolder("Older", folder))}) {
    for (const auto each : {photos_[0], photos_[1]}) library.addToAlbum(each, album);
  }
  library.removeFromAlbum(photos_[0], holidays_);
  for (const int number : {1, 2}) hide(number);
  open(From::list, {"Two"});
  tapUntilAsked({"Edit", "Delete Old"});
  EXPECT_EQ(owner().ownerRequest(), "Two needs to be unlocked.");
  EXPECT_EQ(albums().size(), 5u);
  ownerIs(OwnerAnswer::success);
  EXPECT_TRUE(soon([&] {
    settleLibrary();
    return albums() == Titles{"Holidays", "Pets", "Recipes"};
  }));
  EXPECT_EQ(in("Holidays"), "2* 3") << "still there for the hidden one";
  EXPECT_EQ(all(), "1 2* 3");
}

TEST_F(PhotoMove, DeletingPhotosAsksUnlessTheSettingsSkipIt) {
  open(From::strip);
  me_.tap("Photos");
  const auto remove = [&] { tap({"Select", photo(1), "Delete"}); };
  for (const Preferences& asking : {Preferences{}, Preferences{{"skipDelete", true}, {"enabled", false}}}) {
    reload(asking);
    remove();
    EXPECT_TRUE(me_.hasAlert());
    tap({"Cancel", "Cancel"});
  }
  reload({{"skipDelete", true}});
  remove();
  EXPECT_FALSE(me_.hasAlert());
  EXPECT_EQ(soonIn("Holidays"), "2 3");
}

TEST_F(PhotoMove, TheSheetForAllAlbumsIsOfferedWhileTheListIsEdited) {
  open(From::list);
  const auto items = [] { return albumList().navigationItem().rightBarButtonItems(); };
  const auto openSheet = [&] { items().objectAtIndex(1).send<"_send", void()>(); };
  for (int round = 1; round <= 2; ++round) {
    me_.tap("Edit");
    albumList().setEditing(true, false);
    ASSERT_EQ(items().count(), 2u);
    const Object image = items().objectAtIndex(1).send<"image", Object()>();
    EXPECT_EQ((image.send<"renderingMode", NSInteger()>()), 1) << "in its own colours";
    openSheet();
    EXPECT_EQ(textsOf(me_.alert()),
              (Titles{"Move Album Photos",
                      "Reset photo albums by returning all photos to the camera roll? Photos will remain in "
                      "folders but also appear in the camera roll.",
                      "Return all", "Cancel"}));
    me_.tap("Cancel");
    reload({{"enabled", false}});
    albumList().setEditing(true, false);
    EXPECT_EQ(items().count(), 1u) << "switched off";
    reload({});
    me_.tap("Done");
    EXPECT_EQ(items().count(), 1u);
  }
  me_.tap("Edit");
  openSheet();
  me_.tap("Return all");
  me_.waitToSee("No photos to return.");
  for (const int number : {1, 3}) hide(number);
  openSheet();
  {
    const HeldLibrary held;
    me_.tap("Return all");
    me_.waitToSee("Returning all albums");
  }
  me_.waitToSee("Finished returning");
  EXPECT_EQ(in("Holidays"), "1 2 3");
}

TEST_F(PhotoMove, TheSheetOfAnOpenAlbumMovesItsPhotosAndOthersHaveNone) {
  open(From::strip);
  const auto openSheet = [] { navigation().send<"syncAlbums", void()>(); };
  openSheet();
  EXPECT_FALSE(me_.hasAlert()) << "neither a list nor an album";
  me_.tap("Holidays");
  for (const auto& [button, end, photos] :
       {std::tuple("Move out of camera roll", "Finished moving", "1* 2* 3*"),
        std::tuple("Return to camera roll", "Finished returning", "1 2 3")}) {
    openSheet();
    EXPECT_EQ(textsOf(me_.alert()),
              (Titles{"Move Album Photos", "Move photos into or move them out of the camera roll?",
                      "Return to camera roll", "Move out of camera roll", "Cancel"}));
    me_.tap(button);
    me_.waitToSee(end);
    EXPECT_EQ(in("Holidays"), photos);
  }
  // A moment has no title.
  top().send<"setAssetCollection:", void(PHAssetCollection)>(PHAssetCollection());
  openSheet();
  me_.tap("Return to camera roll");
  me_.waitToSee("No photos to return.");
}

}  // namespace
}  // namespace velvault12
