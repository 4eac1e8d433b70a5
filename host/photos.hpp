#pragma once

#include <cstdint>
#include <limits>

#include "host/block.hpp"
#include "host/core_graphics.hpp"
#include "host/foundation.hpp"
#include "host/uikit.hpp"

namespace velvault12 {

/// What to fetch, and in which order. Hidden assets are left out unless it includes them.
class PHFetchOptions : public HostClass<"PHFetchOptions"> {
 public:
  using HostClass::HostClass;
  void setPredicate(NSPredicate predicate) const { send<"setPredicate:", void(NSPredicate)>(predicate); }
  void setSortDescriptors(NSArray descriptors) const {
    send<"setSortDescriptors:", void(NSArray)>(descriptors);
  }
  void setIncludeHiddenAssets(bool include) const { send<"setIncludeHiddenAssets:", void(bool)>(include); }
  static Ref<PHFetchOptions> includingHidden() {
    auto options = makeObject<PHFetchOptions>();
    options->setIncludeHiddenAssets(true);
    return options;
  }
  Ref<PHFetchOptions> copy() const { return Ref<PHFetchOptions>::adopt(send<"copy", PHFetchOptions()>()); }
};

/// What a fetch found. It is no NSArray.
template <class Element>
class PHFetchResult : public HostClass<"PHFetchResult"> {
 public:
  using HostClass::HostClass;
  NSUInteger count() const { return send<"count", NSUInteger()>(); }
  /// The index is below `count`.
  Element objectAtIndex(NSUInteger index) const { return send<"objectAtIndex:", Element(NSUInteger)>(index); }
  /// Nil when nothing was found.
  Element firstObject() const { return send<"firstObject", Element()>(); }
  Element lastObject() const { return send<"lastObject", Element()>(); }
  ListIterator<PHFetchResult> begin() const { return {*this, 0}; }
  ListIterator<PHFetchResult> end() const { return {*this, count()}; }
};

class PHCollectionList;

/// An album, a smart album or a folder.
class PHCollection : public HostClass<"PHCollection"> {
 public:
  using HostClass::HostClass;
  /// As shown; may be nil.
  NSString localizedTitle() const { return send<"localizedTitle", NSString()>(); }
  /// Nil for a folder.
  NSString title() const { return trySend<"title", NSString()>(); }
  bool isTrashBin() const { return trySend<"isTrashBin", bool()>(); }
  /// Whether assets may be put into it, or taken out: asking for a change of another one raises.
  bool allowsAddingAssets() const { return allows(EditOperation::addContent); }
  bool allowsRemovingAssets() const { return allows(EditOperation::removeContent); }
  /// The albums and folders in the folder.
  static PHFetchResult<PHCollection> fetchInFolder(PHCollectionList folder);

 private:
  enum class EditOperation : NSInteger { removeContent = 2, addContent = 3 };
  bool allows(EditOperation operation) const {
    return send<"canPerformEditOperation:", bool(EditOperation)>(operation);
  }
};

class PHAsset;

/// A folder.
class PHCollectionList : public HostClass<"PHCollectionList", PHCollection> {
 public:
  using HostClass::HostClass;
};

inline PHFetchResult<PHCollection> PHCollection::fetchInFolder(PHCollectionList folder) {
  return sendToClass<"fetchCollectionsInCollectionList:options:",
                     PHFetchResult<PHCollection>(PHCollectionList, PHFetchOptions)>(hostClass(), folder,
                                                                                    PHFetchOptions());
}

/// An album or a smart album. Lists mix them with other collections, so that these may be seen as one, too.
class PHAssetCollection : public HostClass<"PHAssetCollection", PHCollection> {
 public:
  using HostClass::HostClass;
  enum class Type : NSInteger { none = 0, album = 1, smartAlbum = 2, moment = 3 };
  enum class Subtype : NSInteger {
    none = 0,
    albumRegular = 2,
    allHidden = 205,
    userLibrary = 209,
    any = std::numeric_limits<NSInteger>::max()
  };

  /// None for another collection, such as a folder.
  Type type() const {
    return understands<"assetCollectionType">() ? send<"assetCollectionType", Type()>() : Type::none;
  }
  Subtype subtype() const {
    return understands<"assetCollectionSubtype">() ? send<"assetCollectionSubtype", Subtype()>()
                                                   : Subtype::none;
  }
  /// Whether it says that it responds to the question for its subtype. A proxy may not and answer it all the
  /// same.
  bool tellsSubtype() const { return responds<"assetCollectionSubtype">(); }

  static PHFetchResult<PHAssetCollection> fetch(Type type, Subtype subtype, PHFetchOptions options) {
    return sendToClass<"fetchAssetCollectionsWithType:subtype:options:",
                       PHFetchResult<PHAssetCollection>(Type, Subtype, PHFetchOptions)>(hostClass(), type,
                                                                                        subtype, options);
  }
  static PHFetchResult<PHAssetCollection> fetchWithLocalIdentifiers(NSArray identifiers) {
    return sendToClass<"fetchAssetCollectionsWithLocalIdentifiers:options:",
                       PHFetchResult<PHAssetCollection>(NSArray, PHFetchOptions)>(hostClass(), identifiers,
                                                                                  PHFetchOptions());
  }
  /// The albums of that type which hold the asset, never a smart album.
  static PHFetchResult<PHAssetCollection> fetchContaining(PHAsset asset, Type type);
  /// A collection of these assets that is kept nowhere, of type album. The title may be nil.
  static PHAssetCollection transient(NSArray assets, NSString title) {
    return sendToClass<"transientAssetCollectionWithAssets:title:", PHAssetCollection(NSArray, NSString)>(
        hostClass(), assets, title);
  }
  /// The user's albums that bear exactly this title, those among them that a computer keeps on the phone.
  /// None for nil, with which a predicate would raise.
  static PHFetchResult<PHAssetCollection> userAlbums(NSString title) {
    if (!title) return {};
    const auto options = PHFetchOptions::includingHidden();
    options->setPredicate(NSPredicate::make("title = %@", title));
    return fetch(Type::album, Subtype::any, options.get());
  }
};

class PHAsset : public HostClass<"PHAsset"> {
 public:
  using HostClass::HostClass;
  enum class MediaType : NSInteger { image = 1, video = 2 };

  static PHFetchResult<PHAsset> fetchWithMediaType(MediaType type, PHFetchOptions options) {
    return sendToClass<"fetchAssetsWithMediaType:options:",
                       PHFetchResult<PHAsset>(MediaType, PHFetchOptions)>(hostClass(), type, options);
  }
  static PHFetchResult<PHAsset> fetchInAssetCollection(PHAssetCollection collection, PHFetchOptions options) {
    return sendToClass<"fetchAssetsInAssetCollection:options:",
                       PHFetchResult<PHAsset>(PHAssetCollection, PHFetchOptions)>(hostClass(), collection,
                                                                                  options);
  }
  /// All that the collection holds, hidden assets as well.
  static PHFetchResult<PHAsset> fetchAllInAssetCollection(PHAssetCollection collection) {
    return fetchInAssetCollection(collection, PHFetchOptions::includingHidden().get());
  }
};

inline PHFetchResult<PHAssetCollection> PHAssetCollection::fetchContaining(PHAsset asset, Type type) {
  return sendToClass<"fetchAssetCollectionsContainingAsset:withType:options:",
                     PHFetchResult<PHAssetCollection>(PHAsset, Type, PHFetchOptions)>(hostClass(), asset,
                                                                                      type, PHFetchOptions());
}

/// To be made within a change of the photo library only; elsewhere it raises.
class PHAssetCollectionChangeRequest : public HostClass<"PHAssetCollectionChangeRequest"> {
 public:
  using HostClass::HostClass;
  static PHAssetCollectionChangeRequest create(NSString title) {
    return sendToClass<"creationRequestForAssetCollectionWithTitle:",
                       PHAssetCollectionChangeRequest(NSString)>(hostClass(), title);
  }
  /// May be nil. `assets` are those that the collection holds; none are needed where some are only added.
  static PHAssetCollectionChangeRequest change(PHAssetCollection collection, PHFetchResult<PHAsset> assets) {
    return sendToClass<"changeRequestForAssetCollection:assets:",
                       PHAssetCollectionChangeRequest(PHAssetCollection, PHFetchResult<PHAsset>)>(
        hostClass(), collection, assets);
  }
  /// Under which the new album will be known once the change is through.
  NSString createdIdentifier() const {
    return send<"placeholderForCreatedAssetCollection", Object()>().send<"localIdentifier", NSString()>();
  }
  void addAssets(NSArray assets) const { send<"addAssets:", void(NSArray)>(assets); }
  void removeAssets(NSArray assets) const { send<"removeAssets:", void(NSArray)>(assets); }
};

class PHPhotoLibrary : public HostClass<"PHPhotoLibrary"> {
 public:
  using HostClass::HostClass;
  /// Nil where the process lacks the class.
  static PHPhotoLibrary sharedPhotoLibrary() {
    return sendToClass<"sharedPhotoLibrary", PHPhotoLibrary()>(hostClass());
  }
  /// Both blocks run on the library's own queue, the completion after the change, however it went.
  void performChanges(Block<void()> changes, Block<void(bool, Object)> completion) const {
    send<"performChanges:completionHandler:", void(Block<void()>, Block<void(bool, Object)>)>(changes,
                                                                                              completion);
  }
};

class PHImageRequestOptions : public HostClass<"PHImageRequestOptions"> {
 public:
  using HostClass::HostClass;
  enum class ResizeMode : NSInteger { none = 0, fast = 1, exact = 2 };
  void setSynchronous(bool synchronous) const { send<"setSynchronous:", void(bool)>(synchronous); }
  void setResizeMode(ResizeMode mode) const { send<"setResizeMode:", void(ResizeMode)>(mode); }
};

class PHImageManager : public HostClass<"PHImageManager"> {
 public:
  using HostClass::HostClass;
  enum class ContentMode : NSInteger { aspectFit = 0, aspectFill = 1 };

  static PHImageManager defaultManager() {
    return sendToClass<"defaultManager", PHImageManager()>(hostClass());
  }
  /// The size is in pixels. A synchronous request is answered on the calling thread before this returns.
  void requestImage(PHAsset asset, CGSize size, ContentMode mode, PHImageRequestOptions options,
                    Block<void(UIImage, NSDictionary)> result) const {
    send<"requestImageForAsset:targetSize:contentMode:options:resultHandler:",
         std::int32_t(PHAsset, CGSize, ContentMode, PHImageRequestOptions,
                      Block<void(UIImage, NSDictionary)>)>(asset, size, mode, options, result);
  }
};

}  // namespace velvault12
