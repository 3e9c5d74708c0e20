#include "stores/store_file.h"

namespace stores {

namespace {

// Another station may append the same table at the same moment: then it is there, which is all that
// is wanted.
dao::Status complete(dao::Database& database, Schema schema) {
  for (const dao::TableDef& table : schema) {
    const dao::Status appended = database.appendTable(table);
    if (!appended && appended.fault() != dao::Fault::Exists) return appended;
  }
  return {};
}

}  // namespace

dao::Result<dao::Database> createStore(const std::string& path, dao::Order order, Schema schema) {
  // A file that is there already is opened as it is, so that a missing table can be added to it.
  auto database = dao::CreateDatabase(path, order);
  if (!database && database.error().fault() == dao::Fault::Exists)
    database = dao::OpenDatabase(path, {.emptyFileOrder = order});
  if (!database) return database;
  const dao::Status completed = complete(*database, schema);
  if (!completed) return std::unexpected(completed);
  return database;
}

dao::Result<dao::Database> openStoreFile(const std::string& path) {
  auto database = dao::OpenDatabase(path);
  if (!database) return database;
  const auto current = database->orderIsCurrent();
  if (!current) return std::unexpected(current.error());
  if (*current || database->isReadOnly()) return database;
  const dao::Status rebuilt = database->rebuildOrder();
  if (!rebuilt) return std::unexpected(rebuilt);
  return database;
}

dao::Result<dao::Recordset> openTable(dao::Database& database, const dao::TableDef& table) {
  // Helpers are only a faster way to an answer: without them the rules give the same.
  database.ensureHelpers(table).ignore();
  auto recordset = database.OpenRecordset(table.name);
  if (!recordset || table.indexes.empty()) return recordset;
  const dao::Status indexed = recordset->Index("PrimaryKey");
  if (!indexed) return std::unexpected(indexed);
  return recordset;
}

}  // namespace stores
