#include "tests/host/host_methods.hpp"

#include <algorithm>
#include <cctype>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace velvault12 {

namespace {

// For each [host], and [] for every app but the excepted one, classes and their methods in the order in which
// hooks are installed. Behind "|", what is lost where the host lacks the method. In front of a method:
//   .  a class method
//   >  only sent
//   =  public: sent without being asked for
//   +  added by the library, with its type encoding
//   ?  no known version has it; with the type encoding that it would have
constexpr const char* kTable = R"(
[com.apple.camera]
CAMCaptureEngine captureOutput:didFinishCaptureForResolvedSettings:error: | capture, move; +movePhoto v@:
CAMMetalView =layoutSubviews | metal; +chooseAlbum v@:; +createNewAlbum v@:;
  +adjustRotationToSize: v@:{CGSize=dd}
CAMBottomBar =layoutSubviews | bar, choice; +chooseAlbum v@:; +createNewAlbum v@:;
  +adjustRotationToSize: v@:{CGSize=dd}; >backgroundView
CAMImageWell thumbnailImage | thumbnail
CPDistributedMessagingCenter >.centerNamed: | choice; >sendMessageName:userInfo: | choice
NSString >sizeWithFont:constrainedToSize:lineBreakMode:
PUAssetHidingHelper >applyHiddenState:completionHandler: | move; >setAssets: | move
UILabel >setAdjustsLetterSpacingToFitWidth:
UIView >_viewControllerForAncestor | bar, metal, choice
[com.apple.mobileslideshow]
PhotosApplication applicationDidEnterBackground: | leaving; +returnToMainView v@:;
  >_tabbedLibraryViewController | leaving
PUTabbedLibraryViewController excludedContentModes | tabs; >selectedNavigationController | leaving
UITabBar =layoutSubviews; ?hidden B@:; =items
PUHorizontalAlbumListGadget viewWillAppear:; collectionView:cellForItemAtIndexPath:;
  collectionView:didSelectItemAtIndexPath: | owner in strip, strip without titles; +handleLongPress: v@:@;
  +unlockAlbum:withAlbum: v@:i@; +requestPassword: v@:i; +unlockAuthorised: v@:i;
  +reloadCameraRollWithMove: v@:B; ?showPeople B@:; ?showPlaces B@:; ?titleForCollection: @@:@;
  ?subtitleForCollection: @@:@; >_gadgetAtIndexPath: | owner in strip, strip without titles;
  >collectionView; >gadgetType; >provider
PUAlbumListCellContentViewHelper albumCellSize
PUAlbumListCellContentViewHelperConfiguration stackSize
PXPhotosUIViewController viewDidAppear:
PUSectionedGridLayout itemSize
PUPhotoViewContentHelper imageContentFrame
PUAlbumListViewController viewWillAppear:; =viewDidLayoutSubviews | return;
  ?scrollViewWillBeginDragging: v@:@; collectionView:cellForItemAtIndexPath:;
  didSelectItemAtIndexPath: | owner in list, move, move from grid; +handleLongPress: v@:@;
  +unlockAlbum:withAlbum: v@:i@; +handleCameraTap: v@:@; +returnSelectedPhotos: v@:B;
  +requestPassword: v@:i; +unlockAuthorised: v@:i; +reloadCameraRollWithMove: v@:B; showPeople; showPlaces;
  albumListCellContentView:performDeleteAction: | deletion; =setEditing:animated: | buttons;
  ?titleForCollection: @@:@; subtitleForCollection:; ?alwaysHideTabBar B@:; pu_wantsTabBarVisible;
  >_handleDoneButton: | return; >_pickerBannerView | move, return, move from grid;
  >_preparedAlbumListCellContentViewAtIndexPath:; >collectionAtIndexPath: | deletion, move, move from grid;
  >collectionView; >indexPathForAlbumListCellContentView: | deletion; >isPlaceholderAtIndexPath:;
  >reloadContentView
PUDeletePhotosActionController shouldSkipDeleteConfirmation
PUAlbumsGadgetViewController viewWillAppear:; >collectionView
PHCollectionList collections
PUNavigationController =navigationBar; +syncAlbums v@:; >_currentToolbarViewController | sheet of album
PUAlbumListCellContentView =layoutSubviews | padlock, count; =setEditing:animated:; +createButtons v@:;
  +askToMoveAlbum v@:; +moveAlbum v@:; +lockAlbum v@:; +unlockAlbum:withAlbum: v@:i@;
  +requestPassword: v@:i; +unlockAuthorised: v@:i;
  title | lock in strip, tick, unlock in strip, lock in list, unlock in list, padlock, count, lock button,
    move button; >_deleteButton | buttons; >_subtitleLabel; >_titleTextField; >setSubtitle: | count;
  >stackView; >subtitle | count
PUPhotosAlbumViewController shouldShowSectionHeaders;
  setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults: | move,
    return; initiallyScrolledToBottom; _removeSelectedAssetsWithCompletion: | removal;
  pu_wantsTabBarVisible; >assetCollection; >selectedAssets | move, return, removal
PXUIButton ?viewidLoad v@:; =layoutSubviews
PUZoomableGridViewController viewWillAppear: | move from grid; >selectedAssets | move from grid
PXPhotosContentController contentViewWillAppear: | move from content; >viewModel | move from content
PXCuratedLibraryUIViewController viewWillAppear: | move from library; >viewProvider | move from library
PXGadgetDataSource gadgets | sections
PXPhotoKitCollectionsDataSourceManager _containsAnyAssets:; canReorderCollection:
PUAssetViewModel wantsIrisBadgeVisible
PUOneUpSettings setDefaultMaximumZoomFactor:
CPDistributedMessagingCenter
  >.centerNamed: | lock in strip, unlock in strip, owner in strip, strip without titles, lock in list,
    unlock in list, owner in list, lock button, deletion;
  >sendMessageName:userInfo: | lock in strip, unlock in strip, owner in strip, strip without titles, lock
    in list, unlock in list, owner in list, lock button, deletion
PHAssetCollection >isTrashBin; >title
PUAlbumGadget >albumListCellContentView; >title | strip without titles
PUAlbumListCell >albumListCellContentView
PUAlbumsGadgetProvider >albumListType
PUAssetHidingHelper
  >applyHiddenState:completionHandler: | move button, move, return, move from grid, move from content,
    move from library, removal;
  >setAssets: | move button, move, return, move from grid, move from content, move from library, removal
PXCuratedLibraryViewModel >selectionManager | move from library
PXCuratedLibraryViewProvider >viewModel | move from library
PXNavigationListGadget >gadgetType | sections
PXPhotosViewModel >selectionManager | move from content
PXSectionedSelectionManager >selectionSnapshot | move from content, move from library
PXSelectionSnapshot >fetchSelectedObjects | move from content, move from library
UIDevice >_tapticEngine | tick
UIView >_viewControllerForAncestor | move button
_UITapticEngine >actuateFeedback: | tick
[com.apple.springboard]
SpringBoard applicationDidFinishLaunching: | service, saving, owner;
  +handleMessageNamed:withUserInfo: v@:@@; +authenticate:withUserInfo: v@:@@
CPDistributedMessagingCenter >.centerNamed: | service, saving, owner;
  >registerForMessageName:target:selector: | saving, owner;
  >runServerOnCurrentThread | service, saving, owner
[]
PHCollectionList collections | folders, lock in lists, switch, trash
PHFetchResult fetchedObjects
PHAsset =.fetchAssetsInAssetCollection:options: | screen, lock in fetches, hidden photos, count;
  .fetchKeyAssetsInAssetCollection:options: | lock in key photos, hidden key photos
PHAssetCollection =.fetchAssetCollectionsWithType:subtype:options:;
  estimatedAssetCount | lock in counts, count; startsAtEnd | end; keyAssetsAtEnd | key photos at end;
  >isTrashBin | trash; >title | folders, lock in lists, lock in fetches, lock in key photos, lock in counts)";

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
