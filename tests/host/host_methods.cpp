#include "tests/host/host_methods.hpp"

#include <algorithm>
#include <regex>
#include <sstream>

namespace velvault12 {

namespace {

// For each [host], and [] for every app but the excepted one, classes and their methods, in the order in
// which hooks are installed, with their type encodings on an iPhone. Behind "|", what is lost where the host
// lacks the method. In front of a method:
//   .  a class method
//   >  only sent
//   =  public: sent without being asked for
//   +  added by the library
//   ?  no known version has it
constexpr const char* kTable = R"(
[com.apple.camera]
CAMCaptureEngine captureOutput:didFinishCaptureForResolvedSettings:error: v@:@@@ | capture, move;
  +movePhoto v@:
CAMMetalView =layoutSubviews v@: | metal; +chooseAlbum v@:; +createNewAlbum v@:;
  +adjustRotationToSize: v@:{CGSize=dd}
CAMBottomBar =layoutSubviews v@: | bar, choice; +chooseAlbum v@:; +createNewAlbum v@:;
  +adjustRotationToSize: v@:{CGSize=dd}; >backgroundView @@:
CAMImageWell thumbnailImage @@: | thumbnail
CPDistributedMessagingCenter >.centerNamed: @@:@ | choice; >sendMessageName:userInfo: B@:@@ | choice
NSString >sizeWithFont:constrainedToSize:lineBreakMode: {CGSize=dd}@:@{CGSize=dd}q
PUAssetHidingHelper >applyHiddenState:completionHandler: v@:B@? | move; >setAssets: v@:@ | move
UILabel >setAdjustsLetterSpacingToFitWidth: v@:B
UIView >_viewControllerForAncestor @@: | bar, metal, choice
[com.apple.mobileslideshow]
PhotosApplication applicationDidEnterBackground: v@:@ | leaving; +returnToMainView v@:;
  >_tabbedLibraryViewController @@: | leaving
PUTabbedLibraryViewController excludedContentModes @@: | tabs; >selectedNavigationController @@: | leaving
UITabBar =layoutSubviews v@:; ?hidden B@:; =items @@:
PUHorizontalAlbumListGadget viewWillAppear: v@:B; collectionView:cellForItemAtIndexPath: @@:@@;
  collectionView:didSelectItemAtIndexPath: v@:@@ | lock of strip, owner in strip, lock without titles, owner
    without titles;
  +handleLongPress: v@:@; +unlockAlbum:withAlbum: v@:i@; +requestPassword: v@:i; +unlockAuthorised: v@:i;
  +reloadCameraRollWithMove: v@:B; ?showPeople B@:; ?showPlaces B@:; ?titleForCollection: @@:@;
  ?subtitleForCollection: @@:@; >_gadgetAtIndexPath: @@:@ | lock of strip, owner in strip, lock
    without titles, owner without titles;
  >collectionView @@:; >gadgetType Q@:; >provider @@:
PUAlbumListCellContentViewHelper albumCellSize {CGSize=dd}@:
PUAlbumListCellContentViewHelperConfiguration stackSize {CGSize=dd}@:
PXPhotosUIViewController viewDidAppear: v@:B
PUSectionedGridLayout itemSize {CGSize=dd}@:
PUPhotoViewContentHelper imageContentFrame {CGRect={CGPoint=dd}{CGSize=dd}}@:
PUAlbumListViewController viewWillAppear: v@:B; =viewDidLayoutSubviews v@: | return;
  ?scrollViewWillBeginDragging: v@:@; collectionView:cellForItemAtIndexPath: @@:@@;
  didSelectItemAtIndexPath: v@:@ | lock of list, owner in list, move, move from grid; +handleLongPress: v@:@;
  +unlockAlbum:withAlbum: v@:i@; +handleCameraTap: v@:@; +returnSelectedPhotos: v@:B;
  +requestPassword: v@:i; +unlockAuthorised: v@:i; +reloadCameraRollWithMove: v@:B; showPeople B@:;
  showPlaces B@:; albumListCellContentView:performDeleteAction: v@:@@ | deletion;
  =setEditing:animated: v@:BB | buttons; ?titleForCollection: @@:@; subtitleForCollection: @@:@;
  ?alwaysHideTabBar B@:; pu_wantsTabBarVisible B@:; >_handleDoneButton: v@:@ | return;
  >_pickerBannerView @@: | move, return, move from grid;
  >_preparedAlbumListCellContentViewAtIndexPath: @@:@;
  >collectionAtIndexPath: @@:@ | deletion, move, move from grid; >collectionView @@:;
  >indexPathForAlbumListCellContentView: @@:@ | deletion; >isPlaceholderAtIndexPath: B@:@;
  >reloadContentView v@:
PUDeletePhotosActionController shouldSkipDeleteConfirmation B@:
PUAlbumsGadgetViewController viewWillAppear: v@:B; >collectionView @@:
PHCollectionList collections @@:
PUNavigationController =navigationBar @@:; +syncAlbums v@:;
  >_currentToolbarViewController @@: | sheet of album
PUAlbumListCellContentView =layoutSubviews v@: | padlock, count; =setEditing:animated: v@:BB;
  +createButtons v@:; +askToMoveAlbum v@:; +moveAlbum v@:; +lockAlbum v@:; +unlockAlbum:withAlbum: v@:i@;
  +requestPassword: v@:i; +unlockAuthorised: v@:i;
  title @@: | lock in strip, tick, unlock in strip, lock in list, unlock in list, padlock, count, lock
    button, move button; >_deleteButton @@: | buttons; >_subtitleLabel @@:; >_titleTextField @@:;
  >setSubtitle: v@:@ | count; >stackView @@:; >subtitle @@: | count
PUPhotosAlbumViewController shouldShowSectionHeaders B@:;
  setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults: v@:@@@@ |
    move, return; initiallyScrolledToBottom B@:; _removeSelectedAssetsWithCompletion: v@:@? | removal;
  pu_wantsTabBarVisible B@:; >assetCollection @@:; >selectedAssets @@: | move, return, removal
PXUIButton ?viewidLoad v@:; =layoutSubviews v@:
PUZoomableGridViewController viewWillAppear: v@:B | move from grid; >selectedAssets @@: | move from grid
PXPhotosContentController contentViewWillAppear: v@:B | move from content;
  >viewModel @@: | move from content
PXCuratedLibraryUIViewController viewWillAppear: v@:B | move from library;
  >viewProvider @@: | move from library
PXGadgetDataSource gadgets @@: | sections
PXPhotoKitCollectionsDataSourceManager _containsAnyAssets: B@:@; canReorderCollection: B@:@
PUAssetViewModel wantsIrisBadgeVisible B@:
PUOneUpSettings setDefaultMaximumZoomFactor: v@:d
CPDistributedMessagingCenter
  >.centerNamed: @@:@ | lock in strip, unlock in strip, owner in strip, owner without titles, lock in list,
    unlock in list, owner in list, lock button, deletion;
  >sendMessageName:userInfo: B@:@@ | lock in strip, unlock in strip, owner in strip, owner without titles, lock
    in list, unlock in list, owner in list, lock button, deletion
PHAssetCollection >isTrashBin B@:; >title @@:
PUAlbumGadget >albumListCellContentView @@:; >title @@: | lock without titles, owner without titles
PUAlbumListCell >albumListCellContentView @@:
PUAlbumsGadgetProvider >albumListType Q@:
PUAssetHidingHelper
  >applyHiddenState:completionHandler: v@:B@? | move button, move, return, move from grid, move from
    content, move from library, removal;
  >setAssets: v@:@ | move button, move, return, move from grid, move from content, move from library,
    removal
PXCuratedLibraryViewModel >selectionManager @@: | move from library
PXCuratedLibraryViewProvider >viewModel @@: | move from library
PXNavigationListGadget >gadgetType Q@: | sections
PXPhotosViewModel >selectionManager @@: | move from content
PXSectionedSelectionManager >selectionSnapshot @@: | move from content, move from library
PXSelectionSnapshot >fetchSelectedObjects @@: | move from content, move from library
UIDevice >_tapticEngine @@: | tick
UIView >_viewControllerForAncestor @@: | move button
_UITapticEngine >actuateFeedback: v@:q | tick
[com.apple.springboard]
SpringBoard applicationDidFinishLaunching: v@:@ | service, saving, owner;
  +handleMessageNamed:withUserInfo: v@:@@; +authenticate:withUserInfo: v@:@@
CPDistributedMessagingCenter >.centerNamed: @@:@ | service, saving, owner;
  >registerForMessageName:target:selector: v@:@@: | saving, owner;
  >runServerOnCurrentThread v@: | service, saving, owner
[]
PHCollectionList collections @@: | folders, lock in lists, switch, trash
PHFetchResult fetchedObjects @@:
PHAsset =.fetchAssetsInAssetCollection:options: @@:@@ | screen, lock in fetches, hidden photos, count;
  .fetchKeyAssetsInAssetCollection:options: @@:@@ | lock in key photos, hidden key photos
PHAssetCollection =.fetchAssetCollectionsWithType:subtype:options: @@:qq@;
  estimatedAssetCount Q@: | lock in counts, count; startsAtEnd B@: | end;
  keyAssetsAtEnd B@: | key photos at end; >isTrashBin B@: | trash;
  >title @@: | folders, lock in lists, lock in fetches, lock in key photos, lock in counts)";

std::vector<std::string> split(const std::string& text, const std::string& separator) {
  const std::regex pattern(separator);
  return {std::sregex_token_iterator(text.begin(), text.end(), pattern, -1), {}};
}

HostMethod method(std::string host, std::string className, const std::string& text) {
  HostMethod made{.host = std::move(host), .className = std::move(className)};
  const auto parts = split(text, R"(\s+\|\s+)");
  if (parts.size() > 1) {
    for (const std::string& part : split(parts[1], R"(,\s+)"))
      made.lost.insert(std::regex_replace(part, std::regex(R"(\s+)"), " "));
  }
  std::istringstream words(parts[0]);
  words >> made.selector >> made.encoding;
  const auto take = [&made](char mark) {
    const bool isMarked = made.selector.front() == mark;
    if (isMarked) made.selector.erase(0, 1);
    return isMarked;
  };
  made.isPublic = take('=');
  made.isOnlySent = take('>');
  made.isAdded = take('+');
  made.isInNoVersion = take('?');
  made.isClassMethod = take('.');
  return made;
}

std::vector<HostMethod> parsed() {
  std::vector<HostMethod> all;
  std::string host;
  for (const std::string& line : split(kTable, R"(\n(?! ))")) {
    if (line.empty()) continue;
    if (line.front() == '[') {
      host = line.substr(1, line.size() - 2);
      continue;
    }
    const auto end = line.find_first_of(" \n");
    for (const std::string& text : split(line.substr(end), R"(;\s+)"))
      all.push_back(method(host, line.substr(0, end), text));
  }
  return all;
}

}  // namespace

std::string plainEncoding(const std::string& encoding) {
  const std::string unnamed = std::regex_replace(encoding, std::regex("[A-Za-z]+=|[0-9]+"), "");
  return std::regex_replace(unnamed, std::regex("C"), "B");
}

void PrintTo(const HostMethod& method, std::ostream* out) {
  *out << method.className << ' ' << method.selector;
}

std::vector<HostMethod> hostMethods(std::string_view host) {
  static const auto& all = *new std::vector(parsed());
  std::vector<HostMethod> some;
  std::ranges::copy_if(all, std::back_inserter(some), [&](const auto& each) { return each.host == host; });
  return some;
}

}  // namespace velvault12
