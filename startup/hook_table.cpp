#include "startup/hook_table.hpp"

#include "camera/album_chooser.hpp"
#include "camera/capture_move.hpp"
#include "camera/thumbnail.hpp"
#include "library_filter/asset_fetch.hpp"
#include "library_filter/listed_collections.hpp"
#include "photos/cells/collection_filter.hpp"
#include "photos/cells/shown_controllers.hpp"
#include "photos/cells/tile_buttons.hpp"
#include "photos/cells/tile_layout.hpp"
#include "photos/cells/tile_lock.hpp"
#include "photos/list/album_deletion.hpp"
#include "photos/list/album_selection.hpp"
#include "photos/list/appearing.hpp"
#include "photos/list/authentication_request.hpp"
#include "photos/list/list_editing.hpp"
#include "photos/list/long_press.hpp"
#include "photos/list/photo_move.hpp"
#include "photos/list/return_to_main.hpp"
#include "springboard/service.hpp"

namespace velvault12 {

namespace {

constexpr HookRow kCameraHooks[] = {
    replace<captureFinished>("CAMCaptureEngine", "captureOutput:didFinishCaptureForResolvedSettings:error:"),
    add<movePhoto>("CAMCaptureEngine", "movePhoto", "v@:"),
    replace<metalViewLayout>("CAMMetalView", "layoutSubviews"),
    add<chooseAlbum>("CAMMetalView", "chooseAlbum", "v@:"),
    add<createNewAlbum>("CAMMetalView", "createNewAlbum", "v@:"),
    add<adjustRotation>("CAMMetalView", "adjustRotationToSize:", "v@:{CGSize=dd}"),
    replace<bottomBarLayout>("CAMBottomBar", "layoutSubviews"),
    add<chooseAlbum>("CAMBottomBar", "chooseAlbum", "v@:"),
    add<createNewAlbum>("CAMBottomBar", "createNewAlbum", "v@:"),
    add<adjustRotation>("CAMBottomBar", "adjustRotationToSize:", "v@:{CGSize=dd}"),
    replace<newestThumbnail>("CAMImageWell", "thumbnailImage"),
};

constexpr HookRow kPhotosHooks[] = {
    replace<appEnteredBackground>("PhotosApplication", "applicationDidEnterBackground:"),
    add<returnToMainView>("PhotosApplication", "returnToMainView", "v@:"),
    replace<stripWillAppear>("PUHorizontalAlbumListGadget", "viewWillAppear:"),
    replace<stripCell>("PUHorizontalAlbumListGadget", "collectionView:cellForItemAtIndexPath:"),
    replace<selectInStrip>("PUHorizontalAlbumListGadget", "collectionView:didSelectItemAtIndexPath:"),
    add<handleLongPress>("PUHorizontalAlbumListGadget", "handleLongPress:", "v@:@"),
    add<unlockAlbum>("PUHorizontalAlbumListGadget", "unlockAlbum:withAlbum:", "v@:i@"),
    add<requestPassword>("PUHorizontalAlbumListGadget", "requestPassword:", "v@:i"),
    add<stripUnlockAuthorised>("PUHorizontalAlbumListGadget", "unlockAuthorised:", "v@:i"),
    add<stripReloadCameraRoll>("PUHorizontalAlbumListGadget", "reloadCameraRollWithMove:", "v@:B"),
    replace<listWillAppear>("PUAlbumListViewController", "viewWillAppear:"),
    replace<listDidLayoutSubviews>("PUAlbumListViewController", "viewDidLayoutSubviews"),
    replace<listCell>("PUAlbumListViewController", "collectionView:cellForItemAtIndexPath:"),
    replace<selectInList>("PUAlbumListViewController", "didSelectItemAtIndexPath:"),
    add<handleLongPress>("PUAlbumListViewController", "handleLongPress:", "v@:@"),
    add<unlockAlbum>("PUAlbumListViewController", "unlockAlbum:withAlbum:", "v@:i@"),
    add<handleCameraTap>("PUAlbumListViewController", "handleCameraTap:", "v@:@"),
    add<returnSelectedPhotos>("PUAlbumListViewController", "returnSelectedPhotos:", "v@:B"),
    add<requestPassword>("PUAlbumListViewController", "requestPassword:", "v@:i"),
    add<listUnlockAuthorised>("PUAlbumListViewController", "unlockAuthorised:", "v@:i"),
    add<listReloadCameraRoll>("PUAlbumListViewController", "reloadCameraRollWithMove:", "v@:B"),
    replace<deleteAlbum>("PUAlbumListViewController", "albumListCellContentView:performDeleteAction:"),
    replace<listSetEditing>("PUAlbumListViewController", "setEditing:animated:"),
    replace<skipDeleteConfirmation>("PUDeletePhotosActionController", "shouldSkipDeleteConfirmation"),
    replace<collectionsInPhotos>("PHCollectionList", "collections"),
    replace<layOutTile>("PUAlbumListCellContentView", "layoutSubviews"),
    replace<tileSetEditing>("PUAlbumListCellContentView", "setEditing:animated:"),
    add<createButtons>("PUAlbumListCellContentView", "createButtons", "v@:"),
    add<askToMoveAlbum>("PUAlbumListCellContentView", "askToMoveAlbum", "v@:"),
    add<moveAlbum>("PUAlbumListCellContentView", "moveAlbum", "v@:"),
    add<lockAlbum>("PUAlbumListCellContentView", "lockAlbum", "v@:"),
    add<tileUnlockAlbum>("PUAlbumListCellContentView", "unlockAlbum:withAlbum:", "v@:i@"),
    add<tileRequestPassword>("PUAlbumListCellContentView", "requestPassword:", "v@:i"),
    add<tileUnlockAuthorised>("PUAlbumListCellContentView", "unlockAuthorised:", "v@:i"),
    replace<tileTitle>("PUAlbumListCellContentView", "title"),
    replace<albumViewSetAlbum>(
        "PUPhotosAlbumViewController",
        "setAssetCollection:fetchResultContainingAssetCollection:filterPredicate:existingFetchResults:"),
    replace<gridWillAppear>("PUZoomableGridViewController", "viewWillAppear:"),
    replace<contentWillAppear>("PXPhotosContentController", "contentViewWillAppear:"),
    replace<curatedLibraryWillAppear>("PXCuratedLibraryUIViewController", "viewWillAppear:"),
    replace<gadgets>("PXGadgetDataSource", "gadgets"),
    replace<containsAnyAssets>("PXPhotoKitCollectionsDataSourceManager", "_containsAnyAssets:"),
    replace<canReorder>("PXPhotoKitCollectionsDataSourceManager", "canReorderCollection:"),
};

constexpr HookRow kSpringBoardHooks[] = {
    replace<startService>("SpringBoard", "applicationDidFinishLaunching:"),
    add<serveSaveArray>("SpringBoard", "handleMessageNamed:withUserInfo:", "v@:@@"),
    add<serveAuthenticate>("SpringBoard", "authenticate:withUserInfo:", "v@:@@"),
};

// Every app but the shop demonstration gets these as well. In Photos the lists of collections are replaced
// twice: what comes last is called first.
constexpr HookRow kLibraryFilterHooks[] = {
    replace<listedCollections>("PHCollectionList", "collections"),
    replace<fetchedObjects>("PHFetchResult", "fetchedObjects"),
    replaceClassMethod<fetchAssets>("PHAsset", "fetchAssetsInAssetCollection:options:"),
    replaceClassMethod<fetchKeyAssets>("PHAsset", "fetchKeyAssetsInAssetCollection:options:"),
    replaceClassMethod<fetchAssetCollections>("PHAssetCollection",
                                              "fetchAssetCollectionsWithType:subtype:options:"),
    replace<estimatedAssetCount>("PHAssetCollection", "estimatedAssetCount"),
    replace<startsAtEnd>("PHAssetCollection", "startsAtEnd"),
    replace<keyAssetsAtEnd>("PHAssetCollection", "keyAssetsAtEnd"),
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
