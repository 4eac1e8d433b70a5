// The photo library, as its database keeps it and as an app's code fetches from it.

#include "host/photos.hpp"

#include <gtest/gtest.h>

#include "tests/device/frameworks/plain_phone.hpp"
#include "tests/photo_library.hpp"

namespace velvault12 {
namespace {

using device::MediaType;
using device::PhotoDatabase;
using Assets = PHFetchResult<PHAsset>;
using Numbers = std::vector<std::int64_t>;
using Type = PHAssetCollection::Type;

class Photos : public PlainPhone {
 protected:
  Photos() { become(device::kGallery); }

  std::int64_t addTo(std::int64_t album, const device::AssetRow& asset) {
    const std::int64_t added = library_.addAsset(asset);
    library_.addToAlbum(added, album);
    return added;
  }

  static Numbers numbersOf(Assets assets) {
    Numbers all;
    for (const Object each : assets) all.push_back(std::stoll(ask<"localIdentifier", NSString>(each).utf8()));
    return all;
  }
  static Numbers allIn(PHAssetCollection album) {
    return numbersOf(PHAsset::fetchAllInAssetCollection(album));
  }
  static Numbers in(PHAssetCollection album, PHFetchOptions options) {
    return numbersOf(PHAsset::fetchInAssetCollection(album, options));
  }
  static auto fetch(Type type) { return PHAssetCollection::fetch(type, PHAssetCollection::Subtype::any, {}); }

  PhotoDatabase library_ = phone_.photoLibrary();
};

TEST_F(Photos, AnAssetIsInAnAlbumOnceAndOutlivesIt) {
  const auto trips = library_.addFolder("Trips");
  const auto fjords = library_.addAlbum("Fjords", trips);
  const auto asset = addTo(fjords, {});
  library_.addToAlbum(asset, fjords);
  EXPECT_EQ(library_.assetsInAlbum(fjords).size(), 1u);
  EXPECT_THROW(library_.addToAlbum(asset, 99), std::runtime_error);
  library_.removeCollection(trips);
  EXPECT_TRUE(library_.albumsContaining(asset).empty());
  EXPECT_EQ(library_.allAssets().size(), 1u);
}

TEST_F(Photos, CollectionsHoldWhatTheirKindAsksFor) {
  constexpr double kDay = 86'400;
  const auto late = library_.addAsset({.creationDate = kDay + 1});
  const auto hidden = library_.addAsset({.creationDate = 3, .isHidden = true, .isFavorite = true});
  const auto video = library_.addAsset({.mediaType = MediaType::video, .creationDate = 2});
  const auto panorama = library_.addAsset({.creationDate = 4, .smartSubtype = 201});
  const auto imported =
      addTo(library_.addAlbum("Pets"), {.creationDate = -1, .smartSubtype = device::kImported});
  library_.addAsset({.creationDate = 9 * kDay, .isHidden = true, .smartSubtype = 213});
  const std::pair<NSInteger, Numbers> contents[] = {
      {203, {hidden}}, {202, {video}}, {201, {panorama}}, {200, {}}, {210, {}}};
  for (const auto& [subtype, assets] : contents) EXPECT_EQ(allIn(smartAlbum(subtype)), assets) << subtype;
  EXPECT_EQ(in(smartAlbum(209), {}), (Numbers{imported, video, panorama, late})) << "oldest first";
  EXPECT_EQ(numbersOf(keyAssetsOf(smartAlbum(209))), (Numbers{video, panorama, late})) << "its newest";
  EXPECT_EQ(allIn(fetch(Type{9}).firstObject()), Numbers{imported});
  const auto moments = fetch(Type::moment);
  ASSERT_EQ(moments.count(), 3u) << "the days on which something is shown";
  EXPECT_EQ(allIn(moments.objectAtIndex(1)), (Numbers{video, hidden, panorama}));

  library_.addAlbum("Empty");
  EXPECT_FALSE(keyAssetsOf(albumNamed("Empty"))) << "nothing stands for it";
  const PHAsset first = PHAsset::fetchInAssetCollection(smartAlbum(209), {}).firstObject();
  EXPECT_EQ(PHAssetCollection::fetchContaining(first, Type::smartAlbum).count(), 0u);
}

TEST_F(Photos, ATransientAlbumKeepsItsOrderAndCopiedOptionsStay) {
  for (const double date : {1, 2, 3}) library_.addAsset({.creationDate = date, .isHidden = date == 1});
  const auto options = makeObject<PHFetchOptions>();
  options->setIncludeHiddenAssets(true);
  options->setSortDescriptors(NSArray::of(NSSortDescriptor::make("creationDate", false)));
  const auto copy = options->copy();
  options->setIncludeHiddenAssets(false);
  options->setSortDescriptors({});
  EXPECT_EQ(in(smartAlbum(209), copy.get()), (Numbers{3, 2, 1}));
  const auto assets = elementsOf(PHAsset::fetchInAssetCollection(smartAlbum(209), copy.get()));
  const auto made = PHAssetCollection::transient(assets.get(), NSString::from("Made"));
  library_.removeAsset(2);
  EXPECT_EQ(allIn(made), (Numbers{3, 1}));
}

}  // namespace
}  // namespace velvault12
