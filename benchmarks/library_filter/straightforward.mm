// What one would write first: the file is read for every album, and every list is searched from its start.

#import "device/frameworks/Photos/Photos.h"
#include "device/frameworks/Substrate.hpp"

namespace {

NSArray* (*hostsCollections)(PHCollectionList*, SEL);
PHFetchResult* (*hostsAssets)(Class, SEL, PHAssetCollection*, PHFetchOptions*);

bool isLocked(PHCollection* collection) {
  NSArray* locked = [NSArray arrayWithContentsOfFile:@"/var/mobile/Library/velvault/lockedAlbums.plist"];
  return [locked containsObject:[collection localizedTitle]];
}

PHFetchOptions* includingHidden(PHFetchOptions* given) {
  PHFetchOptions* options = given ? [[given copy] autorelease] : [[[PHFetchOptions alloc] init] autorelease];
  [options setIncludeHiddenAssets:YES];
  return options;
}

PHFetchResult* assets(Class type, SEL selector, PHAssetCollection* album, PHFetchOptions* options) {
  if (isLocked(album)) return nil;
  return hostsAssets(type, selector, album, includingHidden(options));
}

NSArray* collections(PHCollectionList* list, SEL selector) {
  NSArray* listed = hostsCollections(list, selector);
  NSMutableArray* shown = [[listed mutableCopy] autorelease];
  for (PHCollection* each in listed) {
    if (isLocked(each)) [shown removeObject:each];
  }
  for (PHAssetCollection* album in
       [PHAssetCollection fetchAssetCollectionsWithType:PHAssetCollectionTypeAlbum
                                                subtype:PHAssetCollectionSubtypeAlbumRegular
                                                options:nil]) {
    if ([listed containsObject:album] || isLocked(album)) continue;
    NSMutableArray* all = [NSMutableArray array];
    for (PHAsset* asset in hostsAssets([PHAsset class], selector, album, includingHidden(nil)))
      [all addObject:asset];
    [shown addObject:[PHAssetCollection transientAssetCollectionWithAssets:all title:[album title]]];
  }
  return shown;
}

}  // namespace

namespace velvault12::benchmarks {

void installStraightforwardHooks() {
  MSHookMessageEx([PHCollectionList class], @selector(collections), reinterpret_cast<IMP>(collections),
                  reinterpret_cast<IMP*>(&hostsCollections));
  MSHookMessageEx(object_getClass([PHAsset class]), @selector(fetchAssetsInAssetCollection:options:),
                  reinterpret_cast<IMP>(assets), reinterpret_cast<IMP*>(&hostsAssets));
}

}  // namespace velvault12::benchmarks
