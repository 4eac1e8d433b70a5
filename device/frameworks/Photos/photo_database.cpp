#include "device/frameworks/Photos/photo_database.hpp"

#include <sqlite3.h>

#include <stdexcept>
#include <type_traits>
#include <utility>

namespace device {
namespace {

constexpr int kBusyTimeoutMilliseconds = 10'000;

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

void check(sqlite3* connection, bool succeeded) {
  if (!succeeded) throw std::runtime_error(std::string("photo library: ") + sqlite3_errmsg(connection));
}

/// One SQL statement with its parameters bound in order.
class Statement {
 public:
  template <class... Parameters>
  Statement(sqlite3* connection, const std::string& sql, const Parameters&... parameters)
      : connection_(connection) {
    check(connection, sqlite3_prepare_v2(connection, sql.c_str(), -1, &statement_, nullptr) == SQLITE_OK);
    int index = 0;
    (bind(++index, parameters), ...);
  }
  ~Statement() { sqlite3_finalize(statement_); }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  /// Whether there is one more row to read.
  bool step() {
    const int result = sqlite3_step(statement_);
    check(connection_, result == SQLITE_ROW || result == SQLITE_DONE);
    return result == SQLITE_ROW;
  }

  std::int64_t integer(int column) const { return sqlite3_column_int64(statement_, column); }
  double real(int column) const { return sqlite3_column_double(statement_, column); }
  std::string text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return bytes ? bytes : "";
  }

 private:
  template <class Value>
  void bind(int index, const Value& value) {
    if constexpr (std::is_integral_v<Value>) {
      sqlite3_bind_int64(statement_, index, static_cast<std::int64_t>(value));
    } else if constexpr (std::is_floating_point_v<Value>) {
      sqlite3_bind_double(statement_, index, value);
    } else {
      const std::string_view text = value;
      sqlite3_bind_text(statement_, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    }
  }

  sqlite3* connection_;
  sqlite3_stmt* statement_ = nullptr;
};

/// A statement without a result is a transaction of its own, outside of a larger one.
template <class... Parameters>
void change(sqlite3* connection, const std::string& sql, const Parameters&... parameters) {
  Statement(connection, sql, parameters...).step();
}

/// Several statements as one transaction, taken back unless committed.
class Transaction {
 public:
  explicit Transaction(sqlite3* connection) : connection_(connection) {
    change(connection, "BEGIN IMMEDIATE");
  }
  ~Transaction() {
    if (sqlite3_get_autocommit(connection_) == 0) {
      sqlite3_exec(connection_, "ROLLBACK", nullptr, nullptr, nullptr);
    }
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  void commit() { change(connection_, "COMMIT"); }

 private:
  sqlite3* connection_;
};

template <class... Parameters>
std::vector<CollectionRow> readCollections(sqlite3* connection, const std::string& condition,
                                           const Parameters&... parameters) {
  std::vector<CollectionRow> rows;
  Statement statement(connection, kCollectionColumns + condition + " ORDER BY identifier", parameters...);
  while (statement.step()) {
    rows.push_back({.identifier = statement.integer(0),
                    .title = statement.text(1),
                    .isFolder = statement.integer(2) != 0,
                    .parent = statement.integer(3),
                    .subtype = statement.integer(4)});
  }
  return rows;
}

template <class... Parameters>
std::vector<AssetRow> readAssets(sqlite3* connection, const std::string& condition,
                                 const Parameters&... parameters) {
  std::vector<AssetRow> rows;
  Statement statement(connection, kAssetColumns + condition + kOldestFirst, parameters...);
  while (statement.step()) {
    rows.push_back({.identifier = statement.integer(0),
                    .mediaType = static_cast<MediaType>(statement.integer(1)),
                    .creationDate = statement.real(2),
                    .isHidden = statement.integer(3) != 0,
                    .isFavorite = statement.integer(4) != 0,
                    .smartSubtype = statement.integer(5),
                    .color = static_cast<std::uint32_t>(statement.integer(6))});
  }
  return rows;
}

}  // namespace

PhotoDatabase::PhotoDatabase(const std::filesystem::path& file) {
  std::filesystem::create_directories(file.parent_path());
  sqlite3* connection = nullptr;
  const int result = sqlite3_open(file.c_str(), &connection);
  connection_ = {connection, [](sqlite3* opened) { sqlite3_close(opened); }};
  check(connection, result == SQLITE_OK);
  sqlite3_busy_timeout(connection, kBusyTimeoutMilliseconds);
  check(connection, sqlite3_exec(connection, kSchema, nullptr, nullptr, nullptr) == SQLITE_OK);
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
  change(connection_.get(),
         "INSERT INTO collection(identifier, title, isFolder, parent, subtype) "
         "VALUES(nullif(?, 0), ?, ?, nullif(?, 0), ?)",
         row.identifier, row.title, row.isFolder, row.parent, row.subtype);
  return sqlite3_last_insert_rowid(connection_.get());
}

std::int64_t PhotoDatabase::reserveAlbum() {
  // The database gives no identifier twice, not even that of a row that is gone.
  Transaction transaction(connection_.get());
  const std::int64_t reserved = addAlbum("");
  removeCollection(reserved);
  transaction.commit();
  return reserved;
}

std::int64_t PhotoDatabase::addAsset(const AssetRow& asset) {
  change(connection_.get(),
         "INSERT INTO asset(mediaType, creationDate, isHidden, isFavorite, smartSubtype, color) "
         "VALUES(?, ?, ?, ?, ?, ?)",
         static_cast<int>(asset.mediaType), asset.creationDate, asset.isHidden, asset.isFavorite,
         asset.smartSubtype, asset.color);
  return sqlite3_last_insert_rowid(connection_.get());
}

void PhotoDatabase::addToAlbum(std::int64_t asset, std::int64_t album) {
  change(connection_.get(), "INSERT OR IGNORE INTO membership(asset, album) VALUES(?, ?)", asset, album);
}

void PhotoDatabase::removeFromAlbum(std::int64_t asset, std::int64_t album) {
  change(connection_.get(), "DELETE FROM membership WHERE asset = ? AND album = ?", asset, album);
}

void PhotoDatabase::setHidden(std::int64_t asset, bool hidden) {
  change(connection_.get(), "UPDATE asset SET isHidden = ? WHERE identifier = ?", hidden, asset);
}

void PhotoDatabase::removeAsset(std::int64_t asset) {
  change(connection_.get(), "DELETE FROM asset WHERE identifier = ?", asset);
}

void PhotoDatabase::renameCollection(std::int64_t collection, std::string_view title) {
  change(connection_.get(), "UPDATE collection SET title = ? WHERE identifier = ?", title, collection);
}

void PhotoDatabase::removeCollection(std::int64_t collection) {
  change(connection_.get(), "DELETE FROM collection WHERE identifier = ?", collection);
}

std::optional<std::string> PhotoDatabase::tryTransaction(const std::function<void()>& changes) {
  try {
    Transaction transaction(connection_.get());
    changes();
    transaction.commit();
    return std::nullopt;
  } catch (const std::exception& error) {
    return error.what();
  }
}

std::vector<CollectionRow> PhotoDatabase::collections(std::int64_t folder) const {
  return readCollections(connection_.get(), "WHERE parent IS nullif(?, 0)", folder);
}

std::vector<CollectionRow> PhotoDatabase::allAlbums() const {
  return readCollections(connection_.get(), "WHERE NOT isFolder");
}

std::optional<CollectionRow> PhotoDatabase::collection(std::int64_t identifier) const {
  auto rows = readCollections(connection_.get(), "WHERE identifier = ?", identifier);
  if (rows.empty()) return std::nullopt;
  return std::move(rows.front());
}

std::vector<AssetRow> PhotoDatabase::allAssets() const { return readAssets(connection_.get(), ""); }

std::optional<AssetRow> PhotoDatabase::asset(std::int64_t identifier) const {
  const auto rows = readAssets(connection_.get(), "WHERE identifier = ?", identifier);
  if (rows.empty()) return std::nullopt;
  return rows.front();
}

std::vector<AssetRow> PhotoDatabase::assetsInAlbum(std::int64_t album) const {
  return readAssets(connection_.get(), "JOIN membership ON asset = identifier WHERE album = ?", album);
}

std::vector<CollectionRow> PhotoDatabase::albumsContaining(std::int64_t asset) const {
  return readCollections(connection_.get(), "JOIN membership ON album = identifier WHERE asset = ?", asset);
}

}  // namespace device
