// Opening one store: created when missing, completed when a table is missing.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/dao/database.h"
#include "stores/schema.h"

namespace stores {

// Creates the file when it is missing and adds the tables that it lacks; a table that is there is
// left as it is. The database is open afterwards, or the status says why not.
[[nodiscard]] dao::Result<dao::Database> createStore(const std::string& path, dao::Order order,
                                                     Schema schema);

// Opens a store that is there. Keys made by the collation rules of another release would be missed
// by Seek; they are made anew, unless the store cannot be written.
[[nodiscard]] dao::Result<dao::Database> openStoreFile(const std::string& path);

// Opens a table as a recordset positioned by its primary key, where it has one.
[[nodiscard]] dao::Result<dao::Recordset> openTable(dao::Database& database,
                                                    const dao::TableDef& table);

// A table of a store and the recordset that stays open on it.
template <class Store>
struct Handle {
  std::string_view table;
  dao::Recordset Store::*recordset;
};

// Opens the recordsets in their order; the first failure ends it.
template <class Store, std::size_t N>
dao::Status openHandles(Store& store, const std::array<Handle<Store>, N>& handles, Schema schema) {
  for (const Handle<Store>& handle : handles) {
    auto recordset = openTable(store.database, *tableOf(schema, handle.table));
    if (!recordset) return recordset.error();
    store.*handle.recordset = std::move(*recordset);
  }
  return {};
}

}  // namespace stores
