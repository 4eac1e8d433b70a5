#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace SQLite {
class Database;
}

namespace device {

/// Where an iPhone keeps its photo library's database.
inline constexpr std::string_view kPhotoDatabasePath = "/var/mobile/Media/PhotoData/Photos.sqlite";

enum class MediaType : int { image = 1, video = 2 };

/// No smart album's subtype: the import history has that of People.
inline constexpr std::int64_t kImported = 9;

struct AssetRow {
  std::int64_t identifier = 0;
  MediaType mediaType = MediaType::image;
  /// Seconds since 1970.
  double creationDate = 0;
  bool isHidden = false;
  bool isFavorite = false;
  /// The subtype of a smart album that the asset belongs to besides those computed (such as 201 for a
  /// panorama), 0 for none; `kImported` for one that the import history holds.
  std::int64_t smartSubtype = 0;
  /// The colour that stands for the asset's pixels, 0xRRGGBB.
  std::uint32_t color = 0;
};

/// A user album, or a folder that holds albums and folders.
struct CollectionRow {
  std::int64_t identifier = 0;
  std::string title;
  bool isFolder = false;
  /// The folder that holds it, 0 at the top level.
  std::int64_t parent = 0;
  /// An album's: 2 for one of the phone's own, 5 for one that a computer synced to it, 101 for a shared one.
  std::int64_t subtype = 2;
};

/// The photo library's database, shared by all processes of a device: each change is one transaction of
/// its own unless made in a larger one, and every process sees it at its next fetch. A connection is for one
/// thread.
class PhotoDatabase {
 public:
  /// Opens the database, making an empty one (and its folder) where there is none. Throws std::runtime_error.
  explicit PhotoDatabase(const std::filesystem::path& file);

  std::int64_t addAlbum(std::string_view title, std::int64_t folder = 0);
  std::int64_t addFolder(std::string_view title, std::int64_t folder = 0);
  std::int64_t addSyncedAlbum(std::string_view title);
  /// Answers the row's identifier, a new one where it has none.
  std::int64_t addCollection(const CollectionRow& row);
  /// The identifier of an album to come, which nothing else will get.
  std::int64_t reserveAlbum();
  /// The row's own identifier is ignored; answers the new one.
  std::int64_t addAsset(const AssetRow& asset);
  void addToAlbum(std::int64_t asset, std::int64_t album);
  void removeFromAlbum(std::int64_t asset, std::int64_t album);
  void setHidden(std::int64_t asset, bool hidden);
  /// It leaves its albums as well.
  void removeAsset(std::int64_t asset);
  void renameCollection(std::int64_t collection, std::string_view title);
  /// A folder's contents go with it; assets stay in the library.
  void removeCollection(std::int64_t collection);

  /// Performs changes of this database as one transaction. What they throw takes all of them back; its text
  /// is answered.
  std::optional<std::string> tryTransaction(const std::function<void()>& changes);

  /// In the order in which they were added.
  std::vector<CollectionRow> collections(std::int64_t folder = 0) const;
  std::vector<CollectionRow> allAlbums() const;
  std::optional<CollectionRow> collection(std::int64_t identifier) const;
  std::optional<AssetRow> asset(std::int64_t identifier) const;
  /// Oldest first, hidden ones included.
  std::vector<AssetRow> allAssets() const;
  std::vector<AssetRow> assetsInAlbum(std::int64_t album) const;
  /// In the order in which the albums were added.
  std::vector<CollectionRow> albumsContaining(std::int64_t asset) const;

 private:
  std::shared_ptr<SQLite::Database> database_;
};

/// The photo library of the phone whose app this process is. Each thread has a connection of its own, opened
/// when first asked for.
PhotoDatabase& sharedPhotoDatabase();

}  // namespace device
