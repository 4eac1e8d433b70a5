// What an app asks the photo library to change, and the pictures that it asks for.

#include <gtest/gtest.h>

#include <thread>

#include "host/photos.hpp"
#include "host/photos_ui.hpp"
#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

using Work = std::function<void()>;
using Request = PHAssetCollectionChangeRequest;

class PhotoChanges : public PlainPhone {
 protected:
  PhotoChanges() { become(device::kGallery); }

  static void perform(Work requests, Block<void(bool, Object)> completion = {}) {
    PHPhotoLibrary::sharedPhotoLibrary().performChanges(block<void()>(requests), completion);
  }
  // Waits for the end of the change: "" for success. `then` runs in the completion handler.
  static std::string change(Work requests, Work then = {}) {
    std::optional<std::string> end;
    perform(requests, block<void(bool, Object)>([&](bool succeeded, Object error) {
              if (then) then();
              const std::string text = succeeded ? "" : "failed: " + ask<"domain", NSString>(error).utf8();
              runOnMainQueue([&end, text] { end = text; });
            }));
    EXPECT_TRUE(soon([&] { return end.has_value(); }));
    return end.value_or("never ended");
  }

  static Request create(std::string_view title) { return Request::create(NSString::from(title)); }
  static Request changeOf(PHAssetCollection album) { return Request::change(album, {}); }
  static Object changeOfPhoto() {
    return ask<"changeRequestForAsset:", Object>(hostType<"PHAssetChangeRequest">(), photos().firstObject());
  }
  static PHAssetCollection album(std::string_view identifier) {
    return PHAssetCollection::fetchWithLocalIdentifiers(NSArray::from({std::string(identifier)}))
        .firstObject();
  }
  static PHAssetCollection album(std::int64_t number) { return album(std::to_string(number) + "/L0/040"); }
  // All that are not hidden.
  static PHFetchResult<PHAsset> photos() {
    return PHAsset::fetchWithMediaType(PHAsset::MediaType::image, {});
  }
  bool isHidden() const { return library_.allAssets().front().isHidden; }

  device::PhotoDatabase library_ = phone_.photoLibrary();
  const std::int64_t pets_ = library_.addAlbum("Pets");
  const std::int64_t photo_ = library_.addAsset({});
};

TEST_F(PhotoChanges, AreMadeAfterTheirBlockOnTheLibrarysThread) {
  library_.addToAlbum(photo_, pets_);
  std::string identifier;
  std::thread::id thread;
  const auto requests = [&] {
    thread = std::this_thread::get_id();
    const Request request = create("Trips");
    identifier = request.createdIdentifier().utf8();
    ask<"addAssets:">(request, photos());
    ask<"removeAssets:">(changeOf(album(pets_)), photos());
    EXPECT_EQ(albums(), Titles{"Pets"});
  };
  const auto then = [&] {
    EXPECT_EQ(std::this_thread::get_id(), thread);
    EXPECT_EQ(album(identifier).localizedTitle().utf8(), "Trips") << "made by then";
  };
  EXPECT_EQ(change(requests, then), "");
  EXPECT_NE(thread, std::this_thread::get_id());
  EXPECT_TRUE(library_.assetsInAlbum(pets_).empty());
  EXPECT_EQ(library_.albumsContaining(photo_).size(), 1u);
}

TEST_F(PhotoChanges, ThatFailAreTakenBackAsAWhole) {
  const auto gone = library_.addAlbum("Gone");
  const auto fetched = album(gone);
  const auto others = [&] {
    create("New");
    ask<"addAssets:">(changeOf(album(pets_)), photos());
    ask<"setHidden:">(changeOfPhoto(), true);
  };
  // It goes meanwhile, and then is gone before.
  for (int round = 0; round < 2; ++round) {
    const auto requests = [&] {
      others();
      changeOf(fetched);
      library_.removeCollection(gone);
    };
    EXPECT_EQ(change(requests), "failed: PHPhotosErrorDomain");
    EXPECT_EQ(albums(), Titles{"Pets"});
    EXPECT_TRUE(library_.assetsInAlbum(pets_).empty());
    EXPECT_FALSE(isHidden());
  }
  EXPECT_EQ(change(others), "");
  EXPECT_EQ(albums(), (Titles{"Pets", "New"}));
  EXPECT_EQ(library_.assetsInAlbum(pets_).size(), 1u);
  EXPECT_TRUE(isHidden());
}

TEST_F(PhotoChanges, RaiseWhereAPhoneRaises) {
  const auto synced = library_.addSyncedAlbum("Synced");
  Ref<Request> kept;
  const auto requestsRaise = [&] {
    return raises([] { create("New"); }) && raises([&] { changeOf(album(pets_)); }) &&
           raises([] { changeOfPhoto(); }) &&
           raises([] { ask<"deleteAssets:">(hostType<"PHAssetChangeRequest">(), photos()); }) &&
           (!kept || raises([&] { ask<"addAssets:">(kept.get(), photos()); }));
  };
  const auto requests = [&] {
    EXPECT_TRUE(raises([] { perform([] {}); }));
    EXPECT_TRUE(raises([&] { changeOf(album(synced)); }));
    EXPECT_TRUE(raises([&] {
      sendToClass<"deleteAssetCollections:", void(NSArray)>(Request::hostClass(), NSArray::of(album(synced)));
    }));
    EXPECT_TRUE(raises([] { changeOf(album("smart-203/L0/040")); }));
    kept = Ref<Request>(changeOf(album(pets_)));
  };
  EXPECT_TRUE(requestsRaise());
  EXPECT_EQ(change(requests, [&] { EXPECT_TRUE(requestsRaise()); }), "");
  EXPECT_EQ(albums(), (Titles{"Pets", "Synced"}));
  const auto set = ask<"setWithObject:", NSArray>(hostType<"NSSet">(), photos().firstObject());
  EXPECT_TRUE(raises([&] { PUAssetHidingHelper::apply(true, set); })) << "no array";
}

TEST_F(PhotoChanges, PicturesComeLaterAndNotExactUnlessToldOtherwise) {
  using Resize = PHImageRequestOptions::ResizeMode;
  using Size = std::pair<double, double>;
  Size delivered;
  const auto options = makeObject<PHImageRequestOptions>();
  const auto request = [&] {
    delivered = {};
    const auto deliver = [&](UIImage image, NSDictionary) {
      const auto size = ask<"size", CGSize>(image);
      delivered = {size.width, size.height};
    };
    PHImageManager::defaultManager().requestImage(photos().firstObject(), {100, 100},
                                                  PHImageManager::ContentMode::aspectFit, options.get(),
                                                  block<void(UIImage, NSDictionary)>(deliver));
    return delivered;
  };
  EXPECT_EQ(request(), Size());
  EXPECT_TRUE(soon([&] { return delivered == Size(80, 104); }));
  options->setSynchronous(true);
  options->setResizeMode(Resize::exact);
  EXPECT_EQ(request(), Size(75, 100));
  options->setResizeMode(Resize::none);
  EXPECT_EQ(request(), Size(3024, 4032));
}

}  // namespace
}  // namespace velvault12
