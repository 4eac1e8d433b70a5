#import "device/frameworks/Photos/PHChangeRequest.h"

#include <stdexcept>

#include "device/frameworks/Foundation/property_list.hpp"
#import "device/frameworks/Photos/PHPhotoLibrary.h"
#include "device/frameworks/Photos/photo_database.hpp"

using device::PhotoDatabase;

namespace {

void requestRemoval(id<NSFastEnumeration> collections) {
  auto& requests = [PHPhotoLibrary _requests];
  for (PHCollection* collection in collections) {
    if (![collection canPerformEditOperation:PHCollectionEditOperationDelete]) {
      [NSException raise:NSInvalidArgumentException format:@"Cannot delete %@", [collection localizedTitle]];
    }
    requests.push_back(
        [removed = [collection _identifier]](PhotoDatabase& library) { library.removeCollection(removed); });
  }
}

}  // namespace

@implementation PHObjectPlaceholder
@end

@implementation PHChangeRequest

- (id)init {
  [PHPhotoLibrary _requests];
  return [super init];
}

@end

@implementation PHAssetCollectionChangeRequest

@synthesize placeholderForCreatedAssetCollection = _placeholderForCreatedAssetCollection;

+ (PHAssetCollectionChangeRequest*)creationRequestForAssetCollectionWithTitle:(NSString*)title {
  PHAssetCollectionChangeRequest* request = [[[self alloc] init] autorelease];
  const std::int64_t album = device::sharedPhotoDatabase().reserveAlbum();
  request->_album = album;
  request->_placeholderForCreatedAssetCollection = [[PHObjectPlaceholder alloc]
      _initWithLocalIdentifier:[PHAssetCollection _localIdentifierOfAlbum:album]];
  [PHPhotoLibrary _requests].push_back([album, text = device::utf8(title)](PhotoDatabase& library) {
    library.addCollection({.identifier = album, .title = text});
  });
  return request;
}

+ (PHAssetCollectionChangeRequest*)changeRequestForAssetCollection:(PHAssetCollection*)collection
                                                            assets:(PHFetchResult*)assets {
  PHAssetCollectionChangeRequest* request = [[[self alloc] init] autorelease];
  if (![collection canPerformEditOperation:PHCollectionEditOperationAddContent]) {
    [NSException raise:NSInvalidArgumentException
                format:@"Cannot change the content of %@", [collection localizedTitle]];
  }
  const std::int64_t album = [collection _identifier];
  request->_album = album;
  [PHPhotoLibrary _requests].push_back([album](PhotoDatabase& library) {
    if (!library.collection(album)) throw std::runtime_error("photo library: no such album any more");
  });
  return request;
}

- (void)dealloc {
  [_placeholderForCreatedAssetCollection release];
  [super dealloc];
}

- (void)addAssets:(id<NSFastEnumeration>)assets {
  auto& requests = [PHPhotoLibrary _requests];
  for (PHAsset* asset in assets) {
    requests.push_back([added = [asset _identifier], album = _album](PhotoDatabase& library) {
      library.addToAlbum(added, album);
    });
  }
}

- (void)removeAssets:(id<NSFastEnumeration>)assets {
  auto& requests = [PHPhotoLibrary _requests];
  for (PHAsset* asset in assets) {
    requests.push_back([removed = [asset _identifier], album = _album](PhotoDatabase& library) {
      library.removeFromAlbum(removed, album);
    });
  }
}

+ (void)deleteAssetCollections:(id<NSFastEnumeration>)collections {
  requestRemoval(collections);
}

@end

@implementation PHCollectionListChangeRequest

+ (void)deleteCollectionLists:(id<NSFastEnumeration>)lists {
  requestRemoval(lists);
}

@end

@implementation PHAssetChangeRequest

@synthesize hidden = _hidden;

+ (PHAssetChangeRequest*)changeRequestForAsset:(PHAsset*)asset {
  PHAssetChangeRequest* request = [[[self alloc] init] autorelease];
  request->_asset = [asset _identifier];
  request->_hidden = [asset isHidden];
  return request;
}

- (void)setHidden:(BOOL)hidden {
  _hidden = hidden;
  [PHPhotoLibrary _requests].push_back(
      [asset = _asset, hidden](PhotoDatabase& library) { library.setHidden(asset, hidden); });
}

+ (void)deleteAssets:(id<NSFastEnumeration>)assets {
  auto& requests = [PHPhotoLibrary _requests];
  for (PHAsset* asset in assets) {
    requests.push_back(
        [removed = [asset _identifier]](PhotoDatabase& library) { library.removeAsset(removed); });
  }
}

@end
