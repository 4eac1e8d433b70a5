// Hosts that lack a method which the library sends or replaces, one method at a time: nothing breaks, and
// what does not need the method works as ever.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <utility>

#include "device/apps/app.hpp"
#include "device/frameworks/installed_hooks.hpp"
#include "device/system/loader.hpp"
#include "host/app_support.hpp"
#include "host/camera_ui.hpp"
#include "startup/service_messages.hpp"
#include "tests/host/missing_method.hpp"
#include "tests/photo_library.hpp"
#include "tests/photos/photos_app.hpp"

namespace velvault12 {

namespace {

std::set<std::string> wordsOf(const char* text) {
  std::istringstream words(text);
  return {std::istream_iterator<std::string>(words), {}};
}

/// Public, and in every version of the host; the library sends them unasked.
const std::set<std::string> kPublicMethods = wordsOf(R"(
  actionWithTitle:style:handler: addAction: addAssets: addGestureRecognizer: addObject: addSubview:
  addTextFieldWithConfigurationHandler: alertControllerWithTitle:message:preferredStyle: allKeys alloc
  animateWithDuration:delay:options:animations:completion: array assetCollectionSubtype assetCollectionType
  autorelease boolValue bounds bringSubviewToFront: bundleIdentifier canEvaluatePolicy:error:
  canPerformEditOperation: cellForItemAtIndexPath: center changeRequestForAssetCollection:assets: class
  clearColor colorWithWhite:alpha: containsObject: contentView copy count
  countByEnumeratingWithState:objects:count:
  createDirectoryAtPath:withIntermediateDirectories:attributes:error:
  creationRequestForAssetCollectionWithTitle: currentDevice defaultManager dictionaryWithContentsOfFile: drain
  effectWithStyle: evaluatePolicy:localizedReason:reply:
  fetchAssetCollectionsContainingAsset:withType:options:
  fetchAssetCollectionsWithLocalIdentifiers:options: fetchAssetCollectionsWithType:subtype:options:
  fetchAssetsInAssetCollection:options: fetchAssetsWithMediaType:options:
  fetchCollectionsInCollectionList:options: fileExistsAtPath: firstObject frame gestureRecognizers
  getCharacters:range: imageWithRenderingMode: init initWithArray:
  initWithBarButtonSystemItem:target:action: initWithContentsOfFile: initWithContentsOfFile:encoding:error:
  initWithEffect: initWithImage: initWithImage:style:target:action: initWithTarget:action: intValue isAtEnd
  isEditing isEqualToString: isKindOfClass: isMainThread item items keyWindow lastObject layer layoutSubviews
  length localIdentifier localizedStringForKey:value:table: localizedTitle mainBundle mainScreen
  methodSignatureForSelector: mutableCopy navigationBar navigationController navigationItem new
  numberOfItemsInSection: numberOfSections numberWithBool: numberWithInt: numberWithUnsignedInteger:
  objectAtIndex: objectForKey: orientation performChanges:completionHandler:
  placeholderForCreatedAssetCollection popToRootViewControllerAnimated: popoverPresentationController
  predicateWithFormat:argumentArray: presentViewController:animated:completion: release removeAssets:
  removeFromSuperview requestImageForAsset:targetSize:contentMode:options:resultHandler: respondsToSelector:
  retain rightBarButtonItems scanFloat: scannerWithString:
  scheduledTimerWithTimeInterval:target:selector:userInfo:repeats: section setAdjustsFontSizeToFitWidth:
  setAlpha: setAutoresizesSubviews: setBackgroundColor: setBarButtonItem: setCenter: setClipsToBounds:
  setCornerRadius: setDelegate: setEditing:animated: setFont: setFrame: setHidden: setIncludeHiddenAssets:
  setMasksToBounds: setMinimumPressDuration: setMinimumScaleFactor: setNumberOfLines: setNumberOfTapsRequired:
  setObject:forKey: setPlaceholder: setPredicate: setResizeMode: setRightBarButtonItems: setSecureTextEntry:
  setSortDescriptors: setSourceRect: setSourceView: setSynchronous: setTag: setText: setTextAlignment:
  setTextColor: setTransform: setUserInteractionEnabled: sharedApplication sharedPhotoLibrary
  sortDescriptorWithKey:ascending: state stringValue stringWithCharacters:length: subviews superview
  systemFontOfSize: tag text textFields transientAssetCollectionWithAssets:title: userInterfaceIdiom
  valueWithPointer: view viewDidLayoutSubviews viewWithTag: whiteColor writeToFile:atomically:)");

/// The library's own.
const std::set<std::string> kAddedMethods =
    wordsOf("handleLongPress: requestPassword: setPhotoView: syncAlbums unlockAuthorised:");

constexpr MissingMethod kPhotos[] = {
    {"", "", ""},
    {"CPDistributedMessagingCenter", "+centerNamed:",
     "lock in strip, unlock in strip, owner in strip, strip without titles, lock in list, unlock in list, "
     "owner in list, lock button, deletion"},
    {"CPDistributedMessagingCenter", "sendMessageName:userInfo:",
     "lock in strip, unlock in strip, owner in strip, strip without titles, lock in list, unlock in list, "
     "owner in list, lock button, deletion"},
    {"PHAssetCollection", "isTrashBin", ""},
    {"PHAssetCollection", "title", ""},
    {"PHCollectionList", "collections", ""},
    {"PUAlbumGadget", "albumListCellContentView", ""},
    {"PUAlbumGadget", "title", "strip without titles"},
    {"PUAlbumListCell", "albumListCellContentView", ""},
    {"PUAlbumListCellContentView", "_deleteButton", "buttons"},
    {"PUAlbumListCellContentView", "_subtitleLabel", ""},
    {"PUAlbumListCellContentView", "_titleTextField", ""},
    {"PUAlbumListCellContentView", "layoutSubviews", "padlock, count"},
    {"PUAlbumListCellContentView", "setEditing:animated:", ""},
    {"PUAlbumListCellContentView", "setSubtitle:", "count"},
    {"PUAlbumListCellContentView", "stackView", ""},
    {"PUAlbumListCellContentView", "subtitle", "count"},
    {"PUAlbumListCellContentView", "title",
     "lock in strip, tick, unlock in strip, lock in list, unlock in list, padlock, count, lock button, move "
     "button"},
    {"PUAlbumListCellContentViewHelper", "albumCellSize", ""},
    {"PUAlbumListCellContentViewHelperConfiguration", "stackSize", ""},
    {"PUAlbumListViewController", "_handleDoneButton:", "return"},
    {"PUAlbumListViewController", "_pickerBannerView", "move, return, move from grid"},
    {"PUAlbumListViewController", "_preparedAlbumListCellContentViewAtIndexPath:", ""},
    {"PUAlbumListViewController", "albumListCellContentView:performDeleteAction:", "deletion"},
    {"PUAlbumListViewController", "collectionAtIndexPath:", "deletion, move, move from grid"},
    {"PUAlbumListViewController", "collectionView", ""},
    {"PUAlbumListViewController", "collectionView:cellForItemAtIndexPath:", ""},
    {"PUAlbumListViewController", "didSelectItemAtIndexPath:", "owner in list, move, move from grid"},
    {"PUAlbumListViewController", "indexPathForAlbumListCellContentView:", "deletion"},
    {"PUAlbumListViewController", "isPlaceholderAtIndexPath:", ""},
    {"PUAlbumListViewController", "pu_wantsTabBarVisible", ""},
    {"PUAlbumListViewController", "reloadContentView", ""},
    {"PUAlbumListViewController", "setEditing:animated:", "buttons"},
    {"PUAlbumListViewController", "showPeople", ""},
    {"PUAlbumListViewController", "showPlaces", ""},
    {"PUAlbumListViewController", "subtitleForCollection:", ""},
    {"PUAlbumListViewController", "viewDidLayoutSubviews", "return"},
    {"PUAlbumListViewController", "viewWillAppear:", ""},
    {"PUAlbumsGadgetProvider", "albumListType", ""},
    {"PUAlbumsGadgetViewController", "collectionView", ""},
    {"PUAlbumsGadgetViewController", "viewWillAppear:", ""},
    {"PUAssetHidingHelper", "applyHiddenState:completionHandler:",
     "move button, move, return, move from grid, move from content, move from library, removal"},
    {"PUAssetHidingHelper", "setAssets:",
     "move button, move, return, move from grid, move from content, move from library, removal"},
    {"PUAssetViewModel", "wantsIrisBadgeVisible", ""},
    {"PUDeletePhotosActionController", "shouldSkipDeleteConfirmation", ""},
    {"PUHorizontalAlbumListGadget", "_gadgetAtIndexPath:", "owner in strip, strip without titles"},
    {"PUHorizontalAlbumListGadget", "collectionView", ""},
    {"PUHorizontalAlbumListGadget", "collectionView:cellForItemAtIndexPath:", ""},
    {"PUHorizontalAlbumListGadget",
     "collectionView:didSelectItemAtIndexPath:", "owner in strip, strip without titles"},
    {"PUHorizontalAlbumListGadget", "gadgetType", ""},
    {"PUHorizontalAlbumListGadget", "provider", ""},
    {"PUHorizontalAlbumListGadget", "viewWillAppear:", ""},
    {"PUNavigationController", "_currentToolbarViewController", "sheet of album"},
    {"PUNavigationController", "navigationBar", ""},
    {"PUOneUpSettings", "setDefaultMaximumZoomFactor:", ""},
    {"PUPhotoViewContentHelper", "imageContentFrame", ""},
    {"PUPhotosAlbumViewController", "_removeSelectedAssetsWithCompletion:", "removal"},
    {"PUPhotosAlbumViewController", "assetCollection", ""},
    {"PUPhotosAlbumViewController", "initiallyScrolledToBottom", ""},
    {"PUPhotosAlbumViewController", "pu_wantsTabBarVisible", ""},
    {"PUPhotosAlbumViewController", "selectedAssets", "move, return, removal"},
    {"PUPhotosAlbumViewController",
     "setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults:",
     "move, return"},
    {"PUPhotosAlbumViewController", "shouldShowSectionHeaders", ""},
    {"PUSectionedGridLayout", "itemSize", ""},
    {"PUTabbedLibraryViewController", "excludedContentModes", "tabs"},
    {"PUTabbedLibraryViewController", "selectedNavigationController", "leaving"},
    {"PUZoomableGridViewController", "selectedAssets", "move from grid"},
    {"PUZoomableGridViewController", "viewWillAppear:", "move from grid"},
    {"PXCuratedLibraryUIViewController", "viewProvider", "move from library"},
    {"PXCuratedLibraryUIViewController", "viewWillAppear:", "move from library"},
    {"PXCuratedLibraryViewModel", "selectionManager", "move from library"},
    {"PXCuratedLibraryViewProvider", "viewModel", "move from library"},
    {"PXGadgetDataSource", "gadgets", "sections"},
    {"PXNavigationListGadget", "gadgetType", "sections"},
    {"PXPhotoKitCollectionsDataSourceManager", "_containsAnyAssets:", ""},
    {"PXPhotoKitCollectionsDataSourceManager", "canReorderCollection:", ""},
    {"PXPhotosContentController", "contentViewWillAppear:", "move from content"},
    {"PXPhotosContentController", "viewModel", "move from content"},
    {"PXPhotosUIViewController", "viewDidAppear:", ""},
    {"PXPhotosViewModel", "selectionManager", "move from content"},
    {"PXSectionedSelectionManager", "selectionSnapshot", "move from content, move from library"},
    {"PXSelectionSnapshot", "fetchSelectedObjects", "move from content, move from library"},
    {"PXUIButton", "layoutSubviews", ""},
    {"PhotosApplication", "_tabbedLibraryViewController", "leaving"},
    {"PhotosApplication", "applicationDidEnterBackground:", "leaving"},
    {"UIDevice", "_tapticEngine", "tick"},
    {"UITabBar", "items", ""},
    {"UITabBar", "layoutSubviews", ""},
    {"UIView", "_viewControllerForAncestor", "move button"},
    {"_UITapticEngine", "actuateFeedback:", "tick"},
};

constexpr MissingMethod kCamera[] = {
    {"", "", ""},
    {"CAMBottomBar", "backgroundView", ""},
    {"CAMBottomBar", "layoutSubviews", "bar"},
    {"CAMCaptureEngine", "captureOutput:didFinishCaptureForResolvedSettings:error:", "capture, move"},
    {"CAMImageWell", "thumbnailImage", "thumbnail"},
    {"CAMMetalView", "layoutSubviews", "metal"},
    {"CPDistributedMessagingCenter", "+centerNamed:", "choice"},
    {"CPDistributedMessagingCenter", "sendMessageName:userInfo:", "choice"},
    {"NSString", "sizeWithFont:constrainedToSize:lineBreakMode:", ""},
    {"PUAssetHidingHelper", "applyHiddenState:completionHandler:", "move"},
    {"PUAssetHidingHelper", "setAssets:", "move"},
    {"UILabel", "setAdjustsLetterSpacingToFitWidth:", ""},
    {"UIView", "_viewControllerForAncestor", "bar, metal, choice"},
};

/// With what the library does to every app that reads photos.
constexpr MissingMethod kOtherApp[] = {
    {"", "", ""},
    {"PHAsset", "+fetchAssetsInAssetCollection:options:", "screen, lock in fetches, hidden photos, count"},
    {"PHAsset", "+fetchKeyAssetsInAssetCollection:options:", "lock in key photos, hidden key photos"},
    {"PHAssetCollection", "+fetchAssetCollectionsWithType:subtype:options:", ""},
    {"PHAssetCollection", "estimatedAssetCount", "lock in counts, count"},
    {"PHAssetCollection", "isTrashBin", "trash"},
    {"PHAssetCollection", "keyAssetsAtEnd", "key photos at end"},
    {"PHAssetCollection", "startsAtEnd", "end"},
    {"PHAssetCollection", "title",
     "folders, lock in lists, lock in fetches, lock in key photos, lock in counts"},
    {"PHCollectionList", "collections", "folders, lock in lists, switch, trash"},
    {"PHFetchResult", "fetchedObjects", ""},
};

constexpr MissingMethod kSpringBoard[] = {
    {"", "", ""},
    {"CPDistributedMessagingCenter", "+centerNamed:", "service, saving, owner"},
    {"CPDistributedMessagingCenter", "registerForMessageName:target:selector:", "saving, owner"},
    {"CPDistributedMessagingCenter", "runServerOnCurrentThread", "service, saving, owner"},
    {"SpringBoard", "applicationDidFinishLaunching:", "service, saving, owner"},
};

std::string nameOf(const ::testing::TestParamInfo<MissingMethod>& info) {
  if (info.param.className.empty()) return "nothing";
  const std::string name = std::string(info.param.className) + "_" + std::string(info.param.selector);
  return std::regex_replace(name, std::regex("[+:]"), "");
}

}  // namespace

bool isPublic(std::string_view selector) { return kPublicMethods.contains(std::string(selector)); }

void PrintTo(const MissingMethod& method, std::ostream* out) { *out << method.className << method.selector; }

namespace {

/// All that some host here lacks: selectors, and a class's own with a plus.
std::set<std::string> missingMethods(std::string_view className = "") {
  std::set<std::string> selectors;
  for (const std::span<const MissingMethod> host :
       {std::span<const MissingMethod>(kPhotos), std::span<const MissingMethod>(kCamera),
        std::span<const MissingMethod>(kOtherApp), std::span<const MissingMethod>(kSpringBoard)}) {
    for (const MissingMethod& each : host) {
      if (className.empty() || each.className == className) selectors.emplace(each.selector);
    }
  }
  return selectors;
}

std::string contentsOf(const std::filesystem::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(SentMethods, ArePublicOrMissingInSomeHostHere) {
  const std::set<std::string> missing = missingMethods();
  const std::regex sending(
      R"re((?:send|trySend|sendToClass|trySendToClass|responds|understands|makeObject<\w+,)[<\s]\s*"([^"]+)")re");
  int sent = 0;
  for (const char* const folder : {"host", "startup", "camera", "photos", "springboard", "library_filter"}) {
    const auto sources = std::filesystem::path(VELVAULT12_SOURCES) / folder;
    for (const auto& file : std::filesystem::recursive_directory_iterator(sources)) {
      if (!file.is_regular_file()) continue;
      const std::string text = contentsOf(file.path());
      for (std::sregex_iterator each(text.begin(), text.end(), sending), end; each != end; ++each, ++sent) {
        const std::string selector = (*each)[1];
        EXPECT_TRUE(kPublicMethods.contains(selector) || kAddedMethods.contains(selector) ||
                    missing.contains(selector) || missing.contains("+" + selector))
            << file.path().filename() << ": " << selector;
      }
    }
  }
  EXPECT_GT(sent, 150);
}

class HookedMethods : public PhoneTest, public ::testing::WithParamInterface<std::string_view> {};
INSTANTIATE_TEST_SUITE_P(, HookedMethods,
                         ::testing::Values(device::kPhotos, device::kCamera, device::kGallery,
                                           device::kSpringBoard));

TEST_P(HookedMethods, AreMissingInSomeHostHere) {
  become(GetParam());
  device::loadInjectedLibraries();
  EXPECT_FALSE(device::installedHooks().empty());
  for (const auto& hook : device::installedHooks()) {
    const std::string selector = (hook.isClassMethod ? "+" : "") + hook.selector;
    EXPECT_TRUE(hook.kind == device::InstalledHook::Kind::added ||
                missingMethods(hook.className).contains(selector))
        << hook.className << " " << selector;
  }
}

class PhotosWithout : public Without<PhotosApp> {
 protected:
  PhotosWithout() {
    auto library = phone_.photoLibrary();
    holidays_ = library.allAlbums()[0].identifier;
    for (int minute = 1; minute <= 6; ++minute) addPhoto(minute, holidays_);
    library.setHidden(addPhoto(7, library.addAlbum("Old")), true);
    library.setHidden(photos_[5], true);
    library.addToAlbum(library.addAsset({.creationDate = 900, .smartSubtype = 202}), holidays_);
  }
  std::int64_t addPhoto(int minute, std::int64_t album) {
    auto library = phone_.photoLibrary();
    photos_.push_back(library.addAsset({.creationDate = 60.0 * minute}));
    library.addToAlbum(photos_.back(), album);
    return photos_.back();
  }
  static std::string photo(int number) { return "Photo, 1970-01-01 00:0" + std::to_string(number) + ":00"; }
  bool isHidden(int number) const {
    settleLibrary();
    const auto all = phone_.photoLibrary().allAssets();
    const auto identifier = photos_.at(static_cast<std::size_t>(number) - 1);
    return std::ranges::find(all, identifier, &device::AssetRow::identifier)->isHidden;
  }

  /// Has these albums locked, by a file that none before it was like, and Photos at the first screen of its
  /// Albums tab.
  void begin(Titles locked = {}) const {
    if (!owner().ownerRequest().empty()) owner().answerOwnerRequest(OwnerAnswer::cancel);
    albumList().setEditing(false, false);
    navigation().send<"dismissViewControllerAnimated:completion:", void(bool, Block<void()>)>(
        false, Block<void()>());
    navigation().popToRoot(false);
    me_.tap("Albums");
    static int files = 0;
    locked.push_back("File " + std::to_string(++files));
    writeStrings(kLockedAlbums, locked);
    strip().send<"viewWillAppear:", void(bool)>(false);
  }
  void beginIn(From from, Titles locked = {}) const {
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

  bool locks(From from) const {
    beginIn(from);
    me_.longPress("Pets");
    return isLocked("Pets");
  }
  bool unlocks(From from) const {
    beginIn(from, {"Pets"});
    me_.longPress("Pets");
    return isAllowedByOwner() && isLocked("Pets", false);
  }
  bool opensForOwner(From from) const {
    beginIn(from, {"Pets"});
    if (!tapped("Pets").empty()) throw std::runtime_error("it is open");
    return isAllowedByOwner() && comesTrue([&] { return openAlbum() == "Pets"; });
  }
  /// The tiles do not know their albums then.
  bool asksWithoutTitles() const {
    begin({"Pets"});
    reload({{"layoutShowTitle", false}});
    NSInteger item = 0;
    const auto titleAt = [&] {
      return strip().gadgetAtIndexPath(pathTo(item)).trySend<"title", NSString()>().utf8();
    };
    while (item < 10 && titleAt() != "Pets") ++item;
    strip().select(pathTo(item));
    reload({});
    return openAlbum().empty() && isAllowedByOwner();
  }
  bool opens(From from) const {
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
  bool coversTiles() const {
    beginIn(From::list, {"Pets"});
    return has(tileOf("Pets"), 200) && !has(tileOf("Holidays"), 200);
  }
  bool countsHidden() const {
    beginIn(From::list);
    tileOf("Old").setSubtitle(NSString::from("7"));
    return tileOf("Old").subtitle().utf8() == "1";
  }
  bool hasTileButtons() const {
    beginIn(From::list);
    me_.tap("Edit");
    return has(tileOf("Pets"), 213) && has(tileOf("Pets"), 214);
  }
  bool locksByButton() const {
    beginIn(From::list);
    tileOf("Pets").send<"lockAlbum", void()>();
    if (!isLocked("Pets")) return false;
    tileOf("Pets").send<"lockAlbum", void()>();
    return isAllowedByOwner() && isLocked("Pets", false);
  }
  bool movesAlbum() const {
    beginIn(From::list);
    tileOf("Recipes").send<"askToMoveAlbum", void()>();
    me_.tap("Move out of camera roll");
    settleLibrary();
    return assetsIn("Recipes").at(0).isHidden;
  }
  bool deletesForOwner() const {
    beginIn(From::list, {"Old"});
    tap({"Edit", "Delete Old"});
    return isAllowedByOwner() && comesTrue([&] {
             settleLibrary();
             return albums().size() == 3;
           });
  }
  void pick(std::string_view where, int number) const {
    begin();
    tap({where, "Select", photo(number), "Add To"});
  }
  bool moves(std::string_view where, int number) const {
    pick(where, number);
    tap({"Pets", "Move"});
    return isHidden(number) && assetsIn("Pets").size() > 1;
  }
  bool returns(int number) const {
    pick("Holidays", number);
    phone_.photoLibrary().setHidden(photos_.at(static_cast<std::size_t>(number) - 1), true);
    tap({"Camera", "Copy"});
    return !isHidden(number) && me_.sees("Select");
  }
  /// With a later system's controller that has the photo selected.
  template <Name ClassName>
  bool movesFrom(int number) const {
    begin();
    // Behind the three that each album has of its own.
    const auto photo =
        PHAsset::fetchWithMediaType(PHAsset::MediaType::image, PHFetchOptions::includingHidden().get())
            .objectAtIndex(static_cast<NSUInteger>(number) + 2);
    const auto controller = makeObject<HostClass<ClassName>>();
    const Object provider = controller->template trySend<"viewProvider", Object()>();
    (provider ? provider : controller.get())
        .template send<"viewModel", Object()>()
        .template send<"selectionManager", Object()>()
        .template send<"_selectObjects:", void(NSArray)>(NSArray::of(photo));
    controller->template trySend<"viewWillAppear:", void(bool)>(false);
    strip().send<"reloadCameraRollWithMove:", void(bool)>(true);
    return isHidden(number);
  }

  bool removes(int number) const {
    begin();
    tap({"Holidays", "Select", photo(number), "Remove"});
    return !isHidden(number);
  }
  bool asksWhereAlbumGoes() const {
    begin();
    me_.tap("Holidays");
    navigation().send<"syncAlbums", void()>();
    return me_.sees("Move Album Photos");
  }
  bool offersToReturnAll() const {
    beginIn(From::list);
    me_.tap("Edit");
    albumList().send<"viewDidLayoutSubviews", void()>();
    return albumList().navigationItem().rightBarButtonItems().count() == 2;
  }
  bool isLeft() const {
    begin({"Recipes"});
    reload({{"returnToMainDefault", true}});
    me_.tap("Holidays");
    if (openAlbum() != "Holidays") throw std::runtime_error("it has not opened");
    me_.leaveApp();
    me_.returnToApp();
    return openAlbum().empty();
  }

  std::int64_t holidays_ = 0;
  std::vector<std::int64_t> photos_;
};

TEST_P(PhotosWithout, GoesOn) {
  open(From::strip, {}, {{"showTabShared", false}, {"showMediaTypes", false}});
  using enum From;
  const Part story[] = {
      {"albums", [&] { return me_.sees("Holidays") && me_.sees("Pets"); }},
      {"tabs", [&] { return !me_.sees("Shared"); }},
      {"sections", [&] { return !me_.sees("Media Types"); }},
      {"lock in strip", [&] { return locks(strip); }},
      {"tick", [&] { return !me_.feltFeedback().empty(); }},
      {"unlock in strip", [&] { return unlocks(strip); }},
      {"open in strip", [&] { return opens(strip); }},
      {"owner in strip", [&] { return opensForOwner(strip); }},
      {"strip without titles", [&] { return asksWithoutTitles(); }},
      {"lock in list", [&] { return locks(list); }},
      {"unlock in list", [&] { return unlocks(list); }},
      {"open in list", [&] { return opens(list); }},
      {"owner in list", [&] { return opensForOwner(list); }},
      {"padlock", [&] { return coversTiles(); }},
      {"count", [&] { return countsHidden(); }},
      {"buttons", [&] { return hasTileButtons(); }},
      {"lock button", [&] { return locksByButton(); }},
      {"move button", [&] { return movesAlbum(); }},
      {"deletion", [&] { return deletesForOwner(); }},
      {"move", [&] { return moves("Holidays", 1); }},
      {"return", [&] { return returns(2); }},
      {"move from grid", [&] { return moves("Photos", 3); }},
      {"move from content", [&] { return movesFrom<"PXPhotosUIViewController">(4); }},
      {"move from library", [&] { return movesFrom<"PXCuratedLibraryUIViewController">(5); }},
      {"removal", [&] { return removes(6); }},
      {"sheet of album", [&] { return asksWhereAlbumGoes(); }},
      {"sheet of all", [&] { return offersToReturnAll(); }},
      {"leaving", [&] { return isLeft(); }},
  };
  play(story);
}
INSTANTIATE_TEST_SUITE_P(, PhotosWithout, ::testing::ValuesIn(kPhotos), nameOf);

/// Does at once what is to be done after some time.
NSTimer scheduleNow(Object, Replaced<NSTimer(double, Object, SEL, Object, bool)> host, double, Object target,
                    SEL action, Object info, bool repeats) {
  return host(0, target, action, info, repeats);
}

class CameraWithout : public Without<PhoneTest> {
 protected:
  bool choosesIn(CameraBar bar, std::string_view album) const {
    bar.layoutSubviews();
    if (!bar.viewWithTag(77)) return false;
    bar.send<"chooseAlbum", void()>();
    me_.alert().tap(album);
    return bar.viewWithTag(78).send<"text", NSString()>().utf8() == album;
  }
};

TEST_P(CameraWithout, GoesOn) {
  constexpr std::string_view kChosen = "/var/mobile/Library/velvault/album.tct";
  auto library = phone_.photoLibrary();
  const auto pets = library.addAlbum("Pets");
  library.addAlbum("Zoo");
  library.addAsset({.creationDate = 1});
  springBoard_.emplace(phone_.launch(device::kSpringBoard));
  writeStrings(kChosen, {"Pets"});
  phone_.writePreferences({{"rememberDefault", true}});
  become(device::kCamera);
  installHook(replaceClassMethod<scheduleNow>(
      "NSTimer", "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:", "@@:d@:@B"));
  device::loadInjectedLibraries();
  device::startApp(device::kCamera);

  const auto camera =
      UIApplication::sharedApplication().keyWindow().send<"rootViewController", UIViewController()>();
  const Part story[] = {
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
       [&] {
         camera.send<"_captureEngine", Object()>()
             .send<"captureOutput:didFinishCaptureForResolvedSettings:error:", void(Object, Object, Object)>(
                 Object(), Object(), Object());
         return comesTrue([&] {
           settleLibrary();
           return library.assetsInAlbum(pets).size() == 1;
         });
       }},
      {"move", [&] { return library.allAssets().at(0).isHidden; }},
      {"bar", [&] { return choosesIn(camera.send<"_bottomBar", CameraBar()>(), "Zoo"); }},
      {"metal",
       [&] {
         const auto bar = makeObject<CAMMetalView>();
         bar->setFrame({{0, 100}, {350, 140}});
         camera.view().addSubview(bar.get());
         return choosesIn(bar.get(), "Pets");
       }},
      {"choice",
       [&] {
         const FolderEvents events(phone_.onDisk(kStateFolder));
         remove(kChosen);
         tap({"album", "Camera Roll"});
         settle();
         return comesTrue([&] { return phone_.strings(kChosen) == Titles{"Camera Roll"}; });
       }},
  };
  play(story);
}
INSTANTIATE_TEST_SUITE_P(, CameraWithout, ::testing::ValuesIn(kCamera), nameOf);

using OtherAppWithout = Without<PhoneTest>;

TEST_P(OtherAppWithout, GoesOn) {
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
  const Part story[] = {
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
  play(story);
}
INSTANTIATE_TEST_SUITE_P(, OtherAppWithout, ::testing::ValuesIn(kOtherApp), nameOf);

using SpringBoardWithout = Without<PhoneTest>;

TEST_P(SpringBoardWithout, GoesOn) {
  phone_.launchHere(device::kSpringBoard);
  const auto service = CPDistributedMessagingCenter::centerNamed(kServiceName);
  const Part story[] = {
      {"start", [&] { return static_cast<bool>(UIApplication::sharedApplication().keyWindow()); }},
      {"service", [&] { return service.send<"doesServerExist", bool()>(); }},
      {"saving",
       [&] {
         const FolderEvents events(phone_.onDisk(kStateFolder));
         service.sendMessage(kSaveArrayMessage, dictionaryOf({{key::kArray, NSArray::from({"Locked"})},
                                                              {key::kPath, NSString::from(kLockedAlbums)}}));
         return comesTrue([&] { return phone_.strings(kLockedAlbums) == Titles{"Locked"}; });
       }},
      {"owner",
       [&] {
         service.sendMessage(kAuthenticateMessage, dictionaryOf({{key::kMethod, NSNumber::from(2)}}));
         return comesTrue([&] { return !me_.ownerRequest().empty(); });
       }},
  };
  play(story);
}
INSTANTIATE_TEST_SUITE_P(, SpringBoardWithout, ::testing::ValuesIn(kSpringBoard), nameOf);

}  // namespace
}  // namespace velvault12
