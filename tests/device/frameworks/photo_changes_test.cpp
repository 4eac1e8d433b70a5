// What an app asks the photo library to change, and the pictures that it asks for.

#include <gtest/gtest.h>

#include <future>
#include <thread>

#include "host/photos.hpp"
#include "host/photos_ui.hpp"
#include "tests/device/frameworks/plain_phone.hpp"

namespace velvault12 {
namespace {

using Work = std::function<void()>;
using Completion = std::function<void(bool, Object)>;
using Request = PHAssetCollectionChangeRequest;

class PhotoChanges : public PlainPhone {
 protected:
  PhotoChanges() { device::become({phone_.folder(), std::string(device::kGallery)}); }

  static void perform(Work requests, Completion completion = {}) {
    using Handler = Block<void(bool, Object)>;
    auto handler = block<void(bool, Object)>(completion);
    PHPhotoLibrary::sharedPhotoLibrary().performChanges(block<void()>(requests),
                                                        completion ? Handler(handler) : Handler());
  }
  // Waits for the end of the change: "" for success. `then` runs in the completion handler.
  static std::string change(
      Work requests, Work then = [] {}) {
    std::optional<std::string> end;
    perform(requests, [&](bool succeeded, Object error) {
      then();
      const std::string text = succeeded ? "" : "failed: " + ask<"domain", NSString>(error).utf8();
      runOnMainQueue([&end, text] { end = text; });
    });
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
  Titles titles() const {
    Titles all;
    for (const auto& row : library_.allAlbums()) all.push_back(row.title);
    return all;
  }
  bool isHidden() const { return library_.allAssets().front().isHidden; }

  device::PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(PhotoChanges, AreMadeAfterTheirBlockOnTheLibrarysThread) {
  const auto pets = library_.addAlbum("Pets");
  const auto photo = library_.addAsset({});
  library_.addToAlbum(photo, pets);
  std::string identifier, made;
  std::thread::id thread;
  const auto requests = [&] {
    thread = std::this_thread::get_id();
    const Request request = create("Trips");
    identifier = request.createdIdentifier().utf8();
    ask<"addAssets:">(request, photos());
    ask<"removeAssets:">(changeOf(album(pets)), photos());
    EXPECT_EQ(titles(), Titles{"Pets"});
  };
  const auto then = [&] {
    EXPECT_EQ(std::this_thread::get_id(), thread);
    made = album(identifier).localizedTitle().utf8();
  };
  EXPECT_EQ(change(requests, then), "");
  EXPECT_NE(thread, std::this_thread::get_id());
  EXPECT_EQ(made, "Trips");
  const auto holding = library_.albumsContaining(photo);
  ASSERT_EQ(holding.size(), 1u);
  EXPECT_EQ(holding.front().title, "Trips");
}

TEST_F(PhotoChanges, ThatFailAreTakenBackAsAWhole) {
  const auto pets = library_.addAlbum("Pets"), gone = library_.addAlbum("Gone");
  library_.addAsset({});
  const auto fetched = album(gone);
  const auto others = [&] {
    create("New");
    ask<"addAssets:">(changeOf(album(pets)), photos());
    ask<"setHidden:">(changeOfPhoto(), true);
  };
  const auto goesMeanwhile = [&] {
    others();
    ask<"removeAssets:">(changeOf(fetched), photos());
    library_.removeCollection(gone);
  };
  const auto isGone = [&] {
    others();
    ask<"addAssets:">(changeOf(fetched), photos());
  };
  for (const Work& requests : {Work(goesMeanwhile), Work(isGone)}) {
    EXPECT_EQ(change(requests), "failed: PHPhotosErrorDomain");
    EXPECT_EQ(titles(), Titles{"Pets"});
    EXPECT_TRUE(library_.assetsInAlbum(pets).empty());
    EXPECT_FALSE(isHidden());
  }
  EXPECT_EQ(change(others), "");
  EXPECT_EQ(titles(), (Titles{"Pets", "New"}));
  EXPECT_EQ(library_.assetsInAlbum(pets).size(), 1u);
  EXPECT_TRUE(isHidden());
}

TEST_F(PhotoChanges, ComeInTheOrderOfTheirCalls) {
  Titles order;
  std::promise<void> allAreAsked;
  bool isOver = false;
  const auto note = [&order](const std::string& text) { return [&order, text] { order.push_back(text); }; };
  perform([&] { allAreAsked.get_future().wait(); });
  perform(note("first"), [&](bool, Object) {
    order.push_back("first is over");
    perform(note("third"), [&](bool, Object) { runOnMainQueue([&isOver] { isOver = true; }); });
  });
  perform(note("second"));
  allAreAsked.set_value();
  EXPECT_TRUE(soon([&] { return isOver; }));
  EXPECT_EQ(order, (Titles{"first", "first is over", "second", "third"}));
}

TEST_F(PhotoChanges, RaiseWhereAPhoneRaises) {
  const auto pets = library_.addAlbum("Pets"), synced = library_.addSyncedAlbum("Synced");
  library_.addAsset({});
  Ref<Request> kept;
  const auto requestsRaise = [&] {
    return raises([] { create("New"); }) && raises([&] { changeOf(album(pets)); }) &&
           raises([] { changeOfPhoto(); }) &&
           (!kept || raises([&] { ask<"addAssets:">(kept.get(), photos()); }));
  };
  const auto requests = [&] {
    EXPECT_TRUE(raises([] { perform([] {}); }));
    EXPECT_TRUE(raises([&] { changeOf(album(synced)); }));
    EXPECT_TRUE(raises([] { changeOf(album("smart-203/L0/040")); }));
    kept = Ref<Request>(changeOf(album(pets)));
  };
  EXPECT_TRUE(requestsRaise());
  EXPECT_EQ(change(requests, [&] { EXPECT_TRUE(requestsRaise()); }), "");
  EXPECT_EQ(titles(), (Titles{"Pets", "Synced"}));
}

TEST_F(PhotoChanges, HideAssetsAndShowThemAgain) {
  library_.addAsset({});
  const auto apply = [](Object assets, bool hidden) {
    bool isOver = false;
    auto end = block<void()>([&] { runOnMainQueue([&isOver] { isOver = true; }); });
    const auto helper = makeObject<PUAssetHidingHelper>();
    ask<"setAssets:">(helper.get(), assets);
    ask<"applyHiddenState:completionHandler:">(helper.get(), hidden, Block<void()>(end));
    EXPECT_TRUE(soon([&] { return isOver; }));
  };
  const Object all = ask<"fetchedObjects", Object>(photos());
  apply(all, true);
  EXPECT_TRUE(isHidden());
  apply(Object(), false);
  EXPECT_TRUE(isHidden());
  apply(all, false);
  EXPECT_FALSE(isHidden());
  const auto set = ask<"setWithArray:", Object>(hostType<"NSSet">(), all);
  EXPECT_TRUE(raises([&] { apply(set, true); })) << "no array";
}

TEST_F(PhotoChanges, DeleteWhatTheOwnerMayDelete) {
  const auto pets = library_.addAlbum("Pets"), synced = library_.addSyncedAlbum("Synced");
  const auto trips = library_.addFolder("Trips");
  library_.addAlbum("Fjords", trips);
  library_.addToAlbum(library_.addAsset({}), pets);
  library_.addToAlbum(library_.addAsset({.isHidden = true}), pets);
  const auto in = [](Object object) {
    return ask<"arrayWithObject:", Object>(hostType<"NSArray">(), object);
  };
  const auto deleteAlbum = [&](std::int64_t number) {
    ask<"deleteAssetCollections:">(hostType<"PHAssetCollectionChangeRequest">(), in(album(number)));
  };
  const auto topLevel = ask<"fetchTopLevelUserCollectionsWithOptions:", PHFetchResult<PHCollection>>(
      hostType<"PHCollection">(), Object());
  const auto deletePhotos = [&] { ask<"deleteAssets:">(hostType<"PHAssetChangeRequest">(), photos()); };
  const auto deleteFolder = [&] {
    ask<"deleteCollectionLists:">(hostType<"PHCollectionListChangeRequest">(), in(topLevel.lastObject()));
  };
  EXPECT_EQ(change([&] { EXPECT_TRUE(raises([&] { deleteAlbum(synced); })); }), "");
  EXPECT_TRUE(raises(deletePhotos)) << "outside of a change";
  EXPECT_EQ(change(deletePhotos), "");
  EXPECT_EQ(library_.allAssets().size(), 1u);
  EXPECT_TRUE(isHidden()) << "it was not among them";
  EXPECT_EQ(library_.assetsInAlbum(pets).size(), 1u);
  EXPECT_EQ(change([&] { deleteAlbum(pets), deleteFolder(); }), "");
  EXPECT_EQ(titles(), Titles{"Synced"});
  EXPECT_EQ(library_.allAssets().size(), 1u);
}

TEST_F(PhotoChanges, PicturesHaveTheSizeAskedFor) {
  using Mode = PHImageManager::ContentMode;
  using Resize = PHImageRequestOptions::ResizeMode;
  library_.addAsset({.creationDate = 1'588'334'400});
  std::vector<std::pair<double, double>> sizes;
  const auto request = [&](CGSize target, Mode mode, const Ref<PHImageRequestOptions>& options) {
    PHImageManager::defaultManager().requestImage(
        photos().firstObject(), target, mode, options.get(),
        block<void(UIImage, NSDictionary)>([&](UIImage image, NSDictionary) {
          const auto size = ask<"size", CGSize>(image);
          sizes.emplace_back(size.width, size.height);
          EXPECT_EQ((ask<"_name", NSString>(image).utf8()), "Photo, 2020-05-01 12:00:00");
        }));
  };
  const auto options = makeObject<PHImageRequestOptions>();
  options->setSynchronous(true);
  request({100, 100}, Mode::aspectFit, options);
  options->setResizeMode(Resize::exact);
  request({100, 100}, Mode::aspectFit, options);
  request({75, 75}, Mode::aspectFill, options);
  options->setResizeMode(Resize::none);
  request({75, 75}, Mode::aspectFill, options);
  using Sizes = decltype(sizes);
  EXPECT_EQ(sizes, (Sizes{{80, 104}, {75, 100}, {75, 100}, {3024, 4032}})) << "fast unless told otherwise";

  request({100, 100}, Mode::aspectFit, {});
  EXPECT_EQ(sizes.size(), 4u) << "later, unless it is told to be synchronous";
  EXPECT_TRUE(soon([&] { return sizes.size() == 5; }));
}

}  // namespace
}  // namespace velvault12
