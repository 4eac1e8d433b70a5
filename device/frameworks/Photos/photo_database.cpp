#include "device/frameworks/Photos/photo_database.hpp"

#include <SQLiteCpp/SQLiteCpp.h>
#include <SQLiteCpp/VariadicBind.h>

#include <utility>

#include "device/system/disk.hpp"

namespace device {
namespace {

constexpr const char* kSchema = R"(
  PRAGMA foreign_keys = ON;
  BEGIN IMMEDIATE;
  CREATE TABLE IF NOT EXISTS collection(
    identifier INTEGER PRIMARY KEY AUTOINCREMENT,
    title TEXT NOT NULL,
    isFolder INTEGER NOT NULL,
    parent INTEGER REFERENCES collection ON DELETE CASCADE,
    subtype INTEGER NOT NULL);
  CREATE TABLE IF NOT EXISTS asset(
    identifier INTEGER PRIMARY KEY AUTOINCREMENT,
    mediaType INTEGER NOT NULL,
    creationDate REAL NOT NULL,
    isHidden INTEGER NOT NULL,
    isFavorite INTEGER NOT NULL,
    smartSubtype INTEGER NOT NULL,
    color INTEGER NOT NULL);
  CREATE TABLE IF NOT EXISTS membership(
    asset INTEGER NOT NULL REFERENCES asset ON DELETE CASCADE,
    album INTEGER NOT NULL REFERENCES collection ON DELETE CASCADE,
    PRIMARY KEY(asset, album));
  CREATE INDEX IF NOT EXISTS membershipByAlbum ON membership(album);
  CREATE INDEX IF NOT EXISTS collectionByParent ON collection(parent);
  COMMIT;
)";

constexpr const char* kCollectionColumns =
    "SELECT identifier, title, isFolder, ifnull(parent, 0), subtype FROM collection ";
constexpr const char* kAssetColumns =
    "SELECT identifier, mediaType, creationDate, isHidden, isFavorite, smartSubtype, color FROM asset ";
constexpr const char* kOldestFirst = " ORDER BY creationDate, identifier";

/// Prepares a statement with its parameters bound in order.
template <class... Parameters>
SQLite::Statement prepare(const SQLite::Database& database, const std::string& sql,
                          const Parameters&... parameters) {
  SQLite::Statement statement(database, sql);
  SQLite::bind(statement, parameters...);
  return statement;
}

template <class... Parameters>
std::vector<CollectionRow> readCollections(const SQLite::Database& database, const std::string& condition,
                                           const Parameters&... parameters) {
  std::vector<CollectionRow> rows;
  SQLite::Statement row =
      prepare(database, kCollectionColumns + condition + " ORDER BY identifier", parameters...);
  while (row.executeStep()) {
    rows.push_back({.identifier = row.getColumn(0),
                    .title = row.getColumn(1),
                    .isFolder = row.getColumn(2).getInt() != 0,
                    .parent = row.getColumn(3),
                    .subtype = row.getColumn(4)});
  }
  return rows;
}

template <class... Parameters>
std::vector<AssetRow> readAssets(const SQLite::Database& database, const std::string& condition,
                                 const Parameters&... parameters) {
  std::vector<AssetRow> rows;
  SQLite::Statement row = prepare(database, kAssetColumns + condition + kOldestFirst, parameters...);
  while (row.executeStep()) {
    rows.push_back({.identifier = row.getColumn(0),
                    .mediaType = static_cast<MediaType>(row.getColumn(1).getInt()),
                    .creationDate = row.getColumn(2),
                    .isHidden = row.getColumn(3).getInt() != 0,
                    .isFavorite = row.getColumn(4).getInt() != 0,
                    .smartSubtype = row.getColumn(5),
                    .color = row.getColumn(6)});
  }
  return rows;
}

}  // namespace

PhotoDatabase::PhotoDatabase(const std::filesystem::path& file) {
  std::filesystem::create_directories(file.parent_path());
  constexpr int kBusyTimeoutMilliseconds = 60'000;
  database_ = std::make_shared<SQLite::Database>(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE,
                                                 kBusyTimeoutMilliseconds);
  database_->exec(kSchema);
}

std::int64_t PhotoDatabase::addAlbum(std::string_view title, std::int64_t folder) {
  return addCollection({.title = std::string(title), .parent = folder});
}

std::int64_t PhotoDatabase::addFolder(std::string_view title, std::int64_t folder) {
  return addCollection({.title = std::string(title), .isFolder = true, .parent = folder});
}

std::int64_t PhotoDatabase::addSyncedAlbum(std::string_view title) {
  return addCollection({.title = std::string(title), .subtype = 5});
}

std::int64_t PhotoDatabase::addCollection(const CollectionRow& row) {
  prepare(*database_,
          "INSERT INTO collection(identifier, title, isFolder, parent, subtype) "
          "VALUES(nullif(?, 0), ?, ?, nullif(?, 0), ?)",
          row.identifier, row.title, row.isFolder, row.parent, row.subtype)
      .exec();
  return database_->getLastInsertRowid();
}

std::int64_t PhotoDatabase::reserveAlbum() {
  // The database gives no identifier twice, not even that of a row that is gone.
  SQLite::Transaction transaction(*database_, SQLite::TransactionBehavior::IMMEDIATE);
  const std::int64_t reserved = addAlbum("");
  removeCollection(reserved);
  transaction.commit();
  return reserved;
}

std::int64_t PhotoDatabase::addAsset(const AssetRow& asset) {
  prepare(*database_,
          "INSERT INTO asset(mediaType, creationDate, isHidden, isFavorite, smartSubtype, color) "
          "VALUES(?, ?, ?, ?, ?, ?)",
          static_cast<int>(asset.mediaType), asset.creationDate, asset.isHidden, asset.isFavorite,
          asset.smartSubtype, asset.color)
      .exec();
  return database_->getLastInsertRowid();
}

void PhotoDatabase::addToAlbum(std::int64_t asset, std::int64_t album) {
  prepare(*database_, "INSERT OR IGNORE INTO membership(asset, album) VALUES(?, ?)", asset, album).exec();
}

void PhotoDatabase::removeFromAlbum(std::int64_t asset, std::int64_t album) {
  prepare(*database_, "DELETE FROM membership WHERE asset = ? AND album = ?", asset, album).exec();
}

void PhotoDatabase::setHidden(std::int64_t asset, bool hidden) {
  prepare(*database_, "UPDATE asset SET isHidden = ? WHERE identifier = ?", hidden, asset).exec();
}

void PhotoDatabase::removeAsset(std::int64_t asset) {
  prepare(*database_, "DELETE FROM asset WHERE identifier = ?", asset).exec();
}

void PhotoDatabase::renameCollection(std::int64_t collection, std::string_view title) {
  prepare(*database_, "UPDATE collection SET title = ? WHERE identifier = ?", std::string(title), collection)
      .exec();
}

void PhotoDatabase::removeCollection(std::int64_t collection) {
  prepare(*database_, "DELETE FROM collection WHERE identifier = ?", collection).exec();
}

std::optional<std::string> PhotoDatabase::tryTransaction(const std::function<void()>& changes) {
  try {
    SQLite::Transaction transaction(*database_, SQLite::TransactionBehavior::IMMEDIATE);
    changes();
    transaction.commit();
    return std::nullopt;
  } catch (const std::exception& error) {
    return error.what();
  }
}

std::vector<CollectionRow> PhotoDatabase::collections(std::int64_t folder) const {
  return readCollections(*database_, "WHERE parent IS nullif(?, 0)", folder);
}

std::vector<CollectionRow> PhotoDatabase::allAlbums() const {
  return readCollections(*database_, "WHERE NOT isFolder");
}

std::optional<CollectionRow> PhotoDatabase::collection(std::int64_t identifier) const {
  auto rows = readCollections(*database_, "WHERE identifier = ?", identifier);
  if (rows.empty()) return std::nullopt;
  return std::move(rows.front());
}

std::vector<AssetRow> PhotoDatabase::allAssets() const { return readAssets(*database_, ""); }

std::optional<AssetRow> PhotoDatabase::asset(std::int64_t identifier) const {
  const auto rows = readAssets(*database_, "WHERE identifier = ?", identifier);
  if (rows.empty()) return std::nullopt;
  return rows.front();
}

std::vector<AssetRow> PhotoDatabase::assetsInAlbum(std::int64_t album) const {
  return readAssets(*database_, "JOIN membership ON asset = identifier WHERE album = ?", album);
}

std::vector<CollectionRow> PhotoDatabase::albumsContaining(std::int64_t asset) const {
  return readCollections(*database_, "JOIN membership ON album = identifier WHERE asset = ?", asset);
}

PhotoDatabase& sharedPhotoDatabase() {
  thread_local PhotoDatabase database(diskOfThisProcess().locate(kPhotoDatabasePath));
  return database;
}

}  // namespace device
