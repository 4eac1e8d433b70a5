#include "startup/hook_table.hpp"

#include "camera/album_chooser.hpp"
#include "camera/capture_move.hpp"
#include "camera/thumbnail.hpp"
#include "library_filter/asset_fetch.hpp"
#include "library_filter/listed_collections.hpp"
#include "photos/cells/album_view.hpp"
#include "photos/cells/albums_tab.hpp"
#include "photos/cells/collection_filter.hpp"
#include "photos/cells/move_sheet.hpp"
#include "photos/cells/shown_controllers.hpp"
#include "photos/cells/tile_buttons.hpp"
#include "photos/cells/tile_layout.hpp"
#include "photos/cells/tile_lock.hpp"
#include "photos/cells/viewer.hpp"
#include "photos/list/album_deletion.hpp"
#include "photos/list/album_selection.hpp"
#include "photos/list/appearing.hpp"
#include "photos/list/authentication_request.hpp"
#include "photos/list/list_editing.hpp"
#include "photos/list/long_press.hpp"
#include "photos/list/people_and_places.hpp"
#include "photos/list/photo_move.hpp"
#include "photos/list/return_to_main.hpp"
#include "photos/list/tabs.hpp"
#include "photos/list/tile_measures.hpp"
#include "springboard/service.hpp"

namespace velvault12 {

namespace {

constexpr HookRow kCameraHooks[] = {
    replace<captureFinished>("CAMCaptureEngine",
                             "captureOutput:didFinishCaptureForResolvedSettings:error:", "v@:@@@"),
    add<movePhoto>("CAMCaptureEngine", "movePhoto", "v@:"),
    replace<metalViewLayout>("CAMMetalView", "layoutSubviews", "v@:"),
    add<chooseAlbum>("CAMMetalView", "chooseAlbum", "v@:"),
    add<createNewAlbum>("CAMMetalView", "createNewAlbum", "v@:"),
    add<adjustRotation>("CAMMetalView", "adjustRotationToSize:", "v@:{CGSize=dd}"),
    replace<bottomBarLayout>("CAMBottomBar", "layoutSubviews", "v@:"),
    add<chooseAlbum>("CAMBottomBar", "chooseAlbum", "v@:"),
    add<createNewAlbum>("CAMBottomBar", "createNewAlbum", "v@:"),
    add<adjustRotation>("CAMBottomBar", "adjustRotationToSize:", "v@:{CGSize=dd}"),
    replace<newestThumbnail>("CAMImageWell", "thumbnailImage", "@@:"),
};

constexpr HookRow kPhotosHooks[] = {
    replace<appEnteredBackground>("PhotosApplication", "applicationDidEnterBackground:", "v@:@"),
    add<returnToMainView>("PhotosApplication", "returnToMainView", "v@:"),
    replace<excludedTabs>("PUTabbedLibraryViewController", "excludedContentModes", "@@:"),
    replace<layOutTabBar>("UITabBar", "layoutSubviews", "v@:"),
    replace<isTabBarHidden>("UITabBar", "hidden", "B@:"),
    handOn<"UITabBar", "items", NSArray()>("@@:"),
    replace<stripWillAppear>("PUHorizontalAlbumListGadget", "viewWillAppear:", "v@:B"),
    replace<stripCell>("PUHorizontalAlbumListGadget", "collectionView:cellForItemAtIndexPath:", "@@:@@"),
    replace<selectInStrip>("PUHorizontalAlbumListGadget",
                           "collectionView:didSelectItemAtIndexPath:", "v@:@@"),
    add<handleLongPress>("PUHorizontalAlbumListGadget", "handleLongPress:", "v@:@"),
    add<unlockAlbum>("PUHorizontalAlbumListGadget", "unlockAlbum:withAlbum:", "v@:i@"),
    add<requestPassword>("PUHorizontalAlbumListGadget", "requestPassword:", "v@:i"),
    add<stripUnlockAuthorised>("PUHorizontalAlbumListGadget", "unlockAuthorised:", "v@:i"),
    add<stripReloadCameraRoll>("PUHorizontalAlbumListGadget", "reloadCameraRollWithMove:", "v@:B"),
    replace<stripShowsPeople>("PUHorizontalAlbumListGadget", "showPeople", "B@:"),
    replace<stripShowsPlaces>("PUHorizontalAlbumListGadget", "showPlaces", "B@:"),
    handOn<"PUHorizontalAlbumListGadget", "titleForCollection:", NSString(PHCollection)>("@@:@"),
    handOn<"PUHorizontalAlbumListGadget", "subtitleForCollection:", NSString(PHCollection)>("@@:@"),
    replace<tileSize>("PUAlbumListCellContentViewHelper", "albumCellSize", "{CGSize=dd}@:"),
    replace<stackSize>("PUAlbumListCellContentViewHelperConfiguration", "stackSize", "{CGSize=dd}@:"),
    handOn<"PXPhotosUIViewController", "viewDidAppear:", void(bool)>("v@:B"),
    handOn<"PUSectionedGridLayout", "itemSize", CGSize()>("{CGSize=dd}@:"),
    handOn<"PUPhotoViewContentHelper", "imageContentFrame", CGRect()>("{CGRect={CGPoint=dd}{CGSize=dd}}@:"),
    replace<listWillAppear>("PUAlbumListViewController", "viewWillAppear:", "v@:B"),
    replace<listDidLayoutSubviews>("PUAlbumListViewController", "viewDidLayoutSubviews", "v@:"),
    replace<listWillBeginDragging>("PUAlbumListViewController", "scrollViewWillBeginDragging:", "v@:@"),
    replace<listCell>("PUAlbumListViewController", "collectionView:cellForItemAtIndexPath:", "@@:@@"),
    replace<selectInList>("PUAlbumListViewController", "didSelectItemAtIndexPath:", "v@:@"),
    add<handleLongPress>("PUAlbumListViewController", "handleLongPress:", "v@:@"),
    add<unlockAlbum>("PUAlbumListViewController", "unlockAlbum:withAlbum:", "v@:i@"),
    add<handleCameraTap>("PUAlbumListViewController", "handleCameraTap:", "v@:@"),
    add<returnSelectedPhotos>("PUAlbumListViewController", "returnSelectedPhotos:", "v@:B"),
    add<requestPassword>("PUAlbumListViewController", "requestPassword:", "v@:i"),
    add<listUnlockAuthorised>("PUAlbumListViewController", "unlockAuthorised:", "v@:i"),
    add<listReloadCameraRoll>("PUAlbumListViewController", "reloadCameraRollWithMove:", "v@:B"),
    replace<listShowsPeople>("PUAlbumListViewController", "showPeople", "B@:"),
    replace<listShowsPlaces>("PUAlbumListViewController", "showPlaces", "B@:"),
    replace<deleteAlbum>("PUAlbumListViewController",
                         "albumListCellContentView:performDeleteAction:", "v@:@@"),
    replace<listSetEditing>("PUAlbumListViewController", "setEditing:animated:", "v@:BB"),
    handOn<"PUAlbumListViewController", "titleForCollection:", NSString(PHCollection)>("@@:@"),
    handOn<"PUAlbumListViewController", "subtitleForCollection:", NSString(PHCollection)>("@@:@"),
    replace<listAlwaysHidesTabBar>("PUAlbumListViewController", "alwaysHideTabBar", "B@:"),
    replace<listWantsTabBar>("PUAlbumListViewController", "pu_wantsTabBarVisible", "B@:"),
    replace<skipDeleteConfirmation>("PUDeletePhotosActionController", "shouldSkipDeleteConfirmation", "B@:"),
    replace<albumsTabWillAppear>("PUAlbumsGadgetViewController", "viewWillAppear:", "v@:B"),
    replace<collectionsInPhotos>("PHCollectionList", "collections", "@@:"),
    handOn<"PUNavigationController", "navigationBar", UIView()>("@@:"),
    add<syncAlbums>("PUNavigationController", "syncAlbums", "v@:"),
    replace<layOutTile>("PUAlbumListCellContentView", "layoutSubviews", "v@:"),
    replace<tileSetEditing>("PUAlbumListCellContentView", "setEditing:animated:", "v@:BB"),
    add<createButtons>("PUAlbumListCellContentView", "createButtons", "v@:"),
    add<askToMoveAlbum>("PUAlbumListCellContentView", "askToMoveAlbum", "v@:"),
    add<moveAlbum>("PUAlbumListCellContentView", "moveAlbum", "v@:"),
    add<lockAlbum>("PUAlbumListCellContentView", "lockAlbum", "v@:"),
    add<tileUnlockAlbum>("PUAlbumListCellContentView", "unlockAlbum:withAlbum:", "v@:i@"),
    add<tileRequestPassword>("PUAlbumListCellContentView", "requestPassword:", "v@:i"),
    add<tileUnlockAuthorised>("PUAlbumListCellContentView", "unlockAuthorised:", "v@:i"),
    replace<tileTitle>("PUAlbumListCellContentView", "title", "@@:"),
    replace<shouldShowSectionHeaders>("PUPhotosAlbumViewController", "shouldShowSectionHeaders", "B@:"),
    replace<albumViewSetAlbum>(
        "PUPhotosAlbumViewController",
        "setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults:",
        "v@:@@@@"),
    replace<initiallyScrolledToBottom>("PUPhotosAlbumViewController", "initiallyScrolledToBottom", "B@:"),
    replace<removeSelectedPhotos>("PUPhotosAlbumViewController",
                                  "_removeSelectedAssetsWithCompletion:", "v@:@?"),
    replace<albumWantsTabBar>("PUPhotosAlbumViewController", "pu_wantsTabBarVisible", "B@:"),
    replace<buttonLoaded>("PXUIButton", "viewidLoad", "v@:"),
    replace<buttonLayout>("PXUIButton", "layoutSubviews", "v@:"),
    replace<gridWillAppear>("PUZoomableGridViewController", "viewWillAppear:", "v@:B"),
    replace<contentWillAppear>("PXPhotosContentController", "contentViewWillAppear:", "v@:B"),
    replace<curatedLibraryWillAppear>("PXCuratedLibraryUIViewController", "viewWillAppear:", "v@:B"),
    replace<gadgets>("PXGadgetDataSource", "gadgets", "@@:"),
    replace<containsAnyAssets>("PXPhotoKitCollectionsDataSourceManager", "_containsAnyAssets:", "B@:@"),
    replace<canReorder>("PXPhotoKitCollectionsDataSourceManager", "canReorderCollection:", "B@:@"),
    replace<wantsLiveBadge>("PUAssetViewModel", "wantsIrisBadgeVisible", "B@:"),
    replace<setMaximumZoom>("PUOneUpSettings", "setDefaultMaximumZoomFactor:", "v@:d"),
};

constexpr HookRow kSpringBoardHooks[] = {
    replace<startService>("SpringBoard", "applicationDidFinishLaunching:", "v@:@"),
    add<serveSaveArray>("SpringBoard", "handleMessageNamed:withUserInfo:", "v@:@@"),
    add<serveAuthenticate>("SpringBoard", "authenticate:withUserInfo:", "v@:@@"),
};

// Every app but the shop demonstration gets these as well. In Photos the lists of collections are replaced
// twice: what comes last is called first.
constexpr HookRow kLibraryFilterHooks[] = {
    replace<listedCollections>("PHCollectionList", "collections", "@@:"),
    handOn<"PHFetchResult", "fetchedObjects", NSArray()>("@@:"),
    replaceClassMethod<fetchAssets>("PHAsset", "fetchAssetsInAssetCollection:options:", "@@:@@"),
    replaceClassMethod<fetchKeyAssets>("PHAsset", "fetchKeyAssetsInAssetCollection:options:", "@@:@@"),
    replaceClassMethod<fetchAssetCollections>("PHAssetCollection",
                                              "fetchAssetCollectionsWithType:subtype:options:", "@@:qq@"),
    replace<estimatedAssetCount>("PHAssetCollection", "estimatedAssetCount", "Q@:"),
    replace<startsAtEnd>("PHAssetCollection", "startsAtEnd", "B@:"),
    replace<keyAssetsAtEnd>("PHAssetCollection", "keyAssetsAtEnd", "B@:"),
};

static_assert(replacementsAreDistinct(kCameraHooks));
static_assert(replacementsAreDistinct(kPhotosHooks));
static_assert(replacementsAreDistinct(kSpringBoardHooks));
static_assert(replacementsAreDistinct(kLibraryFilterHooks));

}  // namespace

std::span<const HookRow> hooksOf(HookGroup group) {
  switch (group) {
    case HookGroup::camera:
      return kCameraHooks;
    case HookGroup::photos:
      return kPhotosHooks;
    case HookGroup::springBoard:
      return kSpringBoardHooks;
    case HookGroup::none:
      return {};
  }
  return {};
}

std::span<const HookRow> libraryFilterHooks() { return kLibraryFilterHooks; }

}  // namespace velvault12
