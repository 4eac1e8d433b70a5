// Photos on their way between albums and the camera roll.

#include "host/hook.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {
namespace {

class PhotoMove : public PhotosApp {
 protected:
  PhotoMove() {
    holidays_ = library_.allAlbums()[0].identifier;
    for (int minute = 1; minute <= 3; ++minute) {
      photos_.push_back(library_.addAsset({.creationDate = 60.0 * minute}));
      library_.addToAlbum(photos_.back(), holidays_);
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
  static UIViewController presented(UIViewController controller) {
    return controller.send<"presentedViewController", UIViewController()>();
  }
  static PUAlbumListViewController picker() {
    return presented(top())
        .trySend<"topViewController", UIViewController()>()
        .as<PUAlbumListViewController>();
  }

  /// How many lines of the app's log hold the text.
  int logged(std::string_view text) const {
    std::ifstream log(phone_.folder() / "log" / (std::string(device::kPhotos) + ".log"));
    int count = 0;
    for (std::string line; std::getline(log, line);) count += line.find(text) != std::string::npos;
    return count;
  }
  void hide(int number, bool hidden = true) {
    library_.setHidden(photos_.at(static_cast<std::size_t>(number) - 1), hidden);
  }

  std::int64_t holidays_ = 0;
  std::vector<std::int64_t> photos_;
};

TEST_F(PhotoMove, MovingTakesThemOutOfTheirAlbumAndCopyingDoesNot) {
  pickIn("Holidays", {1, 3});
  me_.tap("Pets");
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Add photos to album", "Move or copy photos to the album?", "Move", "Copy", "Cancel"}));
  me_.tap("Cancel");
  EXPECT_TRUE(me_.sees("Add 2 Photos to an album"));
  EXPECT_EQ(photosIn("Pets"), "");
  tap({"Pets", "Move"});
  EXPECT_EQ(photosIn("Pets"), "1* 3*");
  EXPECT_EQ(photosIn("Holidays"), "2");
  EXPECT_EQ(logged("> reloadCameraRollWithMove:1]: reloading camera roll"), 1);
  EXPECT_EQ(logged("Finished removing asset from the album. Success"), 1);
  EXPECT_FALSE(picker());

  pick({2});
  tap({"Pets", "Copy"});
  EXPECT_EQ(photosIn("Pets"), "1* 2 3*");
  EXPECT_EQ(photosIn("Holidays"), "2");
  EXPECT_EQ(logged("-[<PUAlbumListViewController: 0x"), 2);
  EXPECT_EQ(logged("> reloadCameraRollWithMove:0]: reloading camera roll"), 1);

  reload({{"enabled", false}});
  pick({2});
  EXPECT_FALSE(me_.sees("Camera"));
  me_.tap("Recipes");
  EXPECT_FALSE(me_.hasAlert()) << "the picker is the host's own";
  EXPECT_EQ(photosIn("Recipes"), "2");
}

TEST_F(PhotoMove, FromTheCameraRollOrASyncedAlbumTheyAreOnlyHidden) {
  library_.addToAlbum(photos_[0], library_.addSyncedAlbum("Synced"));
  pickIn("Photos", {1});
  EXPECT_TRUE(me_.sees("Add 1 Photo to an album"));
  EXPECT_FALSE(me_.sees("Camera")) << "no album was opened";
  picker().send<"handleCameraTap:", void(Object)>(Object());
  EXPECT_FALSE(me_.hasAlert());
  tap({"Cancel", "Albums", "Holidays", "Photos"});
  pick({1, 2});
  tap({"Pets", "Move"});
  EXPECT_EQ(photosIn("Pets"), "1* 2*");
  EXPECT_EQ(photosIn("Holidays"), "1* 2* 3");
  EXPECT_EQ(logged("Finished removing"), 0);

  // Back to the album, which is still open: its selection counts again, as nothing is selected elsewhere.
  me_.tap("Albums");
  pick({3});
  tap({"Recipes", "Move"});
  EXPECT_EQ(photosIn("Recipes"), "3*");
  EXPECT_EQ(photosIn("Holidays"), "1* 2*");

  hide(1, false);
  tap({kBack, "Synced"});
  pick({1});
  tap({"Recipes", "Move"});
  EXPECT_EQ(photosIn("Recipes"), "1* 3*");
  EXPECT_EQ(photosIn("Synced"), "1*");
}

bool isPlaceholder = false;
bool placeholder(PUAlbumListViewController, Replaced<bool(NSIndexPath)> host, NSIndexPath path) {
  return isPlaceholder || host(path);
}

TEST_F(PhotoMove, WhatTakesNoPhotosIsLeftToTheHost) {
  installHook(replace<placeholder>("PUAlbumListViewController", "isPlaceholderAtIndexPath:", "B@:@"));
  library_.addAlbum("Inside", library_.addFolder("Folder"));
  library_.addSyncedAlbum("Synced");
  library_.addAlbum("Camera Roll");
  pickIn("Holidays", {1});
  // The phone's own camera roll, and an album of that name.
  for (const int album : {3, -1, 4, 5}) {
    picker().select(placeOf(album));
    EXPECT_FALSE(me_.hasAlert()) << album;
    if (album == 3) me_.back();
  }
  EXPECT_EQ(photosIn("Camera Roll"), "1");
  pick({1});
  isPlaceholder = true;
  me_.tap("Pets");
  EXPECT_FALSE(me_.hasAlert()) << "an album that is yet to be made";
  EXPECT_EQ(photosIn("Holidays"), "1 2 3");
}

TEST_F(PhotoMove, OnlyItsOwnerMovesIntoALockedAlbum) {
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
  EXPECT_EQ(photosIn("Pets"), "1*");
}

bool isPicking = true;
UIView banner(PUAlbumListViewController, Replaced<UIView()> host) { return isPicking ? host() : UIView(); }

TEST_F(PhotoMove, CameraButtonBringsPhotosBack) {
  pickIn("Holidays", {1, 2});
  // On a pad a sheet points to what was touched.
  UIDevice::currentDevice().send<"_setUserInterfaceIdiom:", void(NSInteger)>(1);
  const auto popover = [] {
    return presented(presented(top())).send<"popoverPresentationController", Object()>();
  };
  me_.tap("Pets");
  const UIView content = picker().collectionView().cellForItemAtIndexPath(placeOf(1)).contentView();
  EXPECT_EQ((popover().send<"sourceView", UIView()>()), content);
  EXPECT_EQ((popover().send<"sourceRect", CGRect()>().size.width), content.bounds().size.width);
  tap({"Cancel", "Camera"});
  EXPECT_TRUE((popover().send<"barButtonItem", Object()>()));
  me_.tap("Cancel");
  picker().send<"handleCameraTap:", void(Object)>(Object());
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Move photos", "Move photos back to camera roll?", "Move", "Copy", "Cancel"}));
  me_.tap("Cancel");

  installHook(replace<banner>("PUAlbumListViewController", "_pickerBannerView", "@@:"));
  for (const bool now : {true, false, true, true}) {
    isPicking = now;
    picker().send<"viewDidLayoutSubviews", void()>();
    EXPECT_EQ(picker().navigationItem().rightBarButtonItems().count(), now ? 2u : 1u);
  }
  EXPECT_TRUE(me_.sees("Camera"));
  for (const int number : {1, 2}) hide(number);
  tap({"Camera", "Copy"});
  EXPECT_EQ(photosIn("Holidays"), "1 2 3");
  EXPECT_FALSE(picker());
  EXPECT_TRUE(me_.sees("Select")) << "the selection has ended";

  pick({3});
  hide(3);
  tap({"Camera", "Move"});
  EXPECT_EQ(photosIn("Holidays"), "1 2");
  EXPECT_EQ(allPhotos(), "1 2 3");
  me_.back();
  EXPECT_FALSE(me_.sees("Camera"));
  me_.tap("See All");
  EXPECT_FALSE(me_.sees("Camera")) << "nobody picks";
}

TEST_F(PhotoMove, TakenOutOfTheirLastAlbumTheyAreShown) {
  library_.addToAlbum(photos_[1], library_.allAlbums()[1].identifier);
  photos_.push_back(library_.addAsset({.creationDate = 240, .smartSubtype = 202}));
  for (const int number : {1, 2, 3, 4}) hide(number);
  open(From::strip);
  tap({"Holidays", "Select", photo(1), photo(2), "Remove"});
  EXPECT_EQ(photosIn("Holidays"), "3*");
  EXPECT_EQ(allPhotos(), "1 2* 3* 4*") << "one is in Pets as well";
  EXPECT_TRUE(me_.sees("Select")) << "the host's completion has run";
  tap({kBack, "Videos", "Select", photo(4)});
  top().send<"_removeSelectedAssetsWithCompletion:", void(Block<void()>)>(Block<void()>());
  EXPECT_EQ(allPhotos(), "1 2* 3* 4") << "out of no album at all";
  EXPECT_EQ(logged("]: removing"), 2);
  EXPECT_EQ(logged("-[<PUPhotosAlbumViewController: 0x"), 2);
  EXPECT_EQ(logged("> _removeSelectedAssetsWithCompletion:(n"), 1) << "nil";
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

TEST_F(PhotoMove, SelectionOfLaterSystemsIsTheLastOneShown) {
  open(From::strip);
  const auto assets = PHAsset::fetchWithMediaType(PHAsset::MediaType::image, PHFetchOptions());
  const auto number = [&](NSUInteger n) { return NSArray::of(assets.objectAtIndex(assets.count() - 4 + n)); };
  /// What is left in the album, and hidden, once the strip has moved what is selected.
  const Ref<PUHorizontalAlbumListGadget> mover(strip());
  const auto moved = [&] {
    mover->send<"reloadCameraRollWithMove:", void(bool)>(true);
    std::string after = photosIn("Holidays");
    for (const int each : {1, 2, 3}) hide(each, false);
    return after;
  };
  const auto showGrid = [] {
    makeObject<PUZoomableGridViewController>()->send<"viewWillAppear:", void(bool)>(false);
  };
  EXPECT_EQ(moved(), "1 2 3") << "nothing is selected";
  EXPECT_EQ(logged("-[<PUHorizontalAlbumListGadget: 0x"), 1);
  EXPECT_EQ(logged("> reloadCameraRollWithMove:1]: reloading camera roll"), 1);
  me_.tap("See All");
  for (const bool move : {true, false}) albumList().send<"returnSelectedPhotos:", void(bool)>(move);
  EXPECT_EQ(photosIn("Holidays"), "1 2 3");
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
  UIViewController last;
  {
    const AutoreleasePool turn;
    last = UIViewController(shown<"PXCuratedLibraryUIViewController">(number(2)).get().get());
  }
  last.send<"viewWillAppear:", void(bool)>(false);
  EXPECT_EQ(moved(), "1 2*") << "of one that its host no longer holds";
}

TEST_F(PhotoMove, DeletingAlbumsShowsWhatIsInNoOther) {
  const auto folder = library_.addFolder("Old");
  for (const auto album :
       {library_.addAlbum("One", folder), library_.addAlbum("Two", library_.addFolder("Older", folder))}) {
    for (const auto each : {photos_[0], photos_[1]}) library_.addToAlbum(each, album);
  }
  library_.removeFromAlbum(photos_[0], holidays_);
  library_.addToAlbum(photos_[1], library_.allAlbums()[1].identifier);
  for (const int number : {1, 2, 3}) hide(number);
  open(From::list, {"Two"});
  tapUntilAsked({"Edit", "Delete Old"});
  EXPECT_EQ(owner().ownerRequest(), "Two needs to be unlocked.");
  EXPECT_EQ(albums().size(), 5u);
  ownerIs(OwnerAnswer::success);
  EXPECT_EQ(allPhotos(), "1 2* 3*") << "the other two are in Holidays";
  EXPECT_EQ(albums(), (Titles{"Holidays", "Pets", "Recipes"}));
  me_.tap("Delete Holidays");
  EXPECT_EQ(allPhotos(), "1 2* 3") << "one is in Pets as well";
  EXPECT_EQ(albums(), (Titles{"Pets", "Recipes"}));
  for (const std::string_view part :
       {"-[<PUAlbumListViewController: 0x", "> albumListCellContentView:<PUAlbumListCellContentView",
        " performDeleteAction:<PXUIButton"})
    EXPECT_EQ(logged(part), 2) << part;
}

TEST_F(PhotoMove, DeletingPhotosAsksUnlessTheSettingsSkipIt) {
  open(From::strip);
  me_.tap("Photos");
  const auto asks = [&](const Preferences& preferences) {
    reload(preferences);
    tap({"Select", photo(1), "Delete"});
    return me_.hasAlert();
  };
  for (const Preferences& asking : {Preferences{}, Preferences{{"skipDelete", true}, {"enabled", false}}}) {
    EXPECT_TRUE(asks(asking));
    tap({"Cancel", "Cancel"});
  }
  EXPECT_FALSE(asks({{"skipDelete", true}}));
  EXPECT_EQ(photosIn("Holidays"), "2 3");
}

TEST_F(PhotoMove, SheetsMoveWholeAlbums) {
  holdNotices();
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
    EXPECT_EQ(photosIn("Holidays"), photos);
  }
  // A moment has no title.
  top().send<"setAssetCollection:", void(PHAssetCollection)>(PHAssetCollection());
  openSheet();
  me_.tap("Return to camera roll");
  me_.waitToSee("No photos to return.");

  tap({kBack, "See All"});
  const auto items = [] { return albumList().navigationItem().rightBarButtonItems(); };
  for (int round = 0; round < 2; ++round) {
    me_.tap("Edit");
    albumList().setEditing(true, false);
    ASSERT_EQ(items().count(), 2u);
    reload({{"enabled", false}});
    albumList().setEditing(true, false);
    EXPECT_EQ(items().count(), 1u) << "switched off";
    reload({});
    me_.tap("Done");
    EXPECT_EQ(items().count(), 1u);
  }
  me_.tap("Edit");
  const Object button = items().objectAtIndex(1);
  EXPECT_EQ((button.send<"image", Object()>().send<"renderingMode", NSInteger()>()), 1) << "in its colours";
  button.send<"_send", void()>();
  EXPECT_EQ(textsOf(me_.alert()),
            (Titles{"Move Album Photos",
                    "Reset photo albums by returning all photos to the camera roll? Photos will remain in "
                    "folders but also appear in the camera roll.",
                    "Return all", "Cancel"}));
  for (const int number : {1, 3}) hide(number);
  {
    const HeldLibrary held;
    me_.tap("Return all");
    me_.waitToSee("Returning all albums");
  }
  me_.waitToSee("Finished returning");
  EXPECT_EQ(photosIn("Holidays"), "1 2 3");
}

}  // namespace
}  // namespace velvault12
