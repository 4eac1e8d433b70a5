// Hosts that lack a method which the library sends or replaces, one method at a time: nothing breaks, and
// what does not need the method works as ever.

#include <algorithm>
#include <cstdio>
#include <utility>

#include "device/apps/app.hpp"
#include "device/system/loader.hpp"
#include "host/app_support.hpp"
#include "host/camera_ui.hpp"
#include "startup/service_messages.hpp"
#include "tests/host/missing_method.hpp"
#include "tests/photo_library.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {

namespace {

class PhotosWithoutMethod : public MissingMethodTest<PhotosApp> {
 protected:
  PhotosWithoutMethod() {
    // For the section of media types.
    auto library = phone_.photoLibrary();
    library.addToAlbum(library.addAsset({.smartSubtype = 202}), library.allAlbums()[0].identifier);
    addOld();
  }

  void addOld() const {
    auto library = phone_.photoLibrary();
    library.addToAlbum(library.addAsset({.isHidden = true}), library.addAlbum("Old"));
  }
  static inline const Preferences kPreferences{{"showTabShared", false}, {"showMediaTypes", false}};
  void reloadWith(const std::string& key, bool value) const {
    auto preferences = kPreferences;
    preferences[key] = value;
    reload(preferences);
  }

  /// A photo of "Holidays", and what the phone calls it.
  struct Photo {
    std::int64_t identifier;
    std::string words;
  };
  Photo newPhoto(bool isHidden = false) {
    char words[40];
    std::snprintf(words, sizeof words, "Photo, 1970-01-01 00:%02d:00", ++photos_);
    auto library = phone_.photoLibrary();
    const auto photo = library.addAsset({.creationDate = 60.0 * photos_, .isHidden = isHidden});
    library.addToAlbum(photo, library.allAlbums()[0].identifier);
    return {photo, words};
  }
  bool isHidden(const Photo& photo) const {
    settleLibrary();
    return phone_.photoLibrary().asset(photo.identifier)->isHidden;
  }

  /// Has these albums locked, by a file that none before it was like, and Photos at the first screen of its
  /// Albums tab.
  void begin(Titles locked = {}) {
    if (!owner().ownerRequest().empty()) owner().answerOwnerRequest(OwnerAnswer::cancel);
    albumList().setEditing(false, false);
    navigation().send<"dismissViewControllerAnimated:completion:", void(bool, Block<void()>)>(
        false, Block<void()>());
    navigation().popToRoot(false);
    me_.tap("Albums");
    locked.push_back("File " + std::to_string(++files_));
    writeStrings(kLockedAlbums, locked);
    if (albums().size() == 3) addOld();
    strip().send<"viewWillAppear:", void(bool)>(false);
  }
  void beginIn(From from, Titles locked = {}) {
    begin(std::move(locked));
    if (from == From::list) me_.tap("See All");
  }
  bool isLocked(std::string_view title, bool isIt = true) const {
    const FolderEvents events(phone_.onDisk(kStateFolder));
    settle();
    return comesTrue([&] {
      const auto titles = phone_.strings(kLockedAlbums);
      return titles && (std::ranges::find(*titles, title) != titles->end()) == isIt;
    });
  }
  bool isAllowedByOwner() const {
    settle();
    if (isLost() && owner().ownerRequest().empty()) return false;
    ownerIs(OwnerAnswer::success);
    return true;
  }

  bool locks(From from) {
    beginIn(from);
    me_.longPress("Pets");
    return isLocked("Pets");
  }
  bool unlocks(From from) {
    beginIn(from, {"Pets"});
    me_.longPress("Pets");
    return isAllowedByOwner() && isLocked("Pets", false);
  }
  bool staysClosed(From from) {
    beginIn(from, {"Pets"});
    return tapped("Pets").empty();
  }
  bool opensForOwner(From from) {
    return staysClosed(from) && isAllowedByOwner() && comesTrue([&] { return openAlbum() == "Pets"; });
  }
  /// The tiles do not know their albums then.
  bool staysClosedWithoutTitles() {
    begin({"Pets"});
    reloadWith("layoutShowTitle", false);
    NSInteger item = 0;
    const auto titleAt = [&] {
      return strip().gadgetAtIndexPath(pathTo(item)).trySend<"title", NSString()>().utf8();
    };
    while (item < 10 && titleAt() != "Pets") ++item;
    strip().select(pathTo(item));
    reload(kPreferences);
    return openAlbum().empty();
  }
  bool opens(From from) {
    beginIn(from, {"Pets"});
    return tapped("Recipes") == "Recipes";
  }
  /// The list's, laid out; there may be another one in front of those of the user's albums.
  static PUAlbumListCellContentView tileOf(std::string_view title) {
    for (NSInteger item = 0; item < 6; ++item) {
      const auto tile = PhotosApp::tile(item - 1);
      if (!tile || albumList().collectionAtIndexPath(pathTo(item)).localizedTitle().utf8() != title) continue;
      tile.send<"layoutSubviews", void()>();
      return tile;
    }
    throw std::runtime_error("no tile");
  }
  static bool has(PUAlbumListCellContentView tile, NSInteger tag) {
    return static_cast<bool>(tile.subviewWithTag<UIView>(tag));
  }
  bool coversTiles() {
    beginIn(From::list, {"Pets"});
    return has(tileOf("Pets"), 200) && !has(tileOf("Holidays"), 200);
  }
  bool countsHidden() {
    beginIn(From::list);
    tileOf("Old").setSubtitle(NSString::from("7"));
    return tileOf("Old").subtitle().utf8() == "1";
  }
  bool hasTileButtons() {
    beginIn(From::list);
    me_.tap("Edit");
    return has(tileOf("Pets"), 213) && has(tileOf("Pets"), 214);
  }
  bool locksByButton() {
    beginIn(From::list);
    tileOf("Pets").send<"lockAlbum", void()>();
    if (!isLocked("Pets")) return false;
    tileOf("Pets").send<"lockAlbum", void()>();
    return isAllowedByOwner() && isLocked("Pets", false);
  }
  bool movesAlbum() {
    phone_.photoLibrary().setHidden(assetsIn("Recipes").at(0).identifier, false);
    beginIn(From::list);
    tileOf("Recipes").send<"askToMoveAlbum", void()>();
    me_.tap("Move out of camera roll");
    settleLibrary();
    return assetsIn("Recipes").at(0).isHidden;
  }
  bool deletesForOwner() {
    beginIn(From::list, {"Old"});
    tap({"Edit", "Delete Old"});
    return isAllowedByOwner() && comesTrue([&] {
             settleLibrary();
             return albums().size() == 3;
           });
  }
  Photo pick(std::string_view where) {
    begin();
    const Photo photo = newPhoto();
    tap({where, "Select", photo.words, "Add To"});
    return photo;
  }
  bool moves(std::string_view where) {
    const Photo photo = pick(where);
    tap({"Pets", "Move"});
    return isHidden(photo) && phone_.photoLibrary().albumsContaining(photo.identifier).back().title == "Pets";
  }
  bool returns() {
    const Photo photo = pick("Holidays");
    phone_.photoLibrary().setHidden(photo.identifier, true);
    tap({"Camera", "Copy"});
    return !isHidden(photo) && me_.sees("Select");
  }
  /// With a later system's controller that has the photo selected.
  template <Name ClassName>
  bool movesFrom() {
    begin();
    const Photo photo = newPhoto();
    const auto controller = makeObject<HostClass<ClassName>>();
    const Object provider = controller->template trySend<"viewProvider", Object()>();
    const Object manager = (provider ? provider : controller.get())
                               .template send<"viewModel", Object()>()
                               .template send<"selectionManager", Object()>();
    for (const PHAsset asset : PHAsset::fetchAllInAssetCollection(albumNamed("Holidays"))) {
      const std::string identifier = asset.send<"localIdentifier", NSString()>().utf8();
      if (std::stoll(identifier) == photo.identifier)
        manager.send<"_selectObjects:", void(NSArray)>(NSArray::of(asset));
    }
    controller->template trySend<"viewWillAppear:", void(bool)>(false);
    strip().send<"reloadCameraRollWithMove:", void(bool)>(true);
    return isHidden(photo);
  }
  bool removes() {
    begin();
    const Photo photo = newPhoto(true);
    tap({"Holidays", "Select", photo.words, "Remove"});
    return !isHidden(photo);
  }
  bool asksWhereAlbumGoes() {
    begin();
    me_.tap("Holidays");
    navigation().send<"syncAlbums", void()>();
    return me_.sees("Move Album Photos");
  }
  bool offersToReturnAll() {
    beginIn(From::list);
    me_.tap("Edit");
    albumList().send<"viewDidLayoutSubviews", void()>();
    return albumList().navigationItem().rightBarButtonItems().count() == 2;
  }
  bool isLeft() {
    begin({"Recipes"});
    reloadWith("returnToMainDefault", true);
    me_.tap("Holidays");
    if (openAlbum() != "Holidays") throw std::runtime_error("it has not opened");
    me_.leaveApp();
    me_.returnToApp();
    return openAlbum().empty();
  }

  int photos_ = 0;
  int files_ = 0;
};

TEST_P(PhotosWithoutMethod, KeepsItsOtherFeatures) {
  open(From::strip, {}, kPreferences);
  using enum From;
  const Feature features[] = {
      {"albums", [&] { return me_.sees("Holidays") && me_.sees("Pets"); }},
      {"tabs", [&] { return !me_.sees("Shared"); }},
      {"sections", [&] { return !me_.sees("Media Types"); }},
      {"lock in strip", [&] { return locks(strip); }},
      {"tick", [&] { return !me_.feltFeedback().empty(); }},
      {"unlock in strip", [&] { return unlocks(strip); }},
      {"open in strip", [&] { return opens(strip); }},
      {"lock of strip", [&] { return staysClosed(strip); }},
      {"owner in strip", [&] { return opensForOwner(strip); }},
      {"lock without titles", [&] { return staysClosedWithoutTitles(); }},
      {"owner without titles", [&] { return staysClosedWithoutTitles() && isAllowedByOwner(); }},
      {"lock in list", [&] { return locks(list); }},
      {"unlock in list", [&] { return unlocks(list); }},
      {"open in list", [&] { return opens(list); }},
      {"lock of list", [&] { return staysClosed(list); }},
      {"owner in list", [&] { return opensForOwner(list); }},
      {"padlock", [&] { return coversTiles(); }},
      {"count", [&] { return countsHidden(); }},
      {"buttons", [&] { return hasTileButtons(); }},
      {"lock button", [&] { return locksByButton(); }},
      {"move button", [&] { return movesAlbum(); }},
      {"deletion", [&] { return deletesForOwner(); }},
      {"move", [&] { return moves("Holidays"); }},
      {"return", [&] { return returns(); }},
      {"move from grid", [&] { return moves("Photos"); }},
      {"move from content", [&] { return movesFrom<"PXPhotosUIViewController">(); }},
      {"move from library", [&] { return movesFrom<"PXCuratedLibraryUIViewController">(); }},
      {"removal", [&] { return removes(); }},
      {"sheet of album", [&] { return asksWhereAlbumGoes(); }},
      {"sheet of all", [&] { return offersToReturnAll(); }},
      {"leaving", [&] { return isLeft(); }},
  };
  run(features, [&] { begin(); });
}
INSTANTIATE_TEST_SUITE_P(, PhotosWithoutMethod, ::testing::ValuesIn(missingMethodsOf(device::kPhotos)),
                         nameOf);

class CameraWithoutMethod : public MissingMethodTest<PhoneTest> {
 protected:
  bool choosesIn(CameraBar bar, std::string_view album) const {
    bar.layoutSubviews();
    if (!bar.viewWithTag(77)) return false;
    bar.send<"chooseAlbum", void()>();
    me_.alert().tap(album);
    return bar.viewWithTag(78).send<"text", NSString()>().utf8() == album;
  }
};

TEST_P(CameraWithoutMethod, KeepsItsOtherFeatures) {
  constexpr std::string_view kChosen = "/var/mobile/Library/velvault/album.tct";
  auto library = phone_.photoLibrary();
  library.addAlbum("Pets");
  library.addAlbum("Zoo");
  library.addAsset({});
  springBoard_.emplace(phone_.launch(device::kSpringBoard));
  writeStrings(kChosen, {"Pets"});
  writeStrings(kLockedAlbums, {});
  phone_.writePreferences({{"rememberDefault", true}});
  become(device::kCamera);
  device::loadInjectedLibraries();
  device::startApp(device::kCamera);

  const auto camera =
      UIApplication::sharedApplication().keyWindow().send<"rootViewController", UIViewController()>();
  double date = 0;
  const auto capture = [&] {
    const auto photo = library.addAsset({.creationDate = ++date});
    camera.send<"_captureEngine", Object()>()
        .send<"captureOutput:didFinishCaptureForResolvedSettings:error:", void(Object, Object, Object)>(
            Object(), Object(), Object());
    turn();
    settleLibrary();
    return photo;
  };
  const Feature features[] = {
      {"camera", [&] { return me_.sees("Take Picture"); }},
      {"thumbnail",
       [&] {
         return camera.send<"_bottomBar", Object()>()
                    .send<"imageWell", Object()>()
                    .send<"thumbnailImage", UIImage()>()
                    .send<"size", CGSize()>()
                    .height == 175;
       }},
      {"capture",
       [&] { return comesTrue([&, id = capture()] { return !library.albumsContaining(id).empty(); }); }},
      {"move", [&] { return comesTrue([&, id = capture()] { return library.asset(id)->isHidden; }); }},
      {"bar", [&] { return choosesIn(camera.send<"_bottomBar", CameraBar()>(), "Zoo"); }},
      {"metal",
       [&] {
         const auto bar = makeObject<CAMMetalView>();
         bar->setFrame({{0, 100}, {350, 140}});
         camera.view().addSubview(bar.get());
         const bool chooses = choosesIn(bar.get(), "Pets");
         bar->removeFromSuperview();
         return chooses;
       }},
      {"choice",
       [&] {
         const FolderEvents events(phone_.onDisk(kStateFolder));
         remove(kChosen);
         tap({"album", "Camera Roll"});
         settle();
         const bool isSaved = comesTrue([&] { return phone_.strings(kChosen) == Titles{"Camera Roll"}; });
         tap({"album", "Pets"});
         return isSaved;
       }},
  };
  run(features);
}
INSTANTIATE_TEST_SUITE_P(, CameraWithoutMethod, ::testing::ValuesIn(missingMethodsOf(device::kCamera)),
                         nameOf);

using OtherAppWithoutMethod = MissingMethodTest<PhoneTest>;

TEST_P(OtherAppWithoutMethod, KeepsItsOtherFeatures) {
  auto library = phone_.photoLibrary();
  for (const auto album : {library.addAlbum("Pets"), library.addAlbum("Locked"),
                           library.addAlbum("Inside", library.addFolder("Folder"))}) {
    for (const bool isHidden : {false, true})
      library.addToAlbum(library.addAsset({.isHidden = isHidden}), album);
  }
  library.addToAlbum(library.addAsset({.isHidden = true}), library.addAlbum("Moved"));
  writeStrings(kLockedAlbums, {"Locked"});
  phone_.writePreferences({{"startAtBottom", true}, {"showVideos", false}, {"showDeleted", false}});
  phone_.launchHere(device::kGallery);

  const auto listed = [](std::string_view title) {
    const Titles titles = titlesOf(membersOf(listOf(elementsOf(topLevel()).get())));
    return std::ranges::find(titles, title) != titles.end();
  };
  const auto lists = [](NSInteger subtype) { return membersOf(listOf(NSArray::of(smartAlbum(subtype)))); };
  const auto in = [](std::string_view title) {
    return PHAsset::fetchInAssetCollection(albumNamed(title), PHFetchOptions());
  };
  const Feature features[] = {
      {"albums", [&] { return listed("Pets") && listed("Folder"); }},
      {"screen", [&] { return me_.sees("fetched Pets: 2 photos"); }},
      {"folders", [&] { return listed("Inside"); }},
      {"lock in lists", [&] { return !listed("Locked"); }},
      {"lock in fetches", [&] { return !in("Locked"); }},
      {"lock in key photos", [&] { return !keyAssetsOf(albumNamed("Locked")); }},
      {"lock in counts", [&] { return estimateOf(albumNamed("Locked")) == 0; }},
      {"hidden photos", [&] { return in("Pets").count() == 2; }},
      {"hidden key photos", [&] { return keyAssetsOf(albumNamed("Pets")).count() == 2; }},
      {"count", [&] { return estimateOf(albumNamed("Moved")) == 1; }},
      {"switch", [&] { return lists(202).count() == 0; }},
      {"trash", [&] { return lists(1000000201).count() == 0; }},
      {"end", [&] { return albumNamed("Pets").send<"startsAtEnd", bool()>(); }},
      {"key photos at end", [&] { return albumNamed("Pets").send<"keyAssetsAtEnd", bool()>(); }},
  };
  run(features);
}
INSTANTIATE_TEST_SUITE_P(, OtherAppWithoutMethod, ::testing::ValuesIn(missingMethodsOf("")), nameOf);

using SpringBoardWithoutMethod = MissingMethodTest<PhoneTest>;

TEST_P(SpringBoardWithoutMethod, KeepsItsOtherFeatures) {
  phone_.launchHere(device::kSpringBoard);
  const auto service = CPDistributedMessagingCenter::centerNamed(kServiceName);
  const Feature features[] = {
      {"start", [&] { return static_cast<bool>(UIApplication::sharedApplication().keyWindow()); }},
      {"service", [&] { return service.send<"doesServerExist", bool()>(); }},
      {"saving",
       [&] {
         remove(kLockedAlbums);
         const FolderEvents events(phone_.onDisk(kStateFolder));
         service.sendMessage(kSaveArrayMessage, dictionaryOf({{key::kArray, NSArray::from({"Locked"})},
                                                              {key::kPath, NSString::from(kLockedAlbums)}}));
         return comesTrue([&] { return phone_.strings(kLockedAlbums) == Titles{"Locked"}; });
       }},
      {"owner",
       [&] {
         service.sendMessage(kAuthenticateMessage, dictionaryOf({{key::kMethod, NSNumber::from(2)}}));
         const bool isAsked = comesTrue([&] { return !me_.ownerRequest().empty(); });
         if (isAsked) me_.answerOwnerRequest(device::OwnerAnswer::cancel);
         return isAsked;
       }},
  };
  run(features);
}
INSTANTIATE_TEST_SUITE_P(, SpringBoardWithoutMethod,
                         ::testing::ValuesIn(missingMethodsOf(device::kSpringBoard)), nameOf);

}  // namespace
}  // namespace velvault12
